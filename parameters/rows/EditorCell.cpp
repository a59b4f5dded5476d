#include <parameters/rows/EditorCell.hpp>

#include <algorithm>
#include <bramble/EnumSelection.hpp>
#include <lattice/EditedValue.hpp>
#include <parameters/EditorChoice.hpp>
#include <parameters/input/KeyboardChoice.hpp>
#include <parameters/input/KeyboardPress.hpp>
#include <parameters/input/WheelGuard.hpp>
#include <parameters/rows/ButtonCaption.hpp>
#include <parameters/rows/HostTexts.hpp>
#include <parameters/rows/PlaceholderEditor.hpp>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace Talo {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(EditorCell)
};

// In characters. The latter is wide enough to move a handle and to read a number.
constexpr int leastEditorWidth = 4;
constexpr int comfortableWidth = 30;

/// The width beyond which the controls of an editor only move apart.
int usefulWidth(QLayout const& layout) {
    if (!qobject_cast<QHBoxLayout const*>(&layout))
        return layout.maximumSize().width();
    int width = layout.contentsMargins().left() + layout.contentsMargins().right() +
                qMax(0, layout.count() - 1) * qMax(0, layout.spacing());
    for (int index = 0; index < layout.count(); ++index) {
        auto const* const item = layout.itemAt(index);
        // An aligned control leaves the rest of its room empty.
        bool const isAligned = item->alignment() & Qt::AlignHorizontal_Mask;
        width += isAligned ? item->sizeHint().width() : item->maximumSize().width();
    }
    return qMin(width, QLAYOUTSIZE_MAX);
}

/// A button's caption, or the label of a field; empty for other controls.
QString captionOf(QWidget const& editor, QWidget const& control) {
    if (auto const* const button = qobject_cast<QAbstractButton const*>(&control))
        return shownCaption(button->text());
    auto const labels = editor.findChildren<QLabel*>();
    auto const found =
        std::find_if(labels.begin(), labels.end(), [&](auto const* label) { return label->buddy() == &control; });
    return found == labels.end() ? QString() : shownCaption((*found)->text());
}

/// The creator that a person chose for a parameter in a panel around the widget; empty for the usual one.
Kolt::CreatorRef chosenFor(Kolt::VParameter const& parameter, QWidget const* widget) {
    auto const* const choice = EditorChoice::around(widget);
    return choice ? choice->creatorFor(parameter) : Kolt::CreatorRef();
}

/// The names among which an enumeration chooses; null for a value of another type.
Tessera::StrongPtr<Tessera::StringList> namesIn(Kolt::ValuePtr const& value) {
    return Kolt::valueOr(value, Kolt::Enum()).names();
}

/// What the host says of an editor, as a sentence.
QString sentenceOf(QString const& said) {
    auto const text = hostText(said);
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

} // namespace

EditorCell::EditorCell(Kolt::ParameterRef parameter, PoolSourceRef const& pools)
    : parameter_(std::move(parameter)), pools_(pools) {}

EditorCell::~EditorCell() = default;

QWidget* EditorCell::open(QWidget* parent) {
    auto const parameter = parameter_.strong();
    if (editor_.widget || !parameter)
        return editor_.widget;
    names_ = namesIn(parameter->effectiveValue(pools_.pool()));
    chosen_ = chosenFor(*parameter, parent);
    if (fault_.isEmpty())
        editor_ = Kolt::makeEditor(parameter, parent, pools_.source(), chosen_);
    neededType_ = Kolt::missingValueType(*parameter, pools_.pool());
    if (!neededType_.empty()) {
        // What people type into it would be lost.
        auto* const unfit = editor_.widget.data();
        editor_.widget.clear();
        delete unfit;
    }
    isPlaceholder_ = !editor_.widget;
    if (isPlaceholder_)
        editor_.widget = placeholder(*parameter, parent);
    new WheelGuard(editor_.widget);
    return editor_.widget;
}

QWidget* EditorCell::placeholder(Kolt::VParameter const& parameter, QWidget* parent) const {
    if (!fault_.isEmpty())
        return new PlaceholderEditor(sentenceOf(fault_), parent);
    // A creator was chosen and did not make an editor.
    if (neededType_.empty() && editor_.choice.creator.alive())
        return new PlaceholderEditor(sentenceOf(QString::fromStdString(editor_.choice.explanation)), parent);
    return new PlaceholderEditor(parameter, parent, neededType_);
}

void EditorCell::close() {
    if (!editor_.widget)
        return;
    editor_.widget->hide();
    editor_.widget->deleteLater();
    editor_ = {};
    isPlaceholder_ = false;
}

