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
    if (count_ >= Capacity) {
        auto const lightest = steps_.begin();
        lightest->second.pop_front();
        --count_;
        if (lightest->second.empty())
            steps_.erase(lightest);
    }
    steps_[weight].push_back({action, ++lastNumber_});
    ++count_;
    changed();
}

bool UndoHistory::undo() {
    auto const latest = std::max_element(steps_.begin(), steps_.end(), [](auto const& left, auto const& right) {
        return left.second.back().number < right.second.back().number;
    });
    if (latest == steps_.end())
        return false;
    auto const action = latest->second.back().action;
    latest->second.pop_back();
    --count_;
    if (latest->second.empty())
        steps_.erase(latest);
    bool const undone = action->undo();
    changed();
    return undone;
}

std::vector<Tessera::StrongPtr<VUndoAction>> UndoHistory::steps() const {
    std::map<unsigned long, Tessera::StrongPtr<VUndoAction>> inOrder;
    for (auto const& ofOneWeight : steps_) {
        for (auto const& step : ofOneWeight.second)
            inOrder.emplace(step.number, step.action);
    }
    std::vector<Tessera::StrongPtr<VUndoAction>> actions;
    actions.reserve(inOrder.size());
    for (auto const& step : inOrder)
        actions.push_back(step.second);
    return actions;
}

void UndoHistory::forget(std::function<bool(VUndoAction const&)> const& predicate) {
    count_ = 0;
    for (auto ofOneWeight = steps_.begin(); ofOneWeight != steps_.end();) {
        auto& steps = ofOneWeight->second;
        steps.erase(
            std::remove_if(steps.begin(), steps.end(), [&](auto const& step) { return predicate(*step.action); }),
            steps.end());
        count_ += steps.size();
        ofOneWeight = steps.empty() ? steps_.erase(ofOneWeight) : std::next(ofOneWeight);
    }
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
