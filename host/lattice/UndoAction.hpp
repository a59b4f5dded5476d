#pragma once

#include <string>
#include <tessera/Reference.hpp>

namespace Kolt {

/// A record of an edit that can be taken back. The history (UndoHistory) owns it. User-interface thread.
class VUndoAction : public Tessera::ReferenceBase<VUndoAction> {
public:
    /// `description` is for people: "Set int value to 7". UTF-8.
    explicit VUndoAction(std::string const& description);
    ~VUndoAction() override;

    std::string const& description() const { return description_; }
    /// Takes the edit back; false when that is no longer possible.
    virtual bool undo() = 0;

private:
    std::string description_;
};

} // namespace Kolt
