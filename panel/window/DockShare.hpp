#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QObject>

namespace Panel {

/// Keeps the share that a dock beside the centre has of its window's width, when the window is resized. Who drags the
/// dock's edge sets another share. User-interface thread.
class DockShare : public QObject {
    Q_OBJECT

public:
    /// `share` is from 0 to 1; it applies when the window is shown, but for the width of so many characters that the
    /// rest of the window needs.
    DockShare(QMainWindow& window, QDockWidget& dock, double share, int rest);
    ~DockShare() override;

    /// The dock keeps the width that it has, as after it was restored; that is its share from now on.
    void adoptWidth();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void noteWidth();
    void apply();

    QMainWindow& window_;
    QDockWidget& dock_;
    double share_;
    int const rest_;
    // For which the dock has its width; 0 before the window was shown.
    int windowWidth_ = 0;
    int setWidth_ = 0;
    bool adopts_ = false;
    bool applies_ = false;
};

} // namespace Panel
