#pragma once

#include <sorrel/QInputCreator.hpp>
#include <tuple>

/// Every static creator carries this initialisation priority, so that all of them are registered before TALO_PLUGIN
/// reports attach, and none is unregistered before it reported detach.
#define TALO_STATIC_CREATOR [[gnu::init_priority(1000)]] static

namespace Kolt {

/// Offers the widget class W for values of type T: it is registered with the host as an input creator as long as it
/// lives, and makes a W for a parameter when the Qt front end asks. One static object of the plug-in for each name and
/// preference set, at the foot of the widget's source. Loading thread; create() on the user-interface thread.
///
/// W has the constructor W(ParameterRef const& parameter, QWidget* parent,
/// ValuePoolSource* poolSource, PreferencesPtr const& preferences) and is a QWidget and a VInputBase.
template <typename T, typename W>
class QInputWidgetCreator : public VInputCreator<T, VInputCreatorBase> {
public:
    /// Registers the creator, adds "QT" to its preferences and attaches its QInputCreator. `prefs` becomes the
    /// creator's set; null makes an empty one. `name` need not be unique. Of the creators that serve a parameter
    /// equally well the one of the highest `priority` makes its editor. If the host refuses the registration, one
    /// warning is printed and passed to the host, and the creator stays constructed.
    QInputWidgetCreator(std::string const& name, PreferencesPtr const& prefs, int priority = 0)
        : VInputCreator<T, VInputCreatorBase>(name, priority, prefs ? prefs : PreferencesPtr(new VCreationPreferences),
                                              "TALO_API_VERSION") {
        *this->preferences() += "QT";
        this->addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new QCreator(*this)));
    }

    /// The creator as the Qt front end finds it: an interface of the creator, which owns it.
    class QCreator : public QInputCreator {
    public:
        /// `creator` owns this object.
        explicit QCreator(QInputWidgetCreator& creator) : creator_(creator) {}

        /// Makes a W with the creator's preferences. `parent` owns it and may be null. Gives the widget, and its input,
        /// or an empty reference if it is none.
        std::pair<QPointer<QWidget>, InputRef> create(ParameterRef const& parameter, QWidget* parent,
                                                      ValuePoolSource* poolSource) override {
            auto const preferences = mergePreferences(nullptr, creator_.preferences());
            auto* const widget = new W(parameter, parent, poolSource, preferences);
            ValueNotifier* const notifier = widget;
            return {widget, InputRef(dynamic_cast<VInputBase*>(notifier))};
        }

    private:
        // The creator owns this interface.
        QInputWidgetCreator& creator_;
    };
};

} // namespace Kolt
