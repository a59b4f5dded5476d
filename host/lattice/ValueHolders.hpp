#pragma once

#include <lattice/Object.hpp>
#include <string>
#include <unordered_map>

namespace Kolt {

class UndoHistory;

/// Who holds which value object: the parameters of all objects, and the undo histories. It is a picture of the moment
/// at which it is made, and takes a while for a large network. User-interface thread.
class ValueHolders {
public:
    ValueHolders();

    /// "object.parameter", with what it is there to the parameter; empty for a value that is held elsewhere.
    std::string nameOf(VValueBase const* value) const;

private:
    void addParameter(VParameter const& parameter);
    void addHistory(UndoHistory const& history);
    void add(ValuePtr const& value, std::string const& holder);

    std::unordered_map<VValueBase const*, std::string> holders_;
};

} // namespace Kolt
