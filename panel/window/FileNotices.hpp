#pragma once

#include <panel/window/Document.hpp>
#include <panel/window/NoticeBar.hpp>
#include <panel/window/Recovery.hpp>

namespace Panel {

/// Says in a notice what happens to the network's file elsewhere, and what earlier panels left behind. User-interface
/// thread.
class FileNotices : public QObject {
    Q_OBJECT

public:
    /// Says that the file was changed or is gone, and offers to load it again where nothing is unsaved. The document
    /// and the bar must outlive it.
    FileNotices(Document& document, NoticeBar& bar, QObject* parent = nullptr);
    ~FileNotices() override;

    /// From now on also says that another panel has the file open, and asks whether values that were left behind are to
    /// be taken over, for the network that is open and for each that is opened later. `recovery` must outlive this.
    void follow(Recovery& recovery);

signals:
    /// Something failed: what, and the reason.
    void failed(QString const& title, QString const& reason);
    /// Something was done that the user should read of.
    void reported(QString const& text);

private:
    void showFileChanged();
    void loadAgain();
    void showRecovery(Recovery& recovery);
    void restore(Recovery& recovery);

    Document& document_;
    NoticeBar& bar_;
};

} // namespace Panel
