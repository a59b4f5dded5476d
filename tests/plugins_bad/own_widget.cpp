// Makes widgets and icons that are no notifiers, which a host may keep for too long.
#include <lattice/Initialization.hpp>
#include <plugins_bad/EmptyCreator.hpp>
#include <plugins_bad/own_widget.hpp>
#include <sorrel/VIcon.hpp>

namespace OwnWidget {

struct Window : QWidget {};

struct Icon : Kolt::VIcon {
    Icon() : VIcon({}, {}) {}
    QWidget* widget() override { return nullptr; }
};

struct Workshop : OwnWidgetWorkshop {
    QWidget* makeWidget() override { return new Window; }
    Kolt::VIcon* makeIcon() override { return new Icon; }
};

struct Creator : EmptyCreator {
    Creator() : EmptyCreator("own widget") { addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new Workshop)); }
};

} // namespace OwnWidget

static OwnWidget::Creator const creator;

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__own_widget(Kolt::VInitialization const* host) {
    return host->IsCompatible("TALO_API_VERSION");
}
