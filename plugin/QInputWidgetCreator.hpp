#pragma once

#include <sorrel/QInputCreator.hpp>
#include <tuple>

/// Static creators carry this, so that all of them stand before the load callback reports attach and none goes before
/// it reported detach.
#define TALO_STATIC_CREATOR [[gnu::init_priority(1000)]] static

namespace Kolt {

/// Offers the widget class W for values of type T: an object that stands registered with the host as an input creator
/// and builds a W for a parameter when the Qt front end asks. Made once for each name and preference set, as a static
/// object of the library.
///
/// W has the constructor W(ParameterRef const& parameter, QWidget* parent,
/// ValuePoolSource* poolSource, PreferencesPtr const& preferences) and is a QWidget and a VInputBase.
template <typename T, typename W>
class QInputWidgetCreator : public VInputCreator<T, VInputCreatorBase> {
public:
    /// Registers the creator, adds "QT" to its preferences and attaches its QInputCreator. `prefs` becomes the
    /// creator's set; null makes an empty one. Where the host refuses the registration, one warning is printed and
    /// handed to the host, and the creator stays.
    QInputWidgetCreator(std::string const& name, PreferencesPtr const& prefs)
        : VInputCreator<T, VInputCreatorBase>(name, 0, prefs ? prefs : PreferencesPtr(new VCreationPreferences),
                                              "TALO_API_VERSION") {
        *this->preferences() += "QT";
        this->addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new QCreator(*this)));
    }

    /// The creator as the Qt front end sees it.
    class QCreator : public QInputCreator {
    public:
        explicit QCreator(QInputWidgetCreator& creator) : creator_(creator) {}

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
