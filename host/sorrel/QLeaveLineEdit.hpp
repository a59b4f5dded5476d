#pragma once

#include <functional>
#include <QLineEdit>
#include <tessera/Export.hpp>

namespace Kolt {

/// A line edit that commits a typed text when the focus leaves it, as the Return key does, so that nothing typed is
/// lost (QLineEdit::returnPressed). A text that is not acceptable, and one that its receiver does not show, gives way
/// to the text last shown, so that the field never shows a text that is no value. Escape restores that text, too. The
/// typed text stays while the window is inactive or a menu is open, unless the focus then comes back to another widget.
/// A dropped text is committed at once.
///
/// In a field of numbers (QIntValidator, QDoubleValidator) a text with separators is refused, and a typed comma or
/// point is never dropped, because the digits after it would make another number. A comma becomes a point if the number
/// may have decimals, the text has no separator yet, and the locale has a decimal comma: the one that was set for the
/// field or a widget around it, else the default of the program. User-interface thread.
class TALO_EXPORT QLeaveLineEdit : public QLineEdit {
    Q_OBJECT

public:
    /// Writes the value whose text is shown, without a detour through the text. False if it cannot: then the text is
    /// committed.
    using ValueWriter = std::function<bool()>;

    /// An empty line that remembers the empty text.
    explicit QLeaveLineEdit(QWidget* parent = nullptr);
    ~QLeaveLineEdit() override;

    /// Shows a text and remembers it as the one to restore.
    void showText(QString const& text);
    /// Remembers a text as the one to restore, and shows it unless another one is being typed. That one stays until it
    /// is committed or restored. Returns whether the text is shown.
    bool updateText(QString const& text);
    /// The text last shown; empty at first.
    QString const& rememberedText() const { return remembered_; }

    /// What Return does while the remembered text is shown, which may be rounded. Empty, as at first: it commits the
    /// text.
    void setValueWriter(ValueWriter writer);

    /// Marks the field in its upper corner, as for a value that is unusual. What it means is for the tool tip to say.
    void setMarked(bool marked);
    /// Whether the field is marked; false at first.
    bool isMarked() const { return marked_; }

signals:
    /// A typed text was not taken over: it is not acceptable, or its receiver does not show it. After Return it is
    /// still shown.
    void refused(QString const& text);

protected:
    /// Commits or restores, now or when the focus comes back to another widget. A receiver may delete the field.
    void focusOutEvent(QFocusEvent* event) override;
    /// Escape restores the remembered text if another one was typed. A receiver may delete the field.
    void keyPressEvent(QKeyEvent* event) override;
    /// Commits or restores. A receiver may delete the field.
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void leave();
    void enter();
    /// Handles a comma or a point in a field of numbers; false for every other key.
    bool typeSeparator(QKeyEvent const& event);

    QString remembered_;
    ValueWriter valueWriter_;
    bool marked_ = false;
    // Connected while the window is inactive or a menu is open.
    QMetaObject::Connection focusChanged_;
};

} // namespace Kolt
