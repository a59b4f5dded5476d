#include <parameters/rows/AccessibleFileButton.hpp>

namespace Talo {

AccessibleFileButton::AccessibleFileButton(QPushButton& button, FileButtonText* text)
    : QAccessibleWidget(&button, QAccessible::Button), button_(button), text_(text) {}

void AccessibleFileButton::attach(QPushButton& button, FileButtonText* text) {
    // Qt makes one with the button, and keeps it.
    if (auto* const known = QAccessible::queryAccessibleInterface(&button))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    QAccessible::registerAccessibleInterface(new AccessibleFileButton(button, text));
}

QString AccessibleFileButton::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value && text_ ? text_->name() : QAccessibleWidget::text(kind);
}

QStringList AccessibleFileButton::actionNames() const {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void AccessibleFileButton::doAction(QString const& name) {
    if (name == pressAction())
        button_.click();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace Talo
