#pragma once

#include <QPointer>
#include <QWidget>

namespace Panel {

/// Holds an object's icon at the right end of its row. It lies over the row, so that the row stays one piece, and
/// leaves the mouse to it.
class IconPlace : public QWidget {
    Q_OBJECT

public:
    IconPlace();
    ~IconPlace() override;

    /// The icon; null as long as none was put here.
    QWidget* icon() const { return icon_; }
    /// Takes an icon over. Once only.
    void setIcon(QWidget* icon);

private:
    QPointer<QWidget> icon_;
};

} // namespace Panel
