#pragma once

#include <parameters/commands/ParameterFilter.hpp>
#include <QAction>
#include <QLineEdit>

namespace Panel {

/// The field for the words of the filter, with what belongs beside it. Escape clears it, Return asks for the first
/// parameter that was found. User-interface thread.
class FilterField : public QLineEdit {
    Q_OBJECT

public:
    explicit FilterField(QWidget* parent = nullptr);
    ~FilterField() override;

    /// Asks for the field; what shows it gives it the focus.
    QAction* findAction() const { return findAction_; }
    /// Whether only parameters are wanted whose value differs from the default; checkable.
    QAction* onlyChangedAction() const { return onlyChanged_; }
    /// The words, and whether only changes are wanted.
    Talo::ParameterFilter filter() const { return Talo::ParameterFilter(text(), onlyChanged_->isChecked()); }
    /// Wants all parameters again.
    void reset();

signals:
    /// Other parameters are wanted.
    void filterChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setWidth();

    QAction* const findAction_;
    QAction* const onlyChanged_;
};

} // namespace Panel
