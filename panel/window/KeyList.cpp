#include <panel/window/KeyList.hpp>

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QStringList>

namespace Panel {

namespace {

struct KeyTexts {
    Q_DECLARE_TR_FUNCTIONS(KeyList)
};

/// A text without the mark of its key, and without the dots of a command that asks for more.
QString plainText(QString const& text) {
    QString plain;
    for (int index = 0; index < text.size(); ++index) {
        // Two of them are one that is shown.
        if (text[index] == QLatin1Char('&') && ++index == text.size())
            break;
        plain += text[index];
    }
    while (plain.endsWith(QLatin1Char('.')))
        plain.chop(1);
    return plain;
}

QString shortcutsOf(QAction const& action) {
    QStringList keys;
    auto const shortcuts = action.shortcuts();
    for (auto const& each : shortcuts)
        if (!each.isEmpty())
            keys << each.toString(QKeySequence::NativeText);
    return keys.join(QLatin1String(", "));
}

/// Adds those that have keys and were not listed yet, with those of their menus.
void addActions(KeyGroup& group, QList<QAction*> const& actions, QSet<QAction const*>& listed) {
    for (auto const* const action : actions) {
        if (action->menu())
            addActions(group, action->menu()->actions(), listed);
        auto const keys = shortcutsOf(*action);
        // The text of undo names the step as well; the text of its button does not.
        if (!keys.isEmpty() && !listed.contains(action)) {
            listed.insert(action);
            // Qt has removed the mark of the key from it, and the dots.
            group.entries.push_back({action->iconText(), keys});
        }
    }
}

/// The keys that no action has.
QVector<KeyGroup> controlKeys() {
    return {{KeyTexts::tr("Rows"),
             {{KeyTexts::tr("Next or previous control"), KeyTexts::tr("Tab, Shift+Tab")},
              {KeyTexts::tr("Leave a text of several lines"), KeyTexts::tr("Ctrl+Tab, Ctrl+Shift+Tab")},
              {KeyTexts::tr("Change a slider, or go through choices"), KeyTexts::tr("Arrow keys, Page Up, Page Down")},
              {KeyTexts::tr("Lowest or highest value"), KeyTexts::tr("Home, End")},
              {KeyTexts::tr("Press a button, or switch a check box"), KeyTexts::tr("Space")},
              {KeyTexts::tr("Enter what was typed"), KeyTexts::tr("Return")},
              {KeyTexts::tr("Take back a typed number"), KeyTexts::tr("Esc")},
              {KeyTexts::tr("Take back a drag while the button is held"), KeyTexts::tr("Esc")},
              {KeyTexts::tr("Change the value of the control with the focus"), KeyTexts::tr("Mouse wheel")},
              {KeyTexts::tr("Menu of the row"), KeyTexts::tr("Menu key, right mouse button")}}},
            {KeyTexts::tr("Elsewhere"),
             {{KeyTexts::tr("Filter: go to the first row that is found"), KeyTexts::tr("Return")},
              {KeyTexts::tr("Filter: show all"), KeyTexts::tr("Esc")},
              {KeyTexts::tr("History: go to the chosen state"), KeyTexts::tr("Return")},
              {KeyTexts::tr("Cancel the computing"), KeyTexts::tr("Esc")}}}};
}

} // namespace

QVector<KeyGroup> keysOf(QWidget const& window) {
    QVector<KeyGroup> groups;
    QSet<QAction const*> listed;
    auto const add = [&](QString const& title, QList<QAction*> const& actions) {
        KeyGroup group{title, {}};
        addActions(group, actions, listed);
        if (!group.entries.isEmpty())
            groups.push_back(group);
    };
    if (auto const* const bar = window.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        auto const menus = bar->actions();
        for (auto* const each : menus)
            add(plainText(each->text()), each->menu() ? each->menu()->actions() : QList<QAction*>{each});
    }
    add(KeyTexts::tr("Other commands"), window.findChildren<QAction*>());
    return groups + controlKeys();
}

} // namespace Panel
