#pragma once

#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// A frame inside the edges of a widget that shows that it has the focus, in two colours, so that it can be seen on
/// every ground. It lies over the widget, as its child, leaves the mouse to it and follows its size. User-interface
/// thread.
class TALO_EXPORT FocusOutline : public QWidget {
    Q_OBJECT

public:
    /// Hidden at first.
    explicit FocusOutline(QWidget* widget);
    ~FocusOutline() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void followSize();
};

} // namespace Talo
