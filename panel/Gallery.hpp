#pragma once

#include <memory>
#include <panel/GalleryPage.hpp>
#include <panel/MessageList.hpp>
#include <panel/StandardOutputTap.hpp>
#include <panel/WarningListener.hpp>
#include <QMainWindow>
#include <QTabWidget>

namespace Panel {

/// The gallery of editors: each registered creator with two editors on one value, in every state, a tab each, and the
/// messages below. A tab is built when it is first shown. The plug-ins must stay loaded while the gallery stands.
///
/// One for the process at a time, as it hears the host's warnings. User-interface thread.
class Gallery : public QMainWindow {
    Q_OBJECT

public:
    explicit Gallery(QWidget* parent = nullptr);
    ~Gallery() override;

    /// Shows a state and gives its page.
    GalleryPage* showState(GalleryState state);
    MessageList* messages() const { return messages_; }
    /// From now on lines on standard output are messages, too.
    void tapStandardOutput();

private:
    GalleryPage* page(int index);

    WarningListener warnings_;
    std::unique_ptr<StandardOutputTap> outputTap_;
    QTabWidget* const states_;
    MessageList* const messages_;
};

} // namespace Panel
