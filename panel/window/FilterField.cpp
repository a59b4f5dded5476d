#include <panel/window/FilterField.hpp>

#include <QEvent>
#include <QKeyEvent>

namespace Panel {

FilterField::FilterField(QWidget* parent)
    : QLineEdit(parent),
      findAction_(new QAction(tr("&Find a parameter"), this)),
      onlyChanged_(new QAction(tr("Only changed"), this)) {
    setObjectName(QStringLiteral("filter"));
    setPlaceholderText(tr("Filter by name, object or value"));
    setAccessibleName(tr("Filter"));
    setToolTip(tr("Shows the parameters whose name, label, help, object, kind or value has all of these words"));
    setClearButtonEnabled(true);
    setWidth();
    findAction_->setObjectName(QStringLiteral("find"));
    findAction_->setShortcut(QKeySequence::Find);
    onlyChanged_->setObjectName(QStringLiteral("onlyChanged"));
    onlyChanged_->setCheckable(true);
    onlyChanged_->setToolTip(tr("Shows only the parameters whose value differs from the default"));
    connect(this, &QLineEdit::textChanged, this, &FilterField::filterChanged);
    connect(onlyChanged_, &QAction::toggled, this, &FilterField::filterChanged);
}

FilterField::~FilterField() = default;

void FilterField::reset() {
    clear();
    onlyChanged_->setChecked(false);
}

void FilterField::setWidth() {
    // Wide enough for the placeholder text, beside the button.
    setMaximumWidth(fontMetrics().horizontalAdvance(placeholderText()) + 3 * fontMetrics().height());
}

void FilterField::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setWidth();
}

void FilterField::keyPressEvent(QKeyEvent* event) {
    // No shortcut: Escape as a shortcut cancels the computing that goes on.
    if (event->key() == Qt::Key_Escape)
        clear();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace Panel
