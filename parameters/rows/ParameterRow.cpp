#include <algorithm>
#include <lattice/UndoHistory.hpp>
#include <network/ValueFormat.hpp>
#include <parameters/commands/UndoText.hpp>
#include <parameters/input/KeyboardChoice.hpp>
#include <parameters/input/KeyboardPress.hpp>
#include <parameters/input/WheelGuard.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/PlaceholderEditor.hpp>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLayoutItem>
#include <QPushButton>
#include <QToolTip>

namespace Talo {

namespace {

// Editors that are higher have their name beside their first line.
constexpr int highestCentredEditor = 100;

// In characters.
constexpr int leastEditorWidth = 30;

// In pixels, from the name.
constexpr int markerDistance = 2;

/// The width beyond which the controls of an editor only move apart.
int usefulWidth(QLayout const& layout) {
    if (!qobject_cast<QHBoxLayout const*>(&layout))
        return layout.maximumSize().width();
    int width = layout.contentsMargins().left() + layout.contentsMargins().right() +
                qMax(0, layout.count() - 1) * qMax(0, layout.spacing());
    for (int index = 0; index < layout.count(); ++index) {
        auto const* const item = layout.itemAt(index);
        // One that is aligned leaves the rest of its room empty.
        bool const isAligned = item->alignment() & Qt::AlignHorizontal_Mask;
        width += isAligned ? item->sizeHint().width() : item->maximumSize().width();
    }
    return qMin(width, QLAYOUTSIZE_MAX);
}

/// What a control says of itself; empty where it says nothing.
QString captionOf(QWidget const& control) {
    auto const* const button = qobject_cast<QAbstractButton const*>(&control);
    if (!button)
        return {};
    // One ampersand marks the key, two are one.
    auto caption = button->text();
    for (int place = 0; (place = caption.indexOf(QLatin1Char('&'), place)) >= 0; ++place)
        caption.remove(place, 1);
    return caption;
}

QString lastPart(QString const& name) {
    return name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
}

} // namespace

ParameterRow::ParameterRow(QString const& objectName, Kolt::ParameterPtr const& parameter, PoolSource& pools,
                           QWidget* parent)
    : QWidget(parent),
      objectName_(objectName),
      parameterName_(QString::fromStdString(parameter->Name())),
      parameter_(parameter),
      pools_(pools),
      names_(new QWidget(this)),
      nameLabel_(new QLabel(names_)),
      layout_(new QHBoxLayout(this)) {
    // A label with a buddy takes an ampersand for the sign of a shortcut.
    nameLabel_->setText(lastPart(parameterName_).replace(QLatin1Char('&'), QLatin1String("&&")));
    nameLabel_->setTextFormat(Qt::PlainText);
    alignWithLayout(*nameLabel_);

    auto* const names = new QVBoxLayout(names_);
    names->setContentsMargins(0, 4, 0, 4);
    names->setSpacing(0);
    names->addWidget(nameLabel_);

    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(12);
    layout_->addWidget(names_);
    if (parameter->defaults())
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    showNote();
    showDefault();
}

ParameterRow::~ParameterRow() {
    stopNotifications();
}

ParameterRow* ParameterRow::rowOf(QWidget* widget) {
    auto* row = qobject_cast<ParameterRow*>(widget);
    for (; widget && !row; row = qobject_cast<ParameterRow*>(widget))
        widget = widget->parentWidget();
    return row;
}

void ParameterRow::openEditor() {
    if (editor_.widget)
        return;
    auto const parameter = parameter_.strong();
    if (!parameter) {
        showNote();
        return;
    }
    editor_ = Kolt::makeEditor(parameter, this, &pools_);
    if (editor_.widget && parameter->isEdited())
        recorder_ = Kolt::EditRecorder::watch(parameter);
    if (!editor_.widget)
        editor_.widget = new PlaceholderEditor(*parameter, this);
    new WheelGuard(editor_.widget);
    int const leastWidth = editor_.widget->minimumSizeHint().width();
    auto const* const controls = editor_.widget->layout();
    int const mostWidth = controls ? qMax(leastWidth, usefulWidth(*controls)) : QLAYOUTSIZE_MAX;
    // A handle that cannot be moved and a number that is cut off help nobody.
    editor_.widget->setMinimumWidth(
        qMin(mostWidth, qMax(leastWidth, leastEditorWidth * fontMetrics().averageCharWidth())));
    if (mostWidth < QLAYOUTSIZE_MAX)
        editor_.widget->setMaximumWidth(mostWidth);
    layout_->insertWidget(1, editor_.widget, 1);
    editor_.widget->show();
    bool const centred = editor_.widget->sizeHint().height() <= highestCentredEditor;
    vertical_ = centred ? Qt::AlignVCenter : Qt::AlignTop;
    layout_->setAlignment(names_, Qt::AlignLeft | vertical_);
    if (rawValue_)
        layout_->setAlignment(rawValue_, Qt::AlignLeft | vertical_);
    // One that cannot fill the column stands at its left end.
    if (layout_->itemAt(1)->maximumSize().width() < QLAYOUTSIZE_MAX) {
        layout_->setAlignment(editor_.widget, Qt::AlignLeft | Qt::AlignVCenter);
        // The layout has just remembered how wide it is without this.
        editor_.widget->updateGeometry();
    }
    // What an editor only shows stands beside its name, too.
    if (auto* const label = qobject_cast<QLabel*>(editor_.widget))
        alignWithLayout(*label);
    nameEditor();
}

void ParameterRow::closeEditor() {
    if (!editor_.widget)
        return;
    editor_.widget->hide();
    editor_.widget->deleteLater();
    editor_ = {};
    recorder_.reset();
}

void ParameterRow::showPool() {
    Kolt::showPoolValue(editor_, parameter_.strong(), &pools_);
    if (rawValue_)
        rawValue_->refresh();
    showDefault();
    showNote();
    updateAccessibility();
}

void ParameterRow::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const* properties) {
    if (!properties)
        showDefault();
}

