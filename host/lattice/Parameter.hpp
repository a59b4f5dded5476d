#pragma once

#include <lattice/CreationPreferences.hpp>
#include <lattice/UndoAction.hpp>
#include <lattice/ValueNotifier.hpp>
#include <lattice/ValueSnapshot.hpp>
#include <memory>
#include <optional>
#include <type_traits>

namespace Kolt {

class EditRecorder;
class UndoHistory;
class VParameter;

using ParameterPtr = Tessera::StrongPtr<VParameter, ValueNotifierList>;
/// A reference that does not keep the parameter alive.
using ParameterRef = Tessera::WeakPtr<VParameter, ValueNotifierList>;

/// A named, typed parameter of some object. It holds one value object of its own and, where it keeps values per pool,
/// one more for each pool that has its own value. It is also the list of those told when the value changes.
///
/// Parameters belong to their object by strong references; everybody else refers to them weakly. User-interface
/// thread, but for `notifyValueChange` of a change that was stored, which any thread may call unless the parameter is
/// watched (EditRecorder).
class VParameter : public ValueNotifierList {
public:
    /// How a parameter keeps its values.
    enum class Values {
        Shared, ///< one value, the same in every pool
        PerPool ///< a value for each pool that has one, besides the parameter's own
    };

    /// `ownValue` is the value object that the parameter itself holds; it must not be null. The declared type is that
    /// of the value unless `declaredType` (a readable type name, Tessera::Typename) says otherwise: the editor is
    /// chosen by the declared type, and fresh values are made of it.
    VParameter(std::string name, ValuePtr const& ownValue, Values values = Values::Shared,
               std::string declaredType = {});
    ~VParameter() override;

    /// The name, UTF-8; where it has dots, the part after the last one is the parameter's and the rest says where
    /// it belongs.
    std::string Name() const { return name_; }
    std::string const& declaredType() const { return declaredType_; }

    /// The value object that the parameter itself holds.
    ValuePtr const& ownValue() const { return ownValue_; }
    bool keepsValuesPerPool() const { return values_ == Values::PerPool; }
    /// The value object of a pool. A parameter with one value gives its own object for every pool, also for a null
    /// one. One that keeps values per pool gives the pool's object; where the pool has none, null, or with `create` a
    /// new object copied from the own value; for a null pool null. The member is not used.
    ValuePtr getLocalValue(PoolPtr const& pool, std::string const& member, bool create) const;
    /// The value object that is effective in a pool: the pool's where it has one, else the parameter's own. Never null.
    ValuePtr effectiveValue(PoolPtr const& pool) const;
    /// Replaces the pool's object by a new one of the declared type and gives it. Null, and nothing replaced, for a
    /// null pool, a parameter with one value, or a type that nobody can create.
    ValuePtr freshLocalValue(PoolPtr const& pool) const;
    /// Takes the pool's object away, so that the pool has none. Tells nobody.
    void removeLocalValue(PoolPtr const& pool);
    /// Makes `value` the pool's object, in place of the one that it has. Tells nobody. Nothing happens for a null pool,
    /// a null value and a parameter with one value.
    void setLocalValue(PoolPtr const& pool, ValuePtr const& value);
    /// The living pools that have an object of their own.
    std::vector<PoolPtr> poolsWithValue() const;

    /// Whether people edit the parameter, so that its edits are undone, reset, copied and pasted: what setEdited said,
    /// else what the own value says (VValueBase::isEdited).
    bool isEdited() const { return edited_.value_or(ownValue_->isEdited()); }
    void setEdited(bool edited) { edited_ = edited; }

    /// From now on what the parameter holds, itself and in its pools, is its default.
    void rememberDefaults();
    /// What the parameter held when its defaults were remembered; null as long as they never were.
    ValueSnapshot const* defaults() const { return defaults_.get(); }

    /// Whether somebody has the edits of the parameter recorded (EditRecorder).
    bool isWatched() const { return !recorder_.expired(); }
    /// Prepares access to a member of a compound value. No value here is compound: does nothing.
    void selectMember(std::string const& member) const;

