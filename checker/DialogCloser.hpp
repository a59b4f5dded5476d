#pragma once

#include <QTimer>

namespace Checker {

/// While it lives, dialogs and menus that open are closed as with Escape, because nobody is there to answer them.
/// User-interface thread.
class DialogCloser {
public:
    DialogCloser();

private:
    QTimer timer_;
};

} // namespace Checker
