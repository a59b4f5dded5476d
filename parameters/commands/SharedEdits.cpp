#include <parameters/commands/SharedEdits.hpp>

#include <algorithm>
#include <network/JsonFormat.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QScopedValueRollback>
#include <utility>

namespace Talo {

namespace {

using ParametersByName = std::unordered_map<std::string, Kolt::ParameterPtr>;

ParametersByName byName(Kolt::VObject const& object) {
    ParametersByName parameters;
    for (auto const& parameter : object.parameters())
        parameters.insert({parameter->Name(), parameter});
    return parameters;
}

/// Whether a value of the one can be stored in the other.
bool areAlike(Kolt::VParameter const& one, Kolt::VParameter const& other) {
    return one.declaredType() == other.declaredType() && offerSameChoices(one.ownValue(), other.ownValue());
}

int pauses = 0;

} // namespace

SharedEdits::Pause::Pause() {
    ++pauses;
}

SharedEdits::Pause::~Pause() {
    --pauses;
}

SharedEdits::SharedEdits(Kolt::ObjectPtr const& shown, std::vector<Kolt::ObjectPtr> const& others) {
    auto const& parameters = shown->parameters();
    if (parameters.empty() || others.empty())
        return;
    for (auto const& parameter : parameters)
        others_.insert({parameter.get(), {}});
    for (auto const& object : others) {
        auto const named = byName(*object);
        auto const objectName = QString::fromStdString(object->Name());
        for (auto const& parameter : parameters) {
            auto const entry = others_.find(parameter.get());
            auto const other = named.find(parameter->Name());
            if (entry == others_.end())
                continue;
            if (other != named.end() && areAlike(*parameter, *other->second))
                entry->second.push_back({objectName, other->second});
            else
                others_.erase(entry);
        }
    }
    history_ = &parameters.front()->history();
    for (auto const& step : history_->steps())
        known_.insert(step);
    for (auto const& step : history_->undoneSteps())
        known_.insert(step);
    connection_ = history_->addListener([this] { shareLatestStep(); });
}

SharedEdits::~SharedEdits() = default;

std::vector<SharedParameter> const& SharedEdits::othersOf(Kolt::VParameter const& parameter) const {
    static Others const none;
    auto const found = others_.find(&parameter);
    return found == others_.end() ? none : found->second;
}

bool SharedEdits::isNew(Kolt::UndoHistory::Step const& step) {
    return known_.insert(step).second;
}

void SharedEdits::shareLatestStep() {
    // What an undo restores was shared when it was edited.
    if (isSharing_ || Kolt::UndoHistory::isAnyRestoring())
        return;
    QScopedValueRollback const guard(isSharing_, true);
    auto const step = history_->nextUndo();
    if (step != step_) {
        step_ = step && isNew(step) ? step : nullptr;
        shared_.clear();
    }
    if (!step_)
        return;
    // By number, as the changes of the others are added.
    for (std::size_t index = 0; index < step->changes().size(); ++index) {
        auto const change = step->changes()[index];
        shared_.resize(std::max(shared_.size(), index + 1));
        bool const isShared = std::exchange(shared_[index], change.after().value) == change.after().value;
        if (!isShared && pauses == 0)
            share(change);
    }
}

void SharedEdits::share(Kolt::ValueChange const& change) const {
    auto const parameter = change.parameter();
    if (!parameter)
        return;
    auto const others = othersOf(*parameter);
    for (auto const& [objectName, reference] : others)
        if (auto const other = reference.strong(); other && isChangeable(*other) && &other->history() == history_)
            // A value that the one inherits is not the one that the other would inherit.
            (void)history_->store(other, change.pool(), {change.after().value, false}, parameter);
}

} // namespace Talo
