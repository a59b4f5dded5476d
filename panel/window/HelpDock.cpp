#include <panel/window/HelpDock.hpp>

#include <QAction>

namespace Panel {

HelpDock::HelpDock(QWidget* parent) : QDockWidget(tr("Help"), parent), view_(new Talo::HelpView) {
    setObjectName(QStringLiteral("helpDock"));
    setWidget(view_);
    hide();
    toggleViewAction()->setObjectName(QStringLiteral("showHelpDock"));
}

HelpDock::~HelpDock() = default;

void HelpDock::showHelp(Kolt::ParameterPtr const& parameter) {
    view_->showHelp(*parameter);
    show();
    raise();
}

} // namespace Panel
