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

EditRecorder::EditRecorder(ParameterPtr const& parameter) : parameter_(parameter), lastValues_(*parameter) {}

EditRecorder::~EditRecorder() = default;

void EditRecorder::noteEdit(ParameterPtr const& parameter, PoolPtr const& pool) {
    auto const before = lastValues_.in(pool);
    // A pool that only got a copy of the inherited value counts as one without a value: the next step undoes both.
    if (lastValues_.isEffectiveIn(*parameter, pool))
        return;
    lastValues_.refreshIn(*parameter, pool);
    parameter->history().record(ValueChange(parameter, pool, before, lastValues_.in(pool)));
}

EditRecorder::NotificationScope::NotificationScope(std::shared_ptr<EditRecorder> recorder, PoolPtr const& pool,
                                                   bool byInput)
    : recorder_(std::move(recorder)), byInput_(byInput) {
    auto const parameter = recorder_->parameter_.strong();
    bool const restores = UndoHistory::isAnyRestoring();
    if (parameter && byInput && recorder_->hostWrites_ == 0 && !restores)
        recorder_->noteEdit(parameter, pool);
    else if (parameter && restores)
        recorder_->lastValues_.refreshIn(*parameter, pool);
    else if (parameter)
        // The host may have written the own value, which is effective in several pools.
        recorder_->lastValues_.refresh(*parameter);
    if (!byInput_)
        ++recorder_->hostWrites_;
}

EditRecorder::NotificationScope::~NotificationScope() {
    if (!byInput_)
        --recorder_->hostWrites_;
}

} // namespace Kolt
