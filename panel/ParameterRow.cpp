#include <lattice/UndoHistory.hpp>
#include <panel/KeyboardChoice.hpp>
#include <panel/KeyboardPress.hpp>
#include <panel/Look.hpp>
#include <panel/MissingEditor.hpp>
#include <panel/network/ValueFormat.hpp>
#include <panel/ParameterRow.hpp>
#include <panel/WheelGuard.hpp>
#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLayoutItem>
#include <QPushButton>

namespace Panel {

namespace {

// Editors that are higher have their name beside their first line.
constexpr int highestCentredEditor = 100;

// In characters.
constexpr int leastEditorWidth = 30;

// In pixels, from the name.
constexpr int markerDistance = 2;

QString lastPart(QString const& name) {
    return name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
}

} // namespace

ParameterRow::ParameterRow(Kolt::ParameterPtr const& parameter, PoolSource& pools, QWidget* parent)
    : QWidget(parent),
      parameterName_(QString::fromStdString(parameter->Name())),
      parameter_(parameter),
      pools_(pools),
      names_(new QWidget(this)),
      nameLabel_(new QLabel(names_)),
      marker_(new DefaultMarker(parameter, pools, names_)),
      noteLabel_(new QLabel(names_)),
      rawValue_(new RawValue(parameter, pools, this)),
      layout_(new QHBoxLayout(this)) {
    // A label with a buddy takes an ampersand for the sign of a shortcut.
    nameLabel_->setText(lastPart(parameterName_).replace(QLatin1Char('&'), QLatin1String("&&")));
    nameLabel_->setTextFormat(Qt::PlainText);
    noteLabel_->setTextFormat(Qt::PlainText);
    auto noteFont = noteLabel_->font();
    if (noteFont.pointSizeF() > 0)
        noteFont.setPointSizeF(noteFont.pointSizeF() * 0.85);
    noteLabel_->setFont(noteFont);
    showMuted(*noteLabel_);
    alignWithLayout(*nameLabel_);
    alignWithLayout(*noteLabel_);

    auto* const names = new QVBoxLayout(names_);
    names->setContentsMargins(0, 4, 0, 4);
    names->setSpacing(0);
    auto* const firstLine = new QHBoxLayout;
    firstLine->setSpacing(markerDistance);
    firstLine->addWidget(nameLabel_);
    firstLine->addWidget(marker_);
    firstLine->addStretch(1);
    names->addLayout(firstLine);
    names->addWidget(noteLabel_);
    connect(marker_, &DefaultMarker::clicked, this, &ParameterRow::resetToDefault);

    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(12);
    layout_->addWidget(names_);
    layout_->addWidget(rawValue_);
    rawValue_->hide();
    showNote();
}

ParameterRow::~ParameterRow() = default;

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
    if (editor_.widget && isEdited(*parameter))
        recorder_ = Kolt::EditRecorder::watch(parameter);
    if (!editor_.widget)
        editor_.widget = new MissingEditor(*parameter, this);
    new WheelGuard(editor_.widget);
    // A handle that cannot be moved and a number that is cut off help nobody.
    editor_.widget->setMinimumWidth(
        qMax(editor_.widget->minimumSizeHint().width(), leastEditorWidth * fontMetrics().averageCharWidth()));
    layout_->insertWidget(1, editor_.widget, 1);
    editor_.widget->show();
    bool const centred = editor_.widget->sizeHint().height() <= highestCentredEditor;
    auto const vertical = centred ? Qt::AlignVCenter : Qt::AlignTop;
    layout_->setAlignment(names_, Qt::AlignLeft | vertical);
    layout_->setAlignment(rawValue_, Qt::AlignLeft | vertical);
    // One that cannot fill the column stands at its left end.
    if (layout_->itemAt(1)->maximumSize().width() < QLAYOUTSIZE_MAX)
        layout_->setAlignment(editor_.widget, Qt::AlignLeft | Qt::AlignVCenter);
    nameEditor();
    describeChoice();
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
    rawValue_->refresh();
    showDefault();
    showNote();
}

void ParameterRow::showDefault() {
    marker_->refresh();
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
    rawValue_->setVisible(shown);
}

void ParameterRow::setNameWidth(int width) {
    names_->setFixedWidth(width);
}

int ParameterRow::nameWidth() const {
    return qMax(nameLabel_->sizeHint().width() + markerDistance + marker_->sizeHint().width(),
                noteLabel_->isHidden() ? 0 : noteLabel_->sizeHint().width());
}

void ParameterRow::nameEditor() {
    nameLabel_->setBuddy(editor_.widget);
    auto const name = lastPart(parameterName_);
    QWidget* firstControl = nullptr;
    auto const controls = editor_.widget->findChildren<QWidget*>();
    for (auto* const control : controls) {
        // What is in a dialog of the editor names itself.
        if (control->window() != editor_.widget->window() || control->focusPolicy() == Qt::NoFocus)
            continue;
        if (!firstControl)
            firstControl = control;
        if (control->accessibleName().isEmpty())
            control->setAccessibleName(name);
        // Many a button acts when the mouse presses it, and many a list takes a choice when the mouse lets go.
        if (qobject_cast<QPushButton*>(control))
            new KeyboardPress(control);
        else if (auto* const list = qobject_cast<QAbstractItemView*>(control))
            new KeyboardChoice(list);
    }
    if (editor_.widget->accessibleName().isEmpty())
        editor_.widget->setAccessibleName(name);
    // Whoever gives the focus to the editor means its first control.
    if (firstControl && editor_.widget->focusPolicy() == Qt::NoFocus && !editor_.widget->focusProxy())
        editor_.widget->setFocusProxy(firstControl);
    if (!firstControl && editor_.widget->focusPolicy() == Qt::NoFocus && recorder_)
        new KeyboardPress(editor_.widget);
}

void ParameterRow::describeChoice() {
    auto const parameter = parameter_.strong();
    auto const wanted = parameter->creationPreferences() ? parameter->creationPreferences()->names()
                                                         : Kolt::VCreationPreferences::Names();
    nameLabel_->setToolTip(
        QStringLiteral("<p><b>%1</b></p><p>%2<br>%3</p><p>%4</p>")
            .arg(parameterName_.toHtmlEscaped(),
                 tr("Type: %1").arg(QString::fromStdString(parameter->declaredType())).toHtmlEscaped(),
                 tr("Preferences: %1").arg(QString::fromStdString(Kolt::preferenceText(wanted))).toHtmlEscaped(),
                 tr("Editor: %1").arg(QString::fromStdString(editor_.choice.explanation)).toHtmlEscaped()));
}

void ParameterRow::showNote() {
    QString note;
    auto const parameter = parameter_.strong();
    if (!parameter)
        note = tr("was removed");
    else if (parameter->keepsValuesPerPool())
        note = pools_.pool() ? tr("in pool %1").arg(QString::fromStdString(pools_.pool()->Name())) : tr("no pool");
    noteLabel_->setText(note);
    noteLabel_->setVisible(!note.isEmpty());
}

} // namespace Panel
