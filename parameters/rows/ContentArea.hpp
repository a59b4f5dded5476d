#pragma once

#include <parameters/input/FocusOutline.hpp>
#include <QScrollArea>
#include <tessera/Export.hpp>

namespace Talo {

/// Scrolls its content up and down. It is at least as wide as the content needs to be, so that nothing is cut off at
/// the side, unless that is more than a small screen has. With the keyboard focus, which lets the keys scroll it, it
/// has an outline.
class TALO_EXPORT ContentArea : public QScrollArea {
    Q_OBJECT

public:
    /// An area without content.
    explicit ContentArea(QWidget* parent = nullptr);
    ~ContentArea() override;

    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // Made when it is first needed.
    FocusOutline* outline_ = nullptr;
};

} // namespace Talo
