#pragma once

#include <QWidget>

class QSplitter;

namespace Panel {

class NoticeBar;

/// The middle of the window: two columns, with a place for notices above them. The narrow one keeps its width in
/// characters when the font changes.
class Centre : public QWidget {
    Q_OBJECT

public:
    /// Takes the widgets over.
    Centre(NoticeBar* notices, QWidget* narrowColumn, QWidget* wideColumn);
    ~Centre() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Gives the narrow column room for names.
    void setLeastWidth();
    void followFont();

    QWidget* const narrowColumn_;
    QSplitter* const columns_;
    // In characters, of this width in pixels.
    double narrowWidth_;
    int characterWidth_;
};

} // namespace Panel
