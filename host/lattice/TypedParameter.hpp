#pragma once

#include <array>
#include <functional>
#include <lattice/Connection.hpp>
#include <lattice/Parameter.hpp>
#include <lattice/UndoHistory.hpp>
#include <type_traits>

namespace Kolt {

/// Whether a U can be written to a parameter of type T without loss. A number can if every value of U is a value of T,
/// so an int or a float can be written to a double, but neither a double nor an unsigned int to an int.
template <typename T, typename U>
constexpr bool
    IsWritableTo = std::is_arithmetic_v<T> || std::is_arithmetic_v<U>
                       ? std::is_same_v<T, U> ||
                             (std::is_same_v<T, double> && std::is_arithmetic_v<U> && !std::is_same_v<U, bool> &&
                              (std::is_floating_point_v<U> ? sizeof(U) <= sizeof(double) : sizeof(U) <= sizeof(int))) ||
                             (std::is_same_v<T, int> && (std::is_same_v<U, short> || std::is_same_v<U, unsigned short>))
                       : std::is_convertible_v<U const&, T>;

/// Calls a function after each change of a parameter's value of type T. Made by Parameter<T>::onChange and owned by the
/// Connection that it returns.
template <typename T>
class ChangeSubscription : public ValueNotifier {
public:
    /// Gets the new value and the pool of the change.
    using Function = std::function<void(T const&, PoolPtr const&)>;

    /// Calls this function, which must not be empty.
    explicit ChangeSubscription(Function function) : function_(std::make_shared<Function>(std::move(function))) {}
    ~ChangeSubscription() override { stopNotifications(); }

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override {
        T value{};
        auto const* const typed = dynamic_cast<VTypedValueBase<T> const*>(newValue.get());
        if (properties || !typed || !typed->get(value))
            return;
        // Held here, as the function may end its own subscription.
        auto const function = function_;
        (*function)(value, context.pool());
    }

private:
    std::shared_ptr<Function> function_;
};

/// A parameter whose values are of type T (bool, int, double, std::string or a value type of your own), made and set up
/// in one expression:
///
///     auto const speed = Kolt::Parameter<int>("speed", 40).min(0).max(100).toolTip("Rounds per minute");
///     auto const connection = speed.onChange([](int rounds) { motor.setSpeed(rounds); });
///     object->addParameter(speed);
///
/// It is a handle: copies refer to the same VParameter, which lives as long as a handle, an object (VObject) or another
/// ParameterPtr holds it. A value, bound or function of the wrong type does not compile. User-interface thread.
template <typename T>
class Parameter {
    static_assert(IsStorable<T>, "Values are the numbers bool, int and double, std::string, or of class types.");
    static_assert(!std::is_same_v<T, std::array<std::string, 1>>,
                  "The editor of an array of one text edits a std::string: make a VParameter with a std::string value "
                  "and the array as its declared type.");

public:
    /// A parameter with one value, the same in every pool. The name is UTF-8.
    template <typename U = T>
    explicit Parameter(std::string name, U const& value = U()) : Parameter(VParameter::Values::Shared, name, value) {}

    /// A parameter that has a value for each pool; `value` is effective in pools without one.
    template <typename U = T>
    [[nodiscard]] static Parameter perPool(std::string name, U const& value = U()) {
        return Parameter(VParameter::Values::PerPool, std::move(name), value);
    }

