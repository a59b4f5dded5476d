#pragma once

#include <lattice/Object.hpp>
#include <lattice/UndoHistory.hpp>
#include <QString>
#include <tessera/Export.hpp>
#include <unordered_map>
#include <vector>

namespace Talo {

/// A parameter of one of several objects that are edited together.
struct TALO_EXPORT SharedParameter {
    QString objectName;           ///< the object that it belongs to
    Kolt::ParameterRef parameter; ///< may be gone
};

/// Edits several objects together: what a step of the undo history changes in one of them is stored in the others as
/// well, as a part of the same step. Parameters that all objects have by name and type, with the same entries to choose
/// from, are shared.
///
/// The objects are referred to weakly, and parameters that come later are not shared. User-interface thread.
class TALO_EXPORT SharedEdits {
public:
    /// `shown` is the object whose edits go to the others. The history is that of its first parameter, which must
    /// outlive the sharing. REQUIRES: `shown` is not null.
    SharedEdits(Kolt::ObjectPtr const& shown, std::vector<Kolt::ObjectPtr> const& others);
    ~SharedEdits();
    SharedEdits(SharedEdits const&) = delete;
    SharedEdits& operator=(SharedEdits const&) = delete;

    /// The parameters that share the edits of one of the shown object; none for one that is not shared.
    std::vector<SharedParameter> const& othersOf(Kolt::VParameter const& parameter) const;

private:
    using Others = std::vector<SharedParameter>;

    void shareLatestStep();
    void share(Kolt::ValueChange const& change) const;

    std::unordered_map<Kolt::VParameter const*, Others> others_;
    Kolt::UndoHistory* history_ = nullptr;
    Kolt::Connection connection_;
    Kolt::UndoHistory::Step step_;
    // What was shared of the changes of the step, in their order.
    std::vector<Kolt::ValuePtr> shared_;
    bool isSharing_ = false;
};

} // namespace Talo
