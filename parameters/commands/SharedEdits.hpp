#pragma once

#include <lattice/Object.hpp>
#include <lattice/UndoHistory.hpp>
#include <memory>
#include <QString>
#include <set>
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
/// from, are shared, but for those that people may not change (isChangeable). Undo and redo share nothing, and neither
/// do commands that name their objects themselves (Pause).
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

    /// As long as one exists, nothing is shared: for commands that change several objects on their own.
    class TALO_EXPORT Pause {
    public:
        /// Begins a pause; pauses may be nested.
        Pause();
        ~Pause();
        Pause(Pause const&) = delete;
        Pause& operator=(Pause const&) = delete;
    };

    /// The parameters that share the edits of one of the shown object; none for one that is not shared.
    std::vector<SharedParameter> const& othersOf(Kolt::VParameter const& parameter) const;

private:
    using Others = std::vector<SharedParameter>;

    /// Whether the step is in the history for the first time: an undo or redo makes a known one the latest.
    bool isNew(Kolt::UndoHistory::Step const& step);
    void shareLatestStep();
    void share(Kolt::ValueChange const& change) const;

    std::unordered_map<Kolt::VParameter const*, Others> others_;
    Kolt::UndoHistory* history_ = nullptr;
    Kolt::Connection connection_;
    std::set<std::weak_ptr<Kolt::UndoStep const>, std::owner_less<>> known_;
    // The latest step, if it is new; its further changes are shared, too.
    Kolt::UndoHistory::Step step_;
    // What was shared of the changes of the step, in their order.
    std::vector<Kolt::ValuePtr> shared_;
    bool isSharing_ = false;
};

} // namespace Talo
