#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// Ends a modal dialog that nobody works with, and fails: it would hold the test up for ever.
class UnansweredDialog {
public:
    /// Call it again and again with the dialog that is shown now; null for none.
    void look(QWidget* dialog) {
        if (dialog != dialog_) {
            dialog_ = dialog;
            since_.start();
        } else if (dialog && since_.hasExpired(10000)) {
            ADD_FAILURE() << "nobody answers the dialog " << qPrintable(dialog->windowTitle());
            dialog->close();
        }
    }

private:
    QPointer<QWidget> dialog_;
    QElapsedTimer since_;
};

/// Calls `open`, which runs a modal dialog, and calls `work` once the dialog is shown and active. `work` must close it.
/// Returns whether a dialog appeared. Qt's own dialogs are used, because native ones cannot be driven by events.
template <typename Dialog>
bool withModalDialog(std::function<void()> const& open, std::function<void(Dialog&)> const& work) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    bool worked = false;
    UnansweredDialog unanswered;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            unanswered.look(QApplication::activeModalWidget());
            return;
        }
        // While its field has no focus, a file dialog replaces the field's text by the files that it finds. With a
        // window manager the focus arrives after the window.
        if (!dialog->isActiveWindow()) {
            dialog->activateWindow();
            return;
        }
        timer.stop();
        worked = true;
        work(*dialog);
    });
    timer.start(0);
    open();
    return worked;
}

inline bool withFileDialog(std::function<void()> const& open, std::function<void(QFileDialog&)> const& work) {
    return withModalDialog<QFileDialog>(open, work);
}

/// Types a file name into the dialog and presses Return.
inline void enterFileName(QFileDialog& dialog, QString const& name) {
    auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, name);
    QTest::keyClick(field, Qt::Key_Return);
}
