#pragma once

#include <QLineEdit>
#include <tessera/Export.hpp>

namespace Kolt {

/// A line edit that commits a typed text when the focus leaves it, as the Return key does, so that nothing typed is
/// lost (QLineEdit::returnPressed). A text that is not acceptable, and one that its receiver does not show, gives way
/// to the text last shown, so that the field never shows a text that is no value. Escape restores that text, too. The
/// typed text stays while the window is inactive or a menu is open, unless the focus then comes back to another widget.
/// User-interface thread.
class TALO_EXPORT QLeaveLineEdit : public QLineEdit {
    Q_OBJECT

public:
    /// An empty line that remembers the empty text.
    explicit QLeaveLineEdit(QWidget* parent = nullptr);
    ~QLeaveLineEdit() override;

    /// Shows a text and remembers it as the one to restore.
    void showText(QString const& text);
    /// The text last shown; empty at first.
    QString const& rememberedText() const { return remembered_; }

protected:
    /// Commits or restores, now or when the focus comes back to another widget. A receiver may delete the field.
    void focusOutEvent(QFocusEvent* event) override;
    /// Escape restores the remembered text if another one was typed.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void leave();

    QString remembered_;
    // Connected while the window is inactive or a menu is open.
    QMetaObject::Connection focusChanged_;
};

} // namespace Kolt
