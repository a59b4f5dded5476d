#include <checker/Gesture.hpp>

#include <checker/DialogCloser.hpp>
#include <checker/WheelTurn.hpp>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QTest>

namespace Checker {

namespace {

std::function<void(QWidget&)> key(Qt::Key which) {
    return [which](QWidget& widget) { QTest::keyClick(&widget, which); };
}

/// Chooses another entry of a list.
void stepTo(QWidget& list, int current, int count) {
    QTest::keyClick(&list, current + 1 < count ? Qt::Key_Down : Qt::Key_Up);
}

/// Makes another choice among buttons or entries, whatever is chosen.
void chooseAnother(QWidget& editor) {
    auto const widgets = workable(editor);
    for (auto* const widget : widgets) {
        auto* const button = qobject_cast<QAbstractButton*>(widget);
        if (button && button->isCheckable() && !button->isChecked())
            return QTest::keyClick(button, Qt::Key_Space);
        if (auto* const box = qobject_cast<QComboBox*>(widget))
            return stepTo(*box, box->currentIndex(), box->count());
        if (auto* const view = qobject_cast<QAbstractItemView*>(widget))
            return view->model() ? stepTo(*view, view->currentIndex().row(), view->model()->rowCount()) : void();
    }
}

/// Types a letter as an input method does, and leaves the editor with the mouse.
void typeAndLeave(QWidget& widget) {
    QInputMethodEvent typed;
    typed.setCommitString(QStringLiteral("x"));
    QCoreApplication::sendEvent(&widget, &typed);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &leave);
}

void typeAndReturn(QWidget& widget) {
    QTest::keyClick(&widget, Qt::Key_5);
    QTest::keyClick(&widget, Qt::Key_Return);
}

} // namespace

QWidgetList workable(QWidget& editor) {
    QWidgetList widgets{&editor};
    auto const children = editor.findChildren<QWidget*>();
    for (auto* const child : children)
        if (child->window() == editor.window() && child->isVisibleTo(&editor))
            widgets << child;
    return widgets;
}

void perform(Gesture const& gesture, QWidget& editor) {
    DialogCloser const closer;
    auto const widgets = workable(editor);
    if (gesture.widget < widgets.size())
        gesture.doIt(*widgets.at(gesture.widget));
}

std::vector<Gesture> gesturesFor(QWidget& editor) {
    std::vector<Gesture> const kinds = {
        {0, QStringLiteral("the Up key"), key(Qt::Key_Up)},
        {0, QStringLiteral("the Down key"), key(Qt::Key_Down)},
        {0, QStringLiteral("the space bar"), key(Qt::Key_Space)},
        {0, QStringLiteral("typing"), key(Qt::Key_5)},
        {0, QStringLiteral("typing and leaving"), typeAndLeave},
        {0, QStringLiteral("typing and Return"), typeAndReturn},
        {0, QStringLiteral("the wheel"), [](QWidget& widget) { turnWheel(widget, 1); }},
        {0, QStringLiteral("a click"), [](QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }},
        {0, QStringLiteral("the Right key"), key(Qt::Key_Right)}};
    std::vector<Gesture> all{{0, QStringLiteral("another choice"), chooseAnother}};
    int const count = static_cast<int>(workable(editor).size());
    for (auto const& kind : kinds)
        for (int widget = count - 1; widget >= 0; --widget)
            all.push_back({widget, kind.name, kind.doIt});
    return all;
}

} // namespace Checker
