#pragma once

#include <lattice/CreationPreferences.hpp>
#include <lattice/UndoAction.hpp>
#include <lattice/ValueNotifier.hpp>
#include <lattice/ValueSnapshot.hpp>
#include <memory>
#include <optional>
#include <string_view>
#include <tessera/Export.hpp>
#include <type_traits>

namespace Kolt {

class ChangeSignal;
class EditRecorder;
class UndoHistory;
class VObject;
class VParameter;

using ParameterPtr = Tessera::StrongPtr<VParameter, ValueNotifierList>;
/// A reference that does not keep the parameter alive.
using ParameterRef = Tessera::WeakPtr<VParameter, ValueNotifierList>;

/// A named, typed parameter of an object. It holds one value object of its own and, if it keeps values per pool, one
/// more for each pool with a value of its own. It is also the list of notifiers that are notified when the value
/// changes. Parameter<T> makes and sets up parameters in one expression.
///
/// Parameters are owned by their object through strong references; all others refer to them weakly. User-interface
/// thread, with one exception: after a change was stored, any thread may call notifyValueChange(), unless the
/// parameter is watched (EditRecorder).
class TALO_EXPORT VParameter : public ValueNotifierList {
public:
    /// How a parameter keeps its values; fixed for its life.
    enum class Values {
        Shared, ///< one value, the same in every pool
        PerPool ///< a value for each pool that has one, besides the parameter's own
    };

    /// `ownValue` is the value object that the parameter itself holds. The declared type is that of the value unless
    /// `declaredType` (a readable type name, Tessera::Typename) is given: the editor is chosen by the declared type,
    /// and fresh values are of it. REQUIRES: `ownValue` is not null.
    VParameter(std::string name, ValuePtr const& ownValue, Values values = Values::Shared,
               std::string const& declaredType = {});
    ~VParameter() override;

    /// The name, UTF-8. In a name with dots the part after the last one names the parameter, the rest its group.
    std::string Name() const { return name_; }
    /// The same name without a copy. The parameter owns the characters: the view is valid as long as the parameter.
    std::string_view nameView() const { return name_; }
    /// The object that has the parameter: of several the one that it was added to last. Null for none.
    VObject const* object() const { return object_; }
    /// "object.parameter", for messages; the name alone while no object has the parameter.
    std::string fullName() const;
    /// The readable name of the type by which editors are chosen. All parameters of a type give the same object, which
    /// is never destroyed.
    std::string const& declaredType() const { return declaredType_; }

    /// The value object that the parameter itself holds.
    ValuePtr const& ownValue() const { return ownValue_; }
    /// Whether pools can have values of their own.
    bool keepsValuesPerPool() const { return values_ == Values::PerPool; }
    /// The value object of a pool. A parameter with one value returns its own object for every pool, null included.
    /// A parameter that keeps values per pool returns the pool's object; if the pool has none, null, or with `create` a
    /// new copy of the own value; null for a null pool. The member is not used.
    ValuePtr getLocalValue(PoolPtr const& pool, std::string const& member, bool create) const;
    /// The value object that is effective in a pool: the pool's if it has one, else the parameter's own. Never null.
    ValuePtr effectiveValue(PoolPtr const& pool) const;
    /// Replaces the pool's object by a new one of the declared type and returns it. Null, and nothing replaced, for a
    /// null pool, a parameter with one value, or a type without a value creator (VValueCreator).
    ValuePtr freshLocalValue(PoolPtr const& pool) const;
    /// Removes the pool's object, so that the parameter's own value is effective in the pool. Notifies nobody.
    void removeLocalValue(PoolPtr const& pool);
    /// Replaces the pool's object by `value`. Notifies nobody. Nothing happens for a null pool, a null value and a
    /// parameter with one value.
    void setLocalValue(PoolPtr const& pool, ValuePtr const& value);
    /// The living pools that have an object of their own.
    std::vector<PoolPtr> poolsWithValue() const;

    /// Whether people edit the parameter, so that its edits are undone, reset, copied and pasted: what setEdited said,
    /// else what the own value says (VValueBase::isEdited).
    bool isEdited() const { return edited_.value_or(ownValue_->isEdited()); }
    /// Says whether people edit the parameter, whatever its type says.
    void setEdited(bool edited) { edited_ = edited; }

    /// Copies the parameter's values, its own and those of its pools, as its defaults.
    void rememberDefaults();
    /// The values at the last rememberDefaults(); null before the first one.
    ValueSnapshot const* defaults() const { return defaults_.get(); }

    /// Whether the edits of the parameter are recorded (EditRecorder).
    bool isWatched() const { return !recorder_.expired(); }
    /// Prepares access to a member of a compound value. This library has no compound values: does nothing.
    void selectMember(std::string const& member) const;

