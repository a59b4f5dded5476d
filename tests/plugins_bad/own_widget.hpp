#pragma once

#include <QWidget>
#include <tessera/Interface.hpp>

namespace Kolt {

class VIcon;

} // namespace Kolt

/// The interface through which a test uses the plug-in own_widget; its creator carries it. The caller owns what it
/// makes.
struct OwnWidgetWorkshop : Tessera::Interface<OwnWidgetWorkshop> {
    /// A widget of a class of the plug-in that is no editor.
    virtual QWidget* makeWidget() = 0;
    /// An icon that is no notifier.
    virtual Kolt::VIcon* makeIcon() = 0;
};
