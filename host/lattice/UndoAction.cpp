#include <algorithm>
#include <lattice/UndoAction.hpp>

namespace Kolt {

VUndoAction::VUndoAction(std::string const& description) : description_(description) {}

VUndoAction::~VUndoAction() = default;

UndoHistory& UndoHistory::theHistory() {
    static auto& history = *new UndoHistory;
    return history;
}

void UndoHistory::add(Tessera::StrongPtr<VUndoAction> const& action, int weight) {
    if (!action)
        return;
    if (steps_.size() >= Capacity)
        steps_.erase(std::min_element(steps_.begin(), steps_.end(),
                                      [](auto const& left, auto const& right) { return left.weight < right.weight; }));
    steps_.push_back({action, weight});
    changed();
}

bool UndoHistory::undo() {
    if (steps_.empty())
        return false;
    auto const action = steps_.back().action;
    steps_.pop_back();
    bool const undone = action->undo();
    changed();
    return undone;
}

std::vector<Tessera::StrongPtr<VUndoAction>> UndoHistory::steps() const {
    std::vector<Tessera::StrongPtr<VUndoAction>> actions;
    for (auto const& step : steps_)
        actions.push_back(step.action);
    return actions;
}

void UndoHistory::forget(std::function<bool(VUndoAction const&)> const& predicate) {
    steps_.erase(
        std::remove_if(steps_.begin(), steps_.end(), [&](auto const& step) { return predicate(*step.action); }),
        steps_.end());
    changed();
}

void UndoHistory::setListener(std::function<void()> listener) {
    listener_ = std::move(listener);
}

void UndoHistory::changed() const {
    // A copy, as the listener may replace itself.
    auto const listener = listener_;
    if (listener)
        listener();
}

} // namespace Kolt
