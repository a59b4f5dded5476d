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
};

} // namespace Panel
