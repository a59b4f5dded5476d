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

void EditRecorder::noteEdit(ParameterPtr const& parameter, Tessera::StrongPtr<ValuePool> const& pool) {
    auto const before = held_.in(pool);
    held_.refresh(*parameter, pool);
    auto const after = held_.in(pool);
    if (!before.equals(after))
        UndoHistory::theHistory().record(ValueChange(parameter, pool, before, after));
}

EditRecorder::Telling::Telling(std::shared_ptr<EditRecorder> recorder, Tessera::StrongPtr<ValuePool> const& pool,
                               bool byInput)
    : recorder_(std::move(recorder)), byInput_(byInput) {
    auto const parameter = recorder_->parameter_.strong();
    if (parameter && byInput && recorder_->hostWrites_ == 0 && !UndoHistory::theHistory().isRestoring())
        recorder_->noteEdit(parameter, pool);
    else if (parameter)
        recorder_->held_.refresh(*parameter, pool);
    if (!byInput_)
        ++recorder_->hostWrites_;
}

EditRecorder::Telling::~Telling() {
    if (!byInput_)
        --recorder_->hostWrites_;
}

} // namespace Kolt
