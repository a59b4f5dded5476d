#pragma once

#include <memory>
#include <panel/window/MessageList.hpp>
#include <panel/window/StandardOutputTap.hpp>
#include <panel/window/WarningListener.hpp>
#include <QDockWidget>
#include <QMainWindow>
#include <QToolButton>

namespace Panel {

/// The messages below a window: what the window adds itself, the host's warnings, and on demand what is printed. A
/// button below the list counts the printed lines and shows or hides them.
///
/// One for the process at a time, as it hears the host's warnings. User-interface thread.
class MessageDock : public QDockWidget {
    Q_OBJECT

public:
    /// Takes its place at the bottom of the window, which owns it.
    explicit MessageDock(QMainWindow& window);
    ~MessageDock() override;

    MessageList* messages() const { return messages_; }
    /// From now on lines on standard output are messages, too.
    void tapStandardOutput();

private:
    QWidget* makePage();
    void showOutputCount(int count);

    MessageList* const messages_;
    QToolButton* const outputButton_;
    WarningListener warnings_;
    std::unique_ptr<StandardOutputTap> outputTap_;
};

} // namespace Panel