void ParameterRow::showDefault() {
    auto const parameter = parameter_.strong();
    auto const* const defaults = parameter ? parameter->defaults() : nullptr;
    if (!defaults || defaults->isEffectiveIn(*parameter, pool())) {
        if (marker_)
            marker_->hide();
        return;
    }
    if (!marker_) {
        marker_ = new ModifiedIndicator(lastPart(parameterName_), names_);
        auto* const names = static_cast<QVBoxLayout*>(names_->layout());
        names->removeWidget(nameLabel_);
        auto* const firstLine = new QHBoxLayout;
        firstLine->setSpacing(markerDistance);
        firstLine->addWidget(nameLabel_);
        firstLine->addWidget(marker_);
        firstLine->addStretch(1);
        names->insertLayout(0, firstLine);
        connect(marker_, &ModifiedIndicator::clicked, this, &ParameterRow::resetToDefault);
    }
    marker_->setDefault(valueText(*defaults->in(pool()).value));
    marker_->show();
}

bool ParameterRow::resetToDefault() {
    auto const parameter = parameter_.strong();
    auto const* const defaults = parameter ? parameter->defaults() : nullptr;
    auto const chosen = pool();
    return defaults && Kolt::UndoHistory::theHistory().store(parameter, chosen, defaults->in(chosen));
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
    }
    if (rawValue_)
        rawValue_->setVisible(shown);
}

void ParameterRow::setNameWidth(int width) {
    names_->setFixedWidth(width);
}

int ParameterRow::nameWidth() const {
    return qMax(nameLabel_->sizeHint().width() + markerDistance + ModifiedIndicator::side(*nameLabel_),
                note().isEmpty() ? 0 : noteLabel_->sizeHint().width());
}

QSize ParameterRow::sizeHint() const {
    auto const hint = QWidget::sizeHint();
    return {qMax(hint.width(), width()), hint.height()};
}

bool ParameterRow::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !names_->geometry().contains(static_cast<QHelpEvent*>(event)->pos()))
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), description(), names_);
    return true;
}

std::vector<QWidget*> ParameterRow::controls() const {
    std::vector<QWidget*> controls;
    auto const all = editor_.widget->findChildren<QWidget*>();
    // What is in a dialog of the editor names itself.
    std::copy_if(all.begin(), all.end(), std::back_inserter(controls), [this](QWidget const* each) {
        return each->window() == editor_.widget->window() && each->focusPolicy() != Qt::NoFocus;
    });
    return controls;
}

