// A simulated user, compiled into the small host: works with it when its window is shown, draws the window and ends the
// program. The exit status tells whether everything worked.
#include <cstdio>
#include <parameters/Host.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QtWidgets>

namespace {

/// Prints a sentence and ends the program if a condition does not hold.
void require(bool condition, char const* sentence) {
    if (condition)
        return;
    std::fprintf(stderr, "small host: %s\n", sentence);
    std::exit(1);
}

QAction* toolNamed(QMainWindow const& window, char const* text) {
    auto const actions = window.findChild<QToolBar*>()->actions();
    for (auto* const action : actions)
        if (action->text().remove(QLatin1Char('&')).startsWith(QLatin1String(text)))
            return action;
    require(false, text);
    return nullptr;
}

void click(QAbstractButton& button) {
    QPointF const place(8, button.height() / 2.0);
    for (auto const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, button.mapToGlobal(place.toPoint()), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&button, &event);
    }
}

void press(QWidget& widget, int key, QString const& text = {}) {
    for (auto const type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}

void work() {
    auto* const window = qobject_cast<QMainWindow*>(QApplication::topLevelWidgets().value(0));
    auto* const panel = window ? window->findChild<Talo::ParameterPanel*>() : nullptr;
    require(panel, "there is no panel");
    window->resize(700, 600);
    QApplication::processEvents();
    require(panel->rowArea()->rows().size() == 7, "not every parameter has a row");
    for (auto* const row : panel->rowArea()->rows())
        require(row->editor() && !row->editor()->inherits("Talo::PlaceholderEditor"), "an editor is missing");

    auto* const box = panel->rowArea()->row(QStringLiteral("on"))->editor()->findChild<QCheckBox*>();
    require(box && box->isChecked(), "the lamp is not on");
    click(*box);
    QApplication::processEvents();
    require(toolNamed(*window, "Undo: on")->isEnabled(), "the click is no undo step");
    toolNamed(*window, "Undo")->trigger();
    require(box->isChecked(), "the click was not undone");

    toolNamed(*window, "night")->trigger();
    auto* const slider = panel->rowArea()->row(QStringLiteral("brightness"))->editor()->findChild<QSlider*>();
    require(slider, "the brightness has no slider");
    press(*slider, Qt::Key_Right);

    auto* const filter = window->findChild<QToolBar*>()->findChild<QLineEdit*>();
    filter->setText(QStringLiteral("label"));
    require(panel->rowArea()->shownCount() == 1, "the filter shows other parameters");
    filter->clear();

    auto* const editor = panel->rowArea()->row(QStringLiteral("label"))->editor();
    auto* const itself = qobject_cast<QLineEdit*>(editor);
    auto* const field = itself ? itself : editor->findChild<QLineEdit*>();
    require(field, "the label has no field");
    field->setFocus();
    field->selectAll();
    for (QChar const letter : QStringLiteral("shelf"))
        press(*field, letter.toUpper().unicode(), letter);
    toolNamed(*window, "Save")->trigger();
    require(window->grab().save(QStringLiteral("lamp.png")), "the picture cannot be written");
    QApplication::quit();
}

void begin() {
    QTimer::singleShot(0, work);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(begin)
