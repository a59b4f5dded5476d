#pragma once

#include <QLineEdit>

namespace Kolt {

/// A line edit that remembers the text last shown in it. Return commits what was typed; whoever leaves the field
/// without it finds the remembered text again, so that the field never shows a text that holds nowhere. A window that
/// merely loses the focus, or a menu that opens, leaves the typed text alone, unless the focus comes back elsewhere.
class QLeaveLineEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit QLeaveLineEdit(QWidget* parent = nullptr);
    ~QLeaveLineEdit() override;

    /// Shows a text and remembers it.
    void showText(QString const& text);
    QString const& rememberedText() const { return remembered_; }

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void leave();

    QString remembered_;
    // While the window is not active or a menu is open.
    QMetaObject::Connection focusChanged_;
};

} // namespace Kolt
