#include <parameters/rows/ParameterRow.hpp>

#include <lattice/UndoHistory.hpp>
#include <parameters/commands/RowCommands.hpp>
#include <parameters/commands/UndoText.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/RefusedNumber.hpp>
#include <parameters/rows/RowFaults.hpp>
#include <parameters/rows/RowFit.hpp>
#include <parameters/rows/RowTexts.hpp>
#include <parameters/rows/UnenteredMark.hpp>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMenu>
#include <QThread>
#include <QToolTip>
#include <sorrel/QLeaveLineEdit.hpp>

namespace Talo {

namespace {

// In pixels. Higher editors have their name beside their first line.
constexpr int highestCentredEditor = 100;

// Shares of what a form has to spare: the unit stays behind an editor that cannot grow, and leaves the room to others.
constexpr int editorShare = 1000;
constexpr int unitShare = 1;

} // namespace

ParameterRow::ParameterRow(QString const& objectName, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools,
                           RowListener& listener, QWidget* parent)
    : QWidget(parent),
      objectName_(objectName),
      parameterName_(QString::fromStdString(parameter->Name())),
      parameter_(parameter),
      pools_(pools),
      listener_(listener),
      names_(new RowName(*this)),
      layout_(new QHBoxLayout(this)),
      cell_(parameter, pools) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(12);
    layout_->addItem(names_);
    // What people do not edit has no default, and workers may change it often.
    if (!parameter->isEdited())
        removal_ = std::make_unique<RemovalListener>(parameter, [this] { onListGone(); });
    showDescription();
    showNote();
    showDefault();
}

ParameterRow::~ParameterRow() {
    stopNotifications();
    afterEditor_.reset();
    // While the row still lives: a field of the editor loses the focus and may refuse a half-typed number.
    delete cell_.widget();
}

ParameterRow* ParameterRow::rowOf(QWidget* widget) {
    auto* row = qobject_cast<ParameterRow*>(widget);
    for (; widget && !row; row = qobject_cast<ParameterRow*>(widget))
        widget = widget->parentWidget();
    return row;
}

Kolt::UndoHistory& ParameterRow::history() const {
    auto const parameter = parameter_.strong();
    return parameter ? parameter->history() : Kolt::UndoHistory::theHistory();
}

void ParameterRow::showFault(QString const& sentence) {
    if (!cell_.widget() || cell_.isPlaceholder())
        return;
    cell_.setFault(sentence);
    reopenEditor();
}

void ParameterRow::follow() {
    auto const parameter = parameter_.strong();
    if (removal_ || !parameter || std::exchange(isFollowing_, true))
        return;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    // The editor may have changed the value as it was made.
    showDefault();
}

void ParameterRow::openEditor() {
    isOpen_ = true;
    showFaultsInRows();
    if (cell_.widget() || cover_)
        return;
    auto const parameter = parameter_.strong();
    auto* const editor = cell_.open(this);
    if (!editor) {
        showNote();
        return;
    }
    bool const isEdited = !cell_.isPlaceholder() && parameter->isEdited();
    if (isEdited)
        recorder_ = Kolt::EditRecorder::watch(parameter);
    cell_.removeMargins();
    if (auto* const text = isEdited ? nullptr : qobject_cast<QLabel*>(editor))
        text->setWordWrap(true);
    cell_.limitWidth(QWIDGETSIZE_MAX);
    layout_->insertWidget(1, editor, editorShare);
    editor->show();
    names_->label()->setBuddy(editor);
    cell_.nameControls(spokenName(), isEdited);
    showDescription();
    if (isEdited)
        watchEditor(parameter);
    updateAccessibility();
    if (rawValue_)
        rawValue_->setExplanation(creatorExplanation(*parameter, cell_));
    connectNumberFields();
}

