#pragma once

#include "panel/PanelTest.hpp"

#include <fractal/ui/ComputingBar.hpp>
#include <QDockWidget>

/// The panel with the fractal network, whose full-size pictures are made small.
class FractalControllerTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), &error))
            << qPrintable(error);
        set("exporter.width", "96");
        window->show();
        ASSERT_TRUE(rests());
        takeOutput();
    }
    void TearDown() override {
        // The lists of multiple selections print a trace.
        takeOutput();
        PanelTest::TearDown();
    }

    bool rests() const {
        return waitUntil([this] { return window->fractalController().isAtRest(); });
    }
    bool ends() const {
        return waitUntil([this] { return !window->fractalController().renderQueue().isComputing(); });
    }
    Fractal::Preview* preview() const { return window->findChild<Fractal::Preview*>(); }
    QDockWidget* dock() const { return window->findChild<QDockWidget*>(QStringLiteral("preview")); }
    QWidget* bar() const { return window->findChild<Fractal::ComputingBar*>(); }
    template <typename T>
    T* control(char const* object, char const* parameter) const {
        window->showObject(QString::fromUtf8(object));
        auto* const editor = window->currentView()->row(QString::fromUtf8(parameter))->editor();
        auto* const itself = qobject_cast<T*>(editor);
        return itself ? itself : editor->findChild<T*>();
    }
    void makeEndless() {
        set("formula.kind", "Julia");
        set("formula.iterations", "20000");
        set("formula.quality", "16");
        set("formula.zoom", "-8");
        set("exporter.width", "4096");
    }
    /// Fires the action by its button, which starts the computing.
    void start() {
        QTest::mouseClick(control<QPushButton>("render", "start"), Qt::LeftButton);
        ASSERT_TRUE(window->fractalController().renderQueue().isComputing());
    }
    std::vector<std::string> messages(Panel::MessageList::Source source) const {
        std::vector<std::string> texts;
        auto const all = window->messages()->texts(source);
        for (auto const& text : all)
            texts.push_back(text.toStdString());
        return texts;
    }
    QString path(char const* name) const { return folder.filePath(QString::fromUtf8(name)); }
};
