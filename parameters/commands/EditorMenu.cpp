#include <parameters/commands/EditorMenu.hpp>

#include <functional>
#include <parameters/EditorChoice.hpp>
#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace Talo {

namespace {

struct EditorMenuTexts {
    Q_DECLARE_TR_FUNCTIONS(EditorMenu)
};

/// Chooses the creator of a name; the empty name: the usual one.
using Choose = std::function<void(QString const& creator)>;

QAction* addChoice(QMenu& menu, QActionGroup& group, QString const& text, bool isChosen) {
    auto* const action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(isChosen);
    group.addAction(action);
    return action;
}

/// A submenu with the usual creator and all others, of which one is checked.
void addChoices(QMenu& menu, QString const& title, QStringList const& creators, QString const& chosen,
                Choose const& choose) {
    auto* const submenu = menu.addMenu(title);
    auto* const group = new QActionGroup(submenu);
    auto const add = [&](QString const& text, QString const& creator) {
        auto* const action = addChoice(*submenu, *group, text, creator == chosen);
        action->setData(creator);
        QObject::connect(action, &QAction::triggered, submenu, [choose, creator] { choose(creator); });
        return action;
    };
    add(EditorMenuTexts::tr("&Usual"), QString());
    submenu->addSeparator();
    for (auto const& creator : creators) {
        // An ampersand in a name is no mark of a key.
        auto const text = QString(creator).replace(QLatin1Char('&'), QLatin1String("&&"));
        add(text, creator);
    }
    if (!chosen.isEmpty() && !creators.contains(chosen))
        add(EditorMenuTexts::tr("%1 is not loaded").arg(chosen), chosen)->setEnabled(false);
}

} // namespace

void fillEditorMenu(QMenu& menu, Kolt::ParameterPtr const& parameter, EditorChoice& choice) {
    // Submenus belong to the menu and are not deleted by clear().
    qDeleteAll(menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    menu.clear();
    if (!parameter) {
        menu.addAction(EditorMenuTexts::tr("No parameter is chosen"))->setEnabled(false);
        return;
    }
    auto const creators = QStringList(EditorChoice::candidates(*parameter).keys());
    auto const name = QString::fromStdString(parameter->fullName());
    auto const type = QString::fromStdString(parameter->declaredType());
    addChoices(menu, EditorMenuTexts::tr("This &parameter"), creators, choice.ofParameters().value(name),
               [&choice, name](QString const& creator) { choice.chooseForParameter(name, creator); });
    addChoices(menu, EditorMenuTexts::tr("All parameters of this &type"), creators, choice.ofTypes().value(type),
               [&choice, type](QString const& creator) { choice.chooseForType(type, creator); });
}

} // namespace Talo