void ParameterRow::connectNumberFields() {
    auto const fields = cell_.widget()->findChildren<Kolt::QLeaveLineEdit*>();
    for (auto* const field : fields)
        connect(field, &Kolt::QLeaveLineEdit::refused, this,
                [this, field](QString const& text) { refuse(refusedNumberText(parameterName_, text, *field)); });
    // Their tool tips follow the value.
    if (fields.isEmpty())
        return;
    cell_.widget()->installEventFilter(this);
    for (auto* const control : cell_.controls())
        control->installEventFilter(this);
}

bool ParameterRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTipChange)
        cell_.describe(*static_cast<QWidget*>(watched));
    return QWidget::eventFilter(watched, event);
}

void ParameterRow::watchEditor(Kolt::ParameterPtr const& parameter) {
    extension_ = EditorExtension::makeFor(cell_.editor(), parameter, pools_);
    if (auto const* const mark = UnenteredMark::makeFor(*cell_.widget(), parameter, pools_))
        connect(mark, &UnenteredMark::changed, this, &ParameterRow::updateAccessibility);
    // After the editor, so that it finds what the editor shows.
    isAfterEditor_ = !isFollowing_ && !removal_;
    if (isAfterEditor_)
        follow();
    else
        afterEditor_ = std::make_unique<ChangeListener>(parameter, [this] { checkEditor(); });
}

void ParameterRow::checkEditor() {
    if (!cell_.canShowValue())
        reopenEditor();
    if (!extension_)
        return;
    extension_->refresh();
    updateAccessibility();
}

void ParameterRow::reopenEditor() {
    auto const* const focus = QApplication::focusWidget();
    bool const hadFocus = focus && cell_.widget()->isAncestorOf(focus);
    closeEditor();
    openEditor();
    if (hadFocus)
        cell_.widget()->setFocus();
    listener_.onEditorReplaced(*this);
}

void ParameterRow::alignEditor() {
    auto* const editor = cell_.widget();
    bool const centred = editor->sizeHint().height() <= highestCentredEditor;
    vertical_ = centred ? Qt::AlignVCenter : Qt::AlignTop;
    names_->setAlignment(Qt::AlignLeft | vertical_);
    if (rawValue_)
        layout_->setAlignment(rawValue_, Qt::AlignLeft | vertical_);
    if (unitLabel_)
        layout_->setAlignment(unitLabel_, Qt::AlignLeft | vertical_);
    // An editor that cannot fill the column is at its left end, with the unit behind it.
    layout_->setAlignment(editor, {});
    if (layout_->itemAt(1)->maximumSize().width() < QLAYOUTSIZE_MAX)
        layout_->setAlignment(editor, Qt::AlignVCenter | (unitLabel_ ? Qt::Alignment() : Qt::AlignLeft));
    // The layout has just cached its width without this.
    editor->updateGeometry();
    // A text that is only displayed begins beside its name, too.
    if (auto* const label = qobject_cast<QLabel*>(editor))
        alignWithLayout(*label);
}

void ParameterRow::showDescription() {
    auto const parameter = parameter_.strong();
    if (!parameter)
        return;
    ParameterDescription const description(*parameter);
    names_->setName(description.label);
    if (!cell_.widget())
        return;
    // Some editors of plug-ins show it within themselves.
    bool const editorShowsUnit = cell_.widget()->property("showsUnit").toBool();
    showUnit(editorShowsUnit ? QString() : description.unit);
    alignEditor();
    cell_.widget()->setEnabled(isEditorEnabled_ && !description.isReadOnly);
}

void ParameterRow::showUnit(QString const& unit) {
    if (unit.isEmpty()) {
        delete std::exchange(unitLabel_, nullptr);
        return;
    }
    if (!unitLabel_) {
        unitLabel_ = makeUnitLabel();
        layout_->insertWidget(2, unitLabel_, unitShare);
    }
    unitLabel_->setText(unit);
}

void ParameterRow::setEditorEnabled(bool enabled) {
    if (std::exchange(isEditorEnabled_, enabled) != enabled)
        showDescription();
}

