#include <panel/window/LookMenu.hpp>

#include <QAction>

namespace Panel {

LookMenu::LookMenu(QWidget* parent)
    : QObject(parent),
      colours_(new QMenu(tr("&Look"), parent)),
      textSizes_(new QMenu(tr("&Text size"), parent)),
      themes_(new QActionGroup(this)),
      // A keyboard has the plus sign with Shift or without it.
      larger_(addSize("largerText", tr("&Larger text"), {QKeySequence(tr("Ctrl++")), QKeySequence(tr("Ctrl+="))})),
      smaller_(addSize("smallerText", tr("&Smaller text"), {QKeySequence(tr("Ctrl+-"))})),
      usual_(addSize("usualText", tr("&Usual text size"), {QKeySequence(tr("Ctrl+0"))})) {
    addTheme(Theme::Light, "lightTheme", tr("&Light"));
    addTheme(Theme::Dark, "darkTheme", tr("&Dark"));
    addTheme(Theme::System, "systemTheme", tr("&System"));
    connect(themes_, &QActionGroup::triggered, this,
            [this](QAction const* action) { chooseTheme(static_cast<Theme>(action->data().toInt())); });
    connect(larger_, &QAction::triggered, this, [this] { chooseTextSize(textSize() + 1); });
    connect(smaller_, &QAction::triggered, this, [this] { chooseTextSize(textSize() - 1); });
    connect(usual_, &QAction::triggered, this, [this] { chooseTextSize(0); });
    showState();
}

LookMenu::~LookMenu() = default;

void LookMenu::addTheme(Theme theme, char const* name, QString const& text) {
    auto* const action = colours_->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    action->setData(static_cast<int>(theme));
    themes_->addAction(action);
}

QAction* LookMenu::addSize(char const* name, QString const& text, QList<QKeySequence> const& keys) {
    auto* const action = textSizes_->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    return action;
}

void LookMenu::chooseTheme(Theme theme) {
    setTheme(theme);
    showState();
}

void LookMenu::chooseTextSize(int steps) {
    setTextSize(steps);
    showState();
}

void LookMenu::showState() {
    auto const actions = themes_->actions();
    for (auto* const each : actions)
        each->setChecked(each->data().toInt() == static_cast<int>(theme()));
    larger_->setEnabled(textSize() < LargestText);
    smaller_->setEnabled(textSize() > SmallestText);
    usual_->setEnabled(textSize() != 0);
}

} // namespace Panel
