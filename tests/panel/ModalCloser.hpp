#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <random>

/// Closes every modal dialog that comes up, in one way or another: message boxes by one of their buttons, file dialogs
/// by Cancel or by one of the names. What else keeps an event from coming to its end is closed, as a menu, or
/// ended by Escape, as a drag.
class ModalCloser : public QObject {
public:
    ModalCloser(std::mt19937& random, QStringList names);
    ~ModalCloser() override;

    /// An event begins.
    void beginEvent() { ticks_ = 0; }

private:
    void look();
    void close(QPointer<QDialog> const& dialog);

    std::mt19937& random_;
    QStringList const names_;
    QTimer timer_;
    // How often it looked in the present event.
    int ticks_ = 0;
};