void ParameterRow::setCover(QWidget* cover) {
    if (cover == cover_)
        return;
    if (cover_) {
        cover_->hide();
        cover_->deleteLater();
    }
    bool const wasOpen = isOpen_;
    cover_ = cover;
    if (cover) {
        closeEditor();
        layout_->insertWidget(1, cover, editorShare, Qt::AlignLeft);
        names_->label()->setBuddy(cover);
        cover->show();
    } else if (wasOpen) {
        openEditor();
        listener_.onEditorReplaced(*this);
    }
    isOpen_ = wasOpen;
}

void ParameterRow::closeEditor() {
    isOpen_ = false;
    isAfterEditor_ = false;
    afterEditor_.reset();
    delete std::exchange(unitLabel_, nullptr);
    cell_.close();
    dropScroller(scroller_);
    recorder_.reset();
}

void ParameterRow::showPool() {
    if (cell_.canShowValue())
        cell_.showPool();
    else
        reopenEditor();
    if (extension_)
        extension_->refresh();
    if (rawValue_)
        rawValue_->refresh();
    showDefault();
    showNote();
    updateAccessibility();
    emit poolShown();
}

void ParameterRow::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const* properties) {
    auto const show = properties ? &ParameterRow::showDescription : &ParameterRow::showDefault;
    // Without an editor nothing keeps a worker from changing the value.
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
        return;
    }
    (this->*show)();
    if (!properties && isAfterEditor_)
        checkEditor();
}

void ParameterRow::showHelp() {
    if (auto const parameter = parameter_.strong())
        listener_.onHelpRequested(parameter);
}

void ParameterRow::onListGone() {
    // Later, when the parameter is gone for all who refer to it.
    QMetaObject::invokeMethod(this, &ParameterRow::checkParameter, Qt::QueuedConnection);
}

void ParameterRow::checkParameter() {
    if (parameter_.alive())
        return;
    showNote();
    showDefault();
}

void ParameterRow::setRawValueShown(bool shown) {
    if (shown && !rawValue_) {
        rawValue_ = new RawValueLabel(parameter_.strong(), pools_, this);
        layout_->addWidget(rawValue_, 0, Qt::AlignLeft | vertical_);
        if (auto const parameter = parameter_.strong(); parameter && cell_.widget())
            rawValue_->setExplanation(creatorExplanation(*parameter, cell_));
    }
    if (rawValue_)
        rawValue_->setVisible(shown);
}

void ParameterRow::setComponent(ParameterVector const& vector, int component, bool isHeaded) {
    vector_.assign(vector.members.begin(), vector.members.end());
    auto const& name = vector.components.at(component);
    vectorName_ = vector.name;
    componentName_ = name;
    names_->setComponent(name, isHeaded ? vector.name : QString());
    showNote();
}

int ParameterRow::leastWidth() const {
    return cell_.widget() ? leastRowWidth(cell_, scroller_, *layout_) - names_->vectorWidth() : 0;
}

void ParameterRow::fitInto(int width) {
    fitEditor(cell_, scroller_, *layout_, width);
}

QSize ParameterRow::sizeHint() const {
    return QWidget::sizeHint().expandedTo({width(), 0});
}

bool ParameterRow::takeSizeChange() {
    auto const needs = RowNeeds::of(*this, cell_.widget(), nameWidth());
    return std::exchange(needs_, needs) != needs;
}

bool ParameterRow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        wasLaidOut_ = true;
        // A row whose editor had it adjust its size was laid out before this event, and its form has not heard of it.
        updateGeometry();
    }
    if (event->type() != QEvent::ToolTip || !names_->geometry().contains(static_cast<QHelpEvent*>(event)->pos()))
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(), this, names_->geometry());
    return true;
}

void ParameterRow::contextMenuEvent(QContextMenuEvent* event) {
    // A part of the row with a menu of its own accepts the event before.
    auto* const menu = makeRowMenu(*this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
    event->accept();
}

} // namespace Talo
