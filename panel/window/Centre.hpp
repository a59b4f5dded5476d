#pragma once

#include <QWidget>

namespace Panel {

class NoticeBar;

/// The middle of the window: two columns, with a place for notices above them.
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

    QWidget* const narrowColumn_;
};

} // namespace Panel
