#pragma once

#include "support/TaloTest.hpp"

#include <QProcess>
#include <QScreen>
#include <QStringList>

/// The mouse and keyboard of the display that the test runs on. Like real input, theirs passes through the window
/// system and arrives a moment later.
class Desktop {
public:
    void move(QWidget const& widget, QPoint const& place) {
        auto const point = widget.mapToGlobal(place);
        run({QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())});
        EXPECT_TRUE(waitUntil([&] { return QCursor::pos() == point; }));
    }
    void press() { run({QStringLiteral("mousedown"), QStringLiteral("1")}); }
    void release() { run({QStringLiteral("mouseup"), QStringLiteral("1")}); }
    /// Clicks a widget that may still be moving to its place.
    void click(QWidget const& widget, QPoint const& place) {
        QPoint goal;
        do {
            EXPECT_TRUE(waitUntil([&] { return isAt(widget, widget.mapToGlobal(place)); }));
            goal = widget.mapToGlobal(place);
            move(widget, place);
        } while (widget.mapToGlobal(place) != goal);
        run({QStringLiteral("click"), QStringLiteral("1")});
    }
    void click(QWidget const& widget) { click(widget, widget.rect().center()); }
    void turnWheel(bool up) { run({QStringLiteral("click"), up ? QStringLiteral("4") : QStringLiteral("5")}); }
    /// Presses keys by name: "ctrl+z", "Return".
    void key(char const* name) { run({QStringLiteral("key"), QString::fromUtf8(name)}); }
    void type(QString const& text) {
        run({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("2"), text});
    }

    /// The output of another xdotool command; empty if it fails, as a search that finds nothing does.
    QString ask(QStringList const& arguments) {
        QProcess process;
        finish(process, arguments);
        return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()).trimmed() : QString();
    }

    /// Whether a point on the screen shows the widget or a part of it.
    static bool isAt(QWidget const& widget, QPoint const& point) {
        auto const* const found = QApplication::widgetAt(point);
        return found == &widget || widget.isAncestorOf(found);
    }

private:
    static void finish(QProcess& process, QStringList const& arguments) {
        process.start(QStringLiteral("xdotool"), arguments);
        // Process events while waiting: Qt must answer the window system.
        EXPECT_TRUE(waitUntil([&] { return process.state() == QProcess::NotRunning; }))
            << qPrintable(arguments.join(QLatin1Char(' ')));
    }
    static void run(QStringList const& arguments) {
        QProcess process;
        finish(process, arguments);
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    }
};
