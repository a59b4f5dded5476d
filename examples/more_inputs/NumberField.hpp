#pragma once

#include "NumberScale.hpp"

#include <QAbstractSpinBox>
#include <QLabel>

namespace MoreInputs {

/// A field for a number. A drag on the number changes it, with Shift finely and with Ctrl coarsely; so do arrow keys
/// and the wheel. A typed text is a formula (Formula); Return and leaving the field enter it, Escape takes it back. A
/// text that cannot be entered stays, with a mark and the reason in the tool tip. User-interface thread.
class NumberField : public QAbstractSpinBox {
    Q_OBJECT
    // For screen readers, which read them when they are asked to. clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(double value READ value WRITE enter)
    Q_PROPERTY(double minimum READ minimum)
    Q_PROPERTY(double maximum READ maximum)

public:
    /// `parent` owns the field, which shows 0 first.
    explicit NumberField(QWidget* parent);
    ~NumberField() override;

    /// The number that was shown last.
    double value() const { return value_; }
    double minimum() const { return scale_.minimum; }
    double maximum() const { return scale_.maximum; }
    /// Bounds, steps and decimals from now on.
    void setScale(NumberScale const& scale);
    /// What is shown behind the number; may also be typed.
    void setUnit(QString const& unit);
    /// Shows a number. A text that is being typed stays.
    void showNumber(double number);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void stepBy(int steps) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user chose a number within the bounds. The field shows it already; a receiver may delete the field.
    void edited(double number);

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isTyping() const;
    /// Enters the typed text, or says why it cannot be entered. A receiver may delete the field.
    void enterText();
    void enter(double number);
    void takeTextBack();
    /// Shows why the text cannot be entered; empty: all is well.
    void showError(QString const& error);
    QString refusal(double number) const;
    // Parts of the drag.
    void press(QMouseEvent const& event);
    void beginDrag(QMouseEvent const& event);
    void drag(QMouseEvent const& event);
    void placeUnit();

    NumberScale scale_;
    double value_ = 0;
    // The text of the value.
    QString shown_;
    QString unit_;
    QLabel* const unitLabel_;
    QAction* errorMark_ = nullptr;
    // Whether the mouse has just brought the focus.
    bool hasJustComeIn_ = false;

    // From which place and number a drag goes on; it starts anew when Shift or Ctrl changes.
    bool isPressed_ = false;
    bool isDragging_ = false;
    int dragPlace_ = 0;
    double dragNumber_ = 0;
    double dragFactor_ = 1;
};

} // namespace MoreInputs
