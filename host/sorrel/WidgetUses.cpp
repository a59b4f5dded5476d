#include <sorrel/WidgetUses.hpp>

#include <lattice/ValueNotifier.hpp>
#include <QApplication>
#include <QWidget>
#include <sorrel/VIcon.hpp>

namespace Kolt {

namespace {

PluginUses::Listing const widgetListing(widgetUses);

} // namespace

std::vector<PluginUses::Use> widgetUses() {
    std::vector<PluginUses::Use> uses;
    for (auto* const icon : VIcon::living()) {
        if (!dynamic_cast<ValueNotifier*>(icon))
            uses.push_back({&typeid(*icon), "icon"});
    }
    auto const widgets = QApplication::allWidgets();
    for (auto* const widget : widgets) {
        if (!dynamic_cast<ValueNotifier*>(widget) && !dynamic_cast<VIcon*>(widget))
            uses.push_back({&typeid(*widget), "widget"});
    }
    return uses;
}

} // namespace Kolt