    /// The smallest value that editors offer. write() takes smaller ones, too.
    template <typename U>
    Parameter min(U const& value) const {
        return bound("min", value);
    }
    /// The largest value that editors offer. write() takes larger ones, too.
    template <typename U>
    Parameter max(U const& value) const {
        return bound("max", value);
    }
    /// How many positions the control of a double has from min to max, at least 2; without it 100 million.
    /// Editors of integers ignore it.
    template <typename U>
    Parameter increment(U const& value) const {
        return bound("increment", value);
    }
    /// The text that editors show under the mouse, UTF-8.
    Parameter toolTip(std::string const& text) const { return property("tooltip", text); }
    /// What the row is called instead of the parameter's name.
    Parameter label(std::string const& text) const { return property("label", text); }
    /// What the parameter does, in sentences.
    Parameter help(std::string const& text) const { return property("help", text); }
    /// What is shown behind the editor.
    Parameter unit(std::string const& text) const { return property("unit", text); }
    /// Any other property that an editor knows; the editor says of which type it must be.
    template <typename U>
    Parameter property(std::string const& name, U const& value) const {
        using Stored = std::conditional_t<std::is_convertible_v<U const&, std::string>, std::string, U>;
        static_assert(IsStorable<Stored>, "A property is a bool, int, double or text.");
        parameter_->setProperty(name, makeValue<Stored>(value), nullptr, nullptr, nullptr);
        return *this;
    }
    /// The preferences with which an editor is chosen, such as "dial"; replaces those given before.
    template <typename... Names>
    Parameter preferences(Names const&... names) const {
        parameter_->setCreationPreferences(
            PreferencesPtr(new VCreationPreferences(VCreationPreferences::Names{std::string(names)...})));
        return *this;
    }
    /// Attaches the parameter to a document's history (VParameter::setHistory), which is not owned and may be destroyed
    /// before the parameter.
    Parameter history(UndoHistory& history) const {
        parameter_->setHistory(&history);
        return *this;
    }

    /// The value that is effective in a pool: the pool's where it has one, else the parameter's own. Without a pool the
    /// parameter's own value.
    T read(PoolPtr const& pool = nullptr) const {
        return valueOr(parameter_->effectiveValue(pool), valueOr(parameter_->ownValue(), T()));
    }
    /// Stores a value in a pool, marks it as changed and notifies everybody. This is no undo step (see
    /// UndoHistory::store). REQUIRES: a pool, if the parameter has a value for each pool. False, with a warning
    /// (VActionNotifier), where it cannot be stored.
    template <typename U>
    bool write(U const& value, PoolPtr const& pool = nullptr) const {
        static_assert(IsWritableTo<T, U>, "The value is of another type than the parameter.");
        if (!setParameterValue<T>(*parameter_, value, pool, std::string(), true, nullptr, nullptr))
            return false;
        markValueChanged(*parameter_, pool);
        return true;
    }

    /// Calls `function(value)` or `function(value, pool)` after each change of the value, in whatever pool, as long as
    /// the connection lives. Changes of properties are left out. Called on the thread that
    /// ValueNotifier::onValueChange is called on.
    template <typename Function>
    [[nodiscard]] Connection onChange(Function function) const {
        std::shared_ptr<ChangeSubscription<T>> subscription;
        if constexpr (std::is_invocable_v<Function, T const&, PoolPtr const&>)
            subscription = std::make_shared<ChangeSubscription<T>>(std::move(function));
        else
            subscription = std::make_shared<ChangeSubscription<T>>(
                [call = std::move(function)](T const& value, PoolPtr const&) { call(value); });
        parameter_->addNotifier(Tessera::WeakPtr<ValueNotifier>(subscription.get()));
        return Connection(std::move(subscription));
    }

    /// The parameter itself; never null.
    ParameterPtr const& pointer() const { return parameter_; }
    /// The parameter itself; never null.
    operator ParameterPtr const&() const { return parameter_; }
    /// The parameter itself; never null.
    VParameter* operator->() const { return parameter_.get(); }
    /// The parameter itself.
    VParameter& operator*() const { return *parameter_; }

private:
    template <typename U>
    Parameter(VParameter::Values values, std::string name, U const& value)
        : parameter_(new VParameter(std::move(name), makeValue<T>(value), values)) {
        static_assert(IsWritableTo<T, U>, "The value is of another type than the parameter.");
    }
    template <typename U>
    Parameter bound(char const* name, U const& value) const {
        static_assert(std::is_same_v<T, int> || std::is_same_v<T, double>, "Only numbers have bounds.");
        static_assert(IsWritableTo<T, U>, "The bound is of another type than the parameter.");
        return property(name, static_cast<T>(value));
    }

    ParameterPtr parameter_;
};

} // namespace Kolt
