#pragma once

#include <QLineEdit>
#include <tessera/Export.hpp>

namespace Kolt {

/// A line edit that restores the text last shown in it when the focus leaves it, so that it never shows a text that is
/// no value. The Return key commits what was typed. The typed text stays while the window is inactive or a menu is
/// open, unless the focus then comes back to another widget. User-interface thread.
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
    /// Restores the remembered text, now or when the focus comes back to another widget.
    void focusOutEvent(QFocusEvent* event) override;

private:
    void leave();

    QString remembered_;
    // Connected while the window is inactive or a menu is open.
    QMetaObject::Connection focusChanged_;
};

} // namespace Kolt
