#include "ModalCloser.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QtTest>

namespace {

// In milliseconds.
constexpr int interval = 5;

// An event that lasts this many intervals is blocked and needs help to end.
constexpr int patience = 20;

constexpr unsigned dialogsBetweenInterruptions = 8;

} // namespace

ModalCloser::ModalCloser(QStringList names, std::function<void(unsigned)> meanwhile)
    : names_(std::move(names)), meanwhile_(std::move(meanwhile)) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    connect(&timer_, &QTimer::timeout, this, &ModalCloser::look);
    timer_.start(interval);
}

ModalCloser::~ModalCloser() = default;

void ModalCloser::look() {
    QPointer<QDialog> const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog && dialog->isVisible()) {
        // Deferred, because a dialog that opens in between, such as the question whether to overwrite, needs this
        // timer.
        QTimer::singleShot(0, dialog, [this, dialog] { close(dialog); });
        return;
    }
    if (++ticks_ < patience)
        return;
    ticks_ = 0;
    if (auto* const popup = QApplication::activePopupWidget())
        popup->close();
    else if (auto* const window = QGuiApplication::focusWindow())
        QTest::keyPress(window, Qt::Key_Escape);
}

void ModalCloser::close(QPointer<QDialog> const& dialog) {
    if (!dialog || dialog != QApplication::activeModalWidget())
        return;
    if (random_() % dialogsBetweenInterruptions == 0)
        meanwhile_(static_cast<unsigned>(random_()));
    if (!dialog)
        return;
    auto* const files = qobject_cast<QFileDialog*>(dialog);
    if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
        auto const buttons = box->buttons();
        buttons.at(static_cast<int>(random_() % static_cast<unsigned>(buttons.size())))->click();
    } else if (files && random_() % 2 == 0) {
        auto* const field = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setText(names_.at(static_cast<int>(random_() % static_cast<unsigned>(names_.size()))));
        QTest::keyClick(field, Qt::Key_Return);
    } else {
        dialog->reject();
    }
}