    /// Tells everybody in the list but `source`, in order of registration, that the value changed, then the members of
    /// `alsoNotify` that were not told yet, `source` included if it stands there. `value` is the live value object.
    /// The parameter may die on the way.
    void notifyValueChange(ValuePtr const& value, PoolPtr const& pool, std::string const& member,
                           Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                           ValueMap const* values) const;

    /// The properties; null as long as none was ever set.
    ValueMap const* properties() const { return properties_.get(); }
    /// Stores a property under a name (null removes it), then notifies everybody but `source` as notifyValueChange()
    /// does, with the property map and the value that is effective in `pool`. A property that editors know by its name
    /// and that is not of the type that they expect ("max" of an int parameter as a double, say) is stored, too, with a
    /// warning (VActionNotifier::Warning).
    void setProperty(std::string const& name, ValuePtr const& value, Tessera::WeakPtr<ValueNotifier> const& source,
                     ValueNotifierList const* alsoNotify, Tessera::WeakPtr<ValuePool> const& pool);

    /// The preferences with which an editor for this parameter is chosen; null for none.
    PreferencesPtr const& creationPreferences() const { return preferences_; }
    void setCreationPreferences(PreferencesPtr const& preferences) { preferences_ = preferences; }

    /// The history that records edits of this parameter: the one that it is attached to, else
    /// UndoHistory::theHistory().
    UndoHistory& history() const;
    /// Attaches the parameter to a history, which is not owned; null detaches it. When the history is destroyed, the
    /// parameter is detached. Steps recorded before stay in the history that recorded them.
    void setHistory(UndoHistory* history);
    /// Adds a record of an edit to the parameter's history, just before the value is written. Histories do not use the
    /// weight.
    void AddUndoAction(Tessera::StrongPtr<VUndoAction> const& action, int weight);

private:
    friend class EditRecorder;
    struct LocalValue {
        Tessera::WeakPtr<ValuePool> pool;
        ValuePtr value;
    };
    ValuePtr* findLocalValue(PoolPtr const& pool) const;
    void putLocalValue(PoolPtr const& pool, ValuePtr const& value) const;

    std::string const name_;
    ValuePtr const ownValue_;
    Values const values_;
    std::string const declaredType_;
    // A parameter has its values in a few pools at most, so a search beats a map.
    mutable std::vector<LocalValue> localValues_;
    // Shared, so that a parameter may die while its properties are being told.
    std::shared_ptr<ValueMap> properties_;
    PreferencesPtr preferences_;
    std::unique_ptr<ValueSnapshot> defaults_;
    std::weak_ptr<EditRecorder> recorder_;
    Tessera::WeakPtr<UndoHistory> history_;
    std::optional<bool> edited_;
};

/// The update step: marks the value that the parameter has in the pool as changed, by a new age stamp. Where the pool
/// has no value of its own, the parameter's own one is stamped.
void markValueChanged(VParameter const& parameter, PoolPtr const& pool);

/// Whether values can be of type T. Of the numbers these are bool, int and double; texts are std::string.
template <typename T>
constexpr bool IsStorable =
    std::is_arithmetic_v<T> ? std::is_same_v<T, bool> || std::is_same_v<T, int> || std::is_same_v<T, double>
                            : !std::is_pointer_v<T> && !std::is_array_v<T>;

/// Warns (VActionNotifier::Warning) that a value of a type cannot be stored in the parameter's value of the pool, and
/// why. Nothing happens where the pool merely has no value yet.
void reportRefusedStore(VParameter const& parameter, std::type_info const& valueType, PoolPtr const& pool);

/// The set step: stores `newValue` in the parameter's value of the pool (made if `create` says so) and, when it is
/// accepted, notifies. False, and nobody notified, when there is no such value of type T, with a warning where the
/// parameter's values are of another type or it needs a pool. The caller keeps the parameter alive.
template <typename T>
bool setParameterValue(VParameter const& parameter, T const& newValue, PoolPtr const& pool, std::string const& member,
                       bool create, Tessera::WeakPtr<ValueNotifier> const& source,
                       ValueNotifierList const* alsoNotify) {
    static_assert(IsStorable<T>, "Parameters hold the numbers bool, int and double, std::string, or class types.");
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
