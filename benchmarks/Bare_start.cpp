// Shows a window of bare Qt with the widgets of the panel, for a network of six objects, the first of which has eight
// parameters, draws it into the image file that is the argument, and ends.

#include "BenchmarkCase.hpp"

#include <algorithm>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyleFactory>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QWidget* makeForm() {
    auto* const area = new QScrollArea;
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->addWidget(new QLabel(QStringLiteral("<h3>lamp</h3>")));
    auto* const box = new QGroupBox;
    column->addWidget(box);
    column->addStretch(1);
    auto* const rows = new QFormLayout(box);
    for (auto const* const kind :
         {"enum", "int", "intDial", "intDialPeriodic", "double", "FltDial", "Periodic FltDial", "boolean"}) {
        auto const& cases = benchmarkCases();
        auto const found =
            std::find_if(cases.begin(), cases.end(), [&](auto const& each) { return each.name == kind; });
        if (found == cases.end())
            qFatal("There is no editor \"%s\".", kind);
        rows->addRow(QLatin1String(kind), found->makeBare(box)->widget());
    }
    area->setWidgetResizable(true);
    area->setWidget(content);
    return area;
}

QWidget* makeObjects() {
    auto* const objects = new QTreeWidget;
    objects->setHeaderHidden(true);
    for (int number = 0; number < 6; ++number)
        new QTreeWidgetItem(objects, {QStringLiteral("object %1").arg(number)});
    return objects;
}

QWidget* makeMessages() {
    auto* const messages = new QWidget;
    auto* const column = new QVBoxLayout(messages);
    auto* const list = new QTreeWidget;
    list->setHeaderLabels({QStringLiteral("Time"), QStringLiteral("From"), QStringLiteral("Message")});
    column->addWidget(list);
    column->addWidget(new QPushButton(QStringLiteral("2 lines of output")), 0, Qt::AlignLeft);
    return messages;
}

void addDock(QMainWindow& window, QString const& title, Qt::DockWidgetArea area, QWidget* widget) {
    auto* const dock = new QDockWidget(title);
    dock->setWidget(widget);
    window.addDockWidget(area, dock);
}

void fill(QMainWindow& window) {
    for (auto const* const title : {"File", "Edit", "View", "Plug-ins", "Help"}) {
        auto* const menu = window.menuBar()->addMenu(QLatin1String(title));
        for (int number = 0; number < 8; ++number)
            menu->addAction(QStringLiteral("Command %1").arg(number));
    }
    auto* const bar = window.addToolBar(QStringLiteral("Pool"));
    auto* const pools = new QComboBox;
    pools->addItems({QStringLiteral("day"), QStringLiteral("night")});
    bar->addWidget(new QLabel(QStringLiteral("Pool:")));
    bar->addWidget(pools);
    bar->addAction(QStringLiteral("Only changed"))->setCheckable(true);
    bar->addWidget(new QLineEdit);
    addDock(window, QStringLiteral("Objects"), Qt::LeftDockWidgetArea, makeObjects());
    addDock(window, QStringLiteral("Messages"), Qt::BottomDockWidgetArea, makeMessages());
    window.setCentralWidget(makeForm());
    window.statusBar()->addPermanentWidget(new QLabel(QStringLiteral("Plug-ins: 1")));
}

} // namespace

int main(int argc, char** argv) {
    QApplication const application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QMainWindow window;
    fill(window);
    window.resize(1100, 800);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
    return argc > 1 && window.grab().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
