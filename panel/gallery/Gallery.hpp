#pragma once

#include <panel/gallery/GalleryPage.hpp>
#include <panel/window/MessageDock.hpp>
#include <QMainWindow>
#include <QTabWidget>

namespace Panel {

/// The gallery of editors: each registered creator with two editors on one value, in every state, a tab each, and the
/// messages below. A tab is built when it is first shown. The plug-ins must stay loaded while the gallery exists.
///
/// One for the process at a time, as it hears the host's warnings. User-interface thread.
class Gallery : public QMainWindow {
    Q_OBJECT

public:
    explicit Gallery(QWidget* parent = nullptr);
    ~Gallery() override;

    /// Shows a state and gives its page.
    GalleryPage* showState(GalleryState state);
    MessageList* messages() const { return messageDock_->messages(); }
    /// From now on lines on standard output are messages, too.
    void tapStandardOutput() { messageDock_->tapStandardOutput(); }

private:
    GalleryPage* page(int index);

    QTabWidget* const states_;
    MessageDock* const messageDock_;
};

} // namespace Panel
