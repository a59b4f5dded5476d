#pragma once

#include <lattice/Parameter.hpp>
#include <lattice/ValueSnapshot.hpp>
#include <memory>

namespace Kolt {

/// Watches a parameter and records the edits of it in the history (UndoHistory). An edit is a change of the value that
/// an input reports; what the host writes itself, without a source, is none, and neither is what an input writes in
/// answer to it. An edit that changes nothing is not recorded.
///
/// As an edit is told of only after it was stored, the recorder keeps copies of what the parameter holds. A parameter
/// is watched as long as somebody holds its recorder; as long, its changes may be reported on the user-interface
/// thread alone. User-interface thread.
class EditRecorder {
public:
    /// The recorder of a parameter, made if it has none; null for a null parameter.
    static std::shared_ptr<EditRecorder> watch(ParameterPtr const& parameter);
    ~EditRecorder();
    EditRecorder(EditRecorder const&) = delete;
    EditRecorder& operator=(EditRecorder const&) = delete;

    /// A change that is being told. The parameter makes one before it tells and keeps it until everybody was told.
    class NotificationScope {
    public:
        /// The change is stored already. The history's listener may have deleted the parameter afterwards.
        NotificationScope(std::shared_ptr<EditRecorder> recorder, PoolPtr const& pool, bool byInput);
        ~NotificationScope();
        NotificationScope(NotificationScope const&) = delete;
        NotificationScope& operator=(NotificationScope const&) = delete;

        bool parameterLives() const { return recorder_->parameter_.alive(); }

    private:
        std::shared_ptr<EditRecorder> const recorder_;
        bool const byInput_;
    };

private:
    explicit EditRecorder(ParameterPtr const& parameter);
    void noteEdit(ParameterPtr const& parameter, PoolPtr const& pool);

    ParameterRef const parameter_;
    ValueSnapshot held_;
    // How many writes of the host are being told.
    int hostWrites_ = 0;
};

} // namespace Kolt