void EditorCell::removeMargins() {
    auto const* const frame = qobject_cast<QFrame*>(editor_.widget);
    bool const isFramed = frame && frame->frameShape() != QFrame::NoFrame;
    auto* const layout = editor_.widget->layout();
    if (layout && !isFramed)
        layout->setContentsMargins(0, 0, 0, 0);
}

void EditorCell::limitWidth(int available) {
    auto& editor = *editor_.widget;
    int const character = editor.fontMetrics().averageCharWidth();
    int const comfortable = qBound(leastEditorWidth * character, available, comfortableWidth * character);
    auto const lists = editor.findChildren<QComboBox*>();
    for (auto* const list : lists)
        list->setMinimumWidth(qMin(comfortable, list->minimumSizeHint().width()));
    int const least = leastWidth();
    auto const* const layout = editor.layout();
    int const most = layout ? qMax(least, usefulWidth(*layout)) : QLAYOUTSIZE_MAX;
    editor.setMinimumWidth(qMin(most, qMax(least, comfortable)));
    if (most < QLAYOUTSIZE_MAX)
        editor.setMaximumWidth(most);
}

int EditorCell::leastWidth() const {
    auto const& editor = *editor_.widget;
    // A file's name is shortened by its button, which has all of it in its tool tip.
    return qobject_cast<QPushButton const*>(&editor) ? 0 : editor.minimumSizeHint().width();
}

std::vector<QWidget*> EditorCell::controls() const {
    std::vector<QWidget*> controls;
    auto const all = editor_.widget->findChildren<QWidget*>();
    std::copy_if(all.begin(), all.end(), std::back_inserter(controls), [this](QWidget const* each) {
        return each->window() == editor_.widget->window() && each->focusPolicy() != Qt::NoFocus;
    });
    return controls;
}

bool EditorCell::canShowValue() const {
    auto const parameter = parameter_.strong();
    if (parameter && editor_.widget &&
        (chosenFor(*parameter, editor_.widget) != chosen_ ||
         Kolt::missingValueType(*parameter, pools_.pool()) != neededType_))
        return false;
    static auto const enumeration = Tessera::Typename(typeid(Kolt::Enum));
    if (!parameter || !editor_.widget || parameter->declaredType() != enumeration)
        return true;
    auto const names = namesIn(parameter->effectiveValue(pools_.pool()));
    if (!Tessera::sameTexts(names.get(), names_.get()))
        return false;
    auto const* const selection = dynamic_cast<Kolt::VEnumSelection const*>(names.get());
    auto const buttons = editor_.widget->findChildren<QRadioButton*>();
    return (selection && selection->selectedNumber() >= 0) ||
           std::none_of(buttons.begin(), buttons.end(), [](auto const* button) { return button->isChecked(); });
}

void EditorCell::showPool() {
    Kolt::showPoolValue(editor_, parameter_.strong(), pools_.source());
}

void EditorCell::nameControls(QString const& name, bool edited) {
    auto& editor = *editor_.widget;
    auto named = controls();
    auto* const firstControl = named.empty() ? nullptr : named.front();
    named.push_back(&editor);
    named_.clear();
    for (auto* const control : named) {
        if (control->accessibleName().isEmpty())
            named_.emplace_back(control);
        // Some buttons react to a mouse press only, some lists commit only on mouse release.
        if (qobject_cast<QPushButton*>(control))
            new KeyboardPress(control);
        else if (auto* const list = qobject_cast<QAbstractItemView*>(control))
            new KeyboardChoice(list);
    }
    renameControls(name);
    if (editor.focusPolicy() != Qt::NoFocus)
        return;
    if (firstControl && !editor.focusProxy())
        editor.setFocusProxy(firstControl);
    else if (!firstControl && edited && !editor.layout())
        // One with a layout has no controls now, as a list of no flags: there is nothing to press.
        new KeyboardPress(&editor);
}

void EditorCell::renameControls(QString const& name) const {
    for (auto const& control : named_) {
        if (!control)
            continue;
        auto const caption = captionOf(*editor_.widget, *control);
        control->setAccessibleName(caption.isEmpty() || caption == name ? name
                                                                        : Texts::tr("%1: %2").arg(name, caption));
    }
}

void EditorCell::describeControls(QString const& description) {
    description_ = description;
    auto described = controls();
    described.push_back(editor_.widget);
    for (auto* const control : described)
        describe(*control);
}

void EditorCell::describe(QWidget& control) const {
    // A screen reader reads the description in place of the tool tip.
    auto const& explanation = control.toolTip();
    control.setAccessibleDescription(explanation.isEmpty() ? description_
                                                           : description_ + QLatin1Char('\n') + explanation);
}

} // namespace Talo
