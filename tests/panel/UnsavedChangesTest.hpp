#pragma once

#include "EditingTest.hpp"

#include <QMessageBox>

/// A panel with a saved network, for tests that edit, close and save.
class UnsavedChangesTest : public EditingTest {
protected:
    QString file() const { return folder.filePath(QStringLiteral("values.json")); }
    static QByteArray bytesOf(QString const& name) {
        QFile source(name);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << qPrintable(name);
        return source.readAll();
    }
    /// Calls `asking`, which may ask about changes, and answers. Returns whether it asked.
    static bool answer(QMessageBox::StandardButton button, std::function<void()> const& asking) {
        bool asked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked = true;
                QTest::mouseClick(box->button(button), Qt::LeftButton);
            }
        });
        timer.start(0);
        asking();
        return asked;
    }
    bool close(QMessageBox::StandardButton button) const {
        return answer(button, [this] { window->close(); });
    }
    void edit() { click(choice("Blue")); }
    bool isMarked() const {
        return waitUntil([this] { return window->isWindowModified(); });
    }
    bool isUnmarked() const {
        return waitUntil([this] { return !window->isWindowModified(); });
    }
};
