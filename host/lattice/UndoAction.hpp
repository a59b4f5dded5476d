#pragma once

#include <string>
#include <tessera/Export.hpp>
#include <tessera/Reference.hpp>

namespace Kolt {

/// A record of an edit that can be undone. An input derives a class and hands its records over
/// (VParameter::AddUndoAction); the history (UndoHistory) then owns them. User-interface thread.
class TALO_EXPORT VUndoAction : public Tessera::ReferenceBase<VUndoAction> {
public:
    /// `description` is for people, UTF-8: "Set int value to 7".
    explicit VUndoAction(std::string const& description);
    ~VUndoAction() override;

    /// What it undoes, for people, UTF-8.
    std::string const& description() const { return description_; }
    /// Undoes the edit. Called once at most. False if that is no longer possible, as when the input was destroyed.
    virtual bool undo() = 0;

private:
    std::string description_;
};

} // namespace Kolt
