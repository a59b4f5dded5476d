#include <parameters/rows/UnenteredMark.hpp>

#include <QAction>
#include <QKeyEvent>
#include <QStyle>

namespace Talo {

UnenteredMark* UnenteredMark::makeFor(QWidget& editor, Kolt::ParameterPtr const& parameter,
                                      PoolSourceRef const& pools) {
    auto* const field = qobject_cast<QLineEdit*>(&editor);
    return field && !field->inputMask().isEmpty() ? new UnenteredMark(*field, parameter, pools) : nullptr;
}

UnenteredMark::UnenteredMark(QLineEdit& field, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools)
    : QObject(&field), field_(field), parameter_(parameter), pools_(pools) {
    field.installEventFilter(this);
    connect(&field, &QLineEdit::textChanged, this, &UnenteredMark::removeIfEntered);
}

UnenteredMark::~UnenteredMark() = default;

bool UnenteredMark::event(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && sign_) {
        explain();
        emit changed();
    }
    return QObject::event(event);
}

bool UnenteredMark::eventFilter(QObject* watched, QEvent* event) {
    auto const isReturn = [&] {
        int const key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter;
    };
    // The field itself takes over a complete text only.
    if (event->type() == QEvent::FocusOut || (event->type() == QEvent::KeyPress && isReturn()))
        refresh();
    return QObject::eventFilter(watched, event);
}

QString UnenteredMark::heldText() const {
    auto const parameter = parameter_.strong();
    return parameter ? QString::fromStdString(parameter->effectiveValue(pools_.pool())->Text()) : QString();
}

bool UnenteredMark::isUnentered(QString const& held) const {
    // A text that the mask does not fit is shown as far as it does.
    QLineEdit shown;
    shown.setInputMask(field_.inputMask());
    shown.setText(held);
    return !field_.hasAcceptableInput() && field_.text() != shown.text();
}

void UnenteredMark::refresh() {
    if (sign_ || !isUnentered(heldText()))
        return;
    toolTip_ = field_.toolTip();
    sign_ = field_.addAction(field_.style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
    sign_->setObjectName(QStringLiteral("unentered"));
    explain();
}

void UnenteredMark::explain() {
    auto const held = heldText();
    auto const reason = held.isEmpty()
                            ? tr("The text is incomplete, so it was not entered. The value is still empty.")
                            : tr("The text is incomplete, so it was not entered. The value is still %1.").arg(held);
    sign_->setToolTip(reason);
    field_.setToolTip(reason);
    emit changed();
}

void UnenteredMark::removeIfEntered() {
    if (!sign_ || isUnentered(heldText()))
        return;
    delete sign_;
    sign_ = nullptr;
    field_.setToolTip(toolTip_);
    emit changed();
}

} // namespace Talo
