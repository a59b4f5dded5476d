#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <random>

/// Closes every modal dialog at random: message boxes by one of their buttons, file dialogs by Cancel or by one of the
/// names. Anything else that blocks an event is ended, too: a popup is closed, a drag gets Escape.
class ModalCloser : public QObject {
public:
    ModalCloser(std::mt19937& random, QStringList names);
    ~ModalCloser() override;

    /// Call this when an event begins.
    void beginEvent() { ticks_ = 0; }

private:
    void look();
    void close(QPointer<QDialog> const& dialog);

    std::mt19937& random_;
    QStringList const names_;
    QTimer timer_;
    // The number of timer ticks during the current event.
    int ticks_ = 0;
};
