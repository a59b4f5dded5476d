#pragma once

#include <lattice/Parameter.hpp>
#include <lattice/ValueSnapshot.hpp>
#include <memory>
#include <tessera/Export.hpp>

namespace Kolt {

/// Watches a parameter and records its edits in its history (VParameter::history). An edit is a change of the value
/// that an input reports. What the host writes itself, without a source, is no edit, and neither is what an input
/// writes while it is notified of that or while a history restores. An edit that changes nothing is not recorded.
///
/// Edits are notified after they were stored; the recorder therefore keeps copies of the parameter's values. A
/// parameter is watched as long as somebody holds its recorder, and meanwhile its changes must be reported on the
/// user-interface thread alone. User-interface thread.
class TALO_EXPORT EditRecorder {
public:
    /// The recorder of a parameter, which is made if it has none and shared otherwise; null for a null parameter.
    [[nodiscard]] static std::shared_ptr<EditRecorder> watch(ParameterPtr const& parameter);
    ~EditRecorder();
    EditRecorder(EditRecorder const&) = delete;
    EditRecorder& operator=(EditRecorder const&) = delete;

    /// A change of the value whose notification is under way. VParameter makes one before it notifies anybody and keeps
    /// it until everybody was notified.
    class TALO_EXPORT NotificationScope {
    public:
        /// Records the change, if it is an edit. REQUIRES: the change is stored already. A listener of the history may
        /// have destroyed the parameter afterwards (parameterLives).
        NotificationScope(std::shared_ptr<EditRecorder> recorder, PoolPtr const& pool, bool byInput);
        ~NotificationScope();
        NotificationScope(NotificationScope const&) = delete;
        NotificationScope& operator=(NotificationScope const&) = delete;

        /// Whether the parameter was not deleted meanwhile.
        bool parameterLives() const { return recorder_->parameter_.alive(); }

    private:
        std::shared_ptr<EditRecorder> const recorder_;
        bool const byInput_;
    };

private:
    explicit EditRecorder(ParameterPtr const& parameter);
    void noteEdit(ParameterPtr const& parameter, PoolPtr const& pool);

    ParameterRef const parameter_;
    ValueSnapshot lastValues_;
    // How many notifications of the host's own writes are under way.
    int hostWrites_ = 0;
};

} // namespace Kolt
