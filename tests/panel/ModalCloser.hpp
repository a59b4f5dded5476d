#pragma once

#include <functional>
#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <random>

/// Closes every modal dialog at random: message boxes by one of their buttons, file dialogs by Cancel or by one of the
/// names. Anything else that blocks an event is ended, too: a popup is closed, a drag gets Escape. The answers depend
/// on the seed of the event and on the number of dialogs in it alone, not on when the closer is asked.
class ModalCloser : public QObject {
public:
    /// `meanwhile` is sometimes called while a dialog is open, with a random number.
    ModalCloser(QStringList names, std::function<void(unsigned)> meanwhile);
    ~ModalCloser() override;

    /// Call this when an event begins.
    void beginEvent(unsigned seed) {
        ticks_ = 0;
        random_.seed(seed);
    }

private:
    void look();
    void close(QPointer<QDialog> const& dialog);

    std::mt19937 random_;
    QStringList const names_;
    std::function<void(unsigned)> const meanwhile_;
    QTimer timer_;
    // The number of timer ticks during the current event.
    int ticks_ = 0;
};
