#include <lattice/EditRecorder.hpp>

#include <lattice/UndoHistory.hpp>

namespace Kolt {

std::shared_ptr<EditRecorder> EditRecorder::watch(ParameterPtr const& parameter) {
    if (!parameter)
        return nullptr;
    auto recorder = parameter->recorder_.lock();
    if (!recorder) {
        recorder.reset(new EditRecorder(parameter));
        parameter->recorder_ = recorder;
    }
    return recorder;
}

EditRecorder::EditRecorder(ParameterPtr const& parameter) : parameter_(parameter), held_(*parameter) {}

EditRecorder::~EditRecorder() = default;

void EditRecorder::noteEdit(ParameterPtr const& parameter, PoolPtr const& pool) {
    auto const before = held_.in(pool);
    // A pool that only got a copy of the parameter's own value counts as one without: the step after it takes both
    // back.
    if (held_.isEffectiveIn(*parameter, pool))
        return;
    held_.refreshIn(*parameter, pool);
    parameter->history().record(ValueChange(parameter, pool, before, held_.in(pool)));
}

EditRecorder::NotificationScope::NotificationScope(std::shared_ptr<EditRecorder> recorder, PoolPtr const& pool,
                                                   bool byInput)
    : recorder_(std::move(recorder)), byInput_(byInput) {
    auto const parameter = recorder_->parameter_.strong();
    bool const restores = UndoHistory::isAnyRestoring();
    if (parameter && byInput && recorder_->hostWrites_ == 0 && !restores)
        recorder_->noteEdit(parameter, pool);
    else if (parameter && restores)
        recorder_->held_.refreshIn(*parameter, pool);
    else if (parameter)
        // The host may have written the value behind several pools.
        recorder_->held_.refresh(*parameter);
    if (!byInput_)
        ++recorder_->hostWrites_;
}

EditRecorder::NotificationScope::~NotificationScope() {
    if (!byInput_)
        --recorder_->hostWrites_;
}

} // namespace Kolt