    /// Notifies everybody in the list but `source` of a change of the value, in order of registration, then the members
    /// of `alsoNotify` that were not notified yet, `source` included if it is one of them. `value` is the live value
    /// object. `values` is the property map if properties changed, and null if the value did. A notifier may destroy
    /// the parameter.
    void notifyValueChange(ValuePtr const& value, PoolPtr const& pool, std::string const& member,
                           Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                           ValueMap const* values) const;

    /// The properties; null before the first setProperty().
    ValueMap const* properties() const { return properties_.get(); }
    /// Stores a property under a name (null removes it), then notifies everybody but `source` as notifyValueChange()
    /// does, with the property map and the value that is effective in `pool`. A property that editors or panels know by
    /// its name and that is not of the type that they expect ("max" of an int parameter as a double, say) is stored,
    /// too, with a warning (VActionNotifier::Warning).
    void setProperty(std::string const& name, ValuePtr const& value, Tessera::WeakPtr<ValueNotifier> const& source,
                     ValueNotifierList const* alsoNotify, Tessera::WeakPtr<ValuePool> const& pool);
    /// Whether an editor filled the property in because it was missing, and nobody has set it since: a notifier was the
    /// source. Such a property says nothing about the parameter and is not saved.
    bool isFilledIn(std::string const& property) const;

    /// The preferences with which an editor for this parameter is chosen; null for none. The set is shared, not copied.
    PreferencesPtr const& creationPreferences() const { return preferences_; }
    /// Replaces the preferences; null for none. Editors that exist stay.
    void setCreationPreferences(PreferencesPtr const& preferences) { preferences_ = preferences; }

    /// The history that records edits of this parameter: the one that it is attached to, else
    /// UndoHistory::theHistory().
    UndoHistory& history() const;
    /// Attaches the parameter to a history, which is not owned; null detaches it. When the history is destroyed, the
    /// parameter is detached. Steps recorded before stay in the history that recorded them.
    void setHistory(UndoHistory* history);
    /// Raises the signal at each change of a value from now on, of a parameter that people edit; null for none.
    /// Properties are no values. Called before other threads use the parameter.
    void setChangeSignal(std::shared_ptr<ChangeSignal> const& signal) { changeSignal_ = signal; }
    /// Adds a record of an edit to the parameter's history, just before the value is written. Histories do not use the
    /// weight.
    void AddUndoAction(Tessera::StrongPtr<VUndoAction> const& action, int weight);

private:
    friend class EditRecorder;
    friend class VObject;
    struct LocalValue {
        Tessera::WeakPtr<ValuePool> pool;
        ValuePtr value;
    };
    ValuePtr* findLocalValue(PoolPtr const& pool) const;
    void putLocalValue(PoolPtr const& pool, ValuePtr const& value) const;

    std::string const name_;
    ValuePtr const ownValue_;
    Values const values_;
    std::string const& declaredType_;
    // Parameters have values in a few pools, so a linear search is faster than a map.
    mutable std::vector<LocalValue> localValues_;
    // Shared, as a notifier may destroy the parameter during a notification.
    std::shared_ptr<ValueMap> properties_;
    std::vector<std::string> filledIn_;
    PreferencesPtr preferences_;
    std::unique_ptr<ValueSnapshot> defaults_;
    std::weak_ptr<EditRecorder> recorder_;
    Tessera::WeakPtr<UndoHistory> history_;
    std::shared_ptr<ChangeSignal> changeSignal_;
    std::optional<bool> edited_;
    // The object that has the parameter; it resets this when it no longer has it. Null for none.
    VObject const* object_ = nullptr;
};

/// The update step: marks the value that is effective in the pool as changed, by a new age stamp.
TALO_EXPORT void markValueChanged(VParameter const& parameter, PoolPtr const& pool);

/// Warns (VActionNotifier::Warning) that a value of a type cannot be stored in the parameter's value of the pool, and
/// why. Nothing happens where the pool merely has no value yet.
TALO_EXPORT void reportRefusedStore(VParameter const& parameter, std::type_info const& valueType, PoolPtr const& pool);

/// The set step: stores `newValue` in the parameter's value of the pool (made if `create` says so) and, when it is
/// accepted, notifies. False, and nobody notified, when there is no such value of type T, with a warning where the
/// parameter's values are of another type or it needs a pool. The caller keeps the parameter alive.
template <typename T>
[[nodiscard]] bool
setParameterValue(VParameter const& parameter, T const& newValue, PoolPtr const& pool, std::string const& member,
                  bool create, Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify) {
    auto const local = parameter.keepsValuesPerPool() ? parameter.getLocalValue(pool, member, create) : nullptr;
    // The parameter's own object lives as long as the parameter.
    auto const& value = parameter.keepsValuesPerPool() ? local : parameter.ownValue();
    auto* const typed = typedValue<T>(value.get());
    if (!typed) {
        reportRefusedStore(parameter, typeid(T), pool);
        return false;
    }
    if (!typed->set(newValue))
        return false;
    parameter.notifyValueChange(value, pool, member, source, alsoNotify, nullptr);
    return true;
}

} // namespace Kolt