void ParameterRow::nameEditor() {
    nameLabel_->setBuddy(editor_.widget);
    auto const name = lastPart(parameterName_);
    auto named = controls();
    auto* const firstControl = named.empty() ? nullptr : named.front();
    named.push_back(editor_.widget);
    for (auto* const control : named) {
        auto const caption = captionOf(*control);
        if (control->accessibleName().isEmpty())
            control->setAccessibleName(caption.isEmpty() || caption == name ? name : tr("%1: %2").arg(name, caption));
        // Many a button acts when the mouse presses it, and many a list takes a choice when the mouse lets go.
        if (qobject_cast<QPushButton*>(control))
            new KeyboardPress(control);
        else if (auto* const list = qobject_cast<QAbstractItemView*>(control))
            new KeyboardChoice(list);
    }
    // Whoever gives the focus to the editor means its first control.
    if (firstControl && editor_.widget->focusPolicy() == Qt::NoFocus && !editor_.widget->focusProxy())
        editor_.widget->setFocusProxy(firstControl);
    if (!firstControl && editor_.widget->focusPolicy() == Qt::NoFocus && recorder_)
        new KeyboardPress(editor_.widget);
    updateAccessibility();
}

void ParameterRow::updateAccessibility() {
    auto const parameter = parameter_.strong();
    if (!editor_.widget || !parameter)
        return;
    auto const& typeName = parameter->declaredType();
    auto const* const format = ValueFormat::ofType(typeName);
    auto const name = objectName_ + QLatin1Char('.') + parameterName_;
    auto const type = format ? QString::fromLatin1(format->key) : QString::fromStdString(typeName);
    auto const pool = pools_.pool();
    auto const description = !parameter->keepsValuesPerPool() ? tr("%1, type %2").arg(name, type)
                             : pool
                                 ? tr("%1, type %2, in pool %3").arg(name, type, QString::fromStdString(pool->Name()))
                                 : tr("%1, type %2, no pool").arg(name, type);
    auto described = controls();
    described.push_back(editor_.widget);
    for (auto* const control : described) {
        // A description stands in for the tool tip.
        auto const& explanation = control->toolTip();
        control->setAccessibleDescription(explanation.isEmpty() ? description
                                                                : description + QLatin1Char('\n') + explanation);
    }
}

QString ParameterRow::description() const {
    auto const title = QStringLiteral("<p><b>%1</b></p>").arg(parameterName_.toHtmlEscaped());
    auto const parameter = parameter_.strong();
    if (!parameter || !editor_.widget)
        return title;
    auto const wanted = parameter->creationPreferences() ? parameter->creationPreferences()->names()
                                                         : Kolt::VCreationPreferences::Names();
    return title +
           QStringLiteral("<p>%1<br>%2</p><p>%3</p>")
               .arg(tr("Type: %1").arg(QString::fromStdString(parameter->declaredType())).toHtmlEscaped(),
                    tr("Preferences: %1").arg(QString::fromStdString(Kolt::preferenceText(wanted))).toHtmlEscaped(),
                    tr("Editor: %1").arg(QString::fromStdString(editor_.choice.explanation)).toHtmlEscaped());
}

void ParameterRow::showNote() {
    QString note;
    auto const parameter = parameter_.strong();
    if (!parameter)
        note = tr("was removed");
    else if (parameter->keepsValuesPerPool())
        note = pools_.pool() ? tr("in pool %1").arg(QString::fromStdString(pools_.pool()->Name())) : tr("no pool");
    if (note.isEmpty() && !noteLabel_)
        return;
    if (!noteLabel_) {
        noteLabel_ = new MutedLabel(QString(), names_);
        noteLabel_->setTextFormat(Qt::PlainText);
        alignWithLayout(*noteLabel_);
        auto font = noteLabel_->font();
        if (font.pointSizeF() > 0)
            font.setPointSizeF(font.pointSizeF() * 0.85);
        noteLabel_->setFont(font);
        names_->layout()->addWidget(noteLabel_);
    }
    noteLabel_->setText(note);
    noteLabel_->setVisible(!note.isEmpty());
}

} // namespace Talo
