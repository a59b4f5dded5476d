#include <panel/window/HistoryDock.hpp>

#include <QAction>

namespace Panel {

HistoryDock::HistoryDock(Kolt::UndoHistory& history, QWidget* parent)
    : QDockWidget(tr("History"), parent), view_(new Talo::HistoryView(history)) {
    setObjectName(QStringLiteral("historyDock"));
    setWidget(view_);
    hide();
    toggleViewAction()->setObjectName(QStringLiteral("showHistory"));
}

HistoryDock::~HistoryDock() = default;

} // namespace Panel
