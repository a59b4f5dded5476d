#include <parameters/ParameterPanel.hpp>

#include <algorithm>
#include <lattice/UndoHistory.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/commands/ParameterFilter.hpp>
#include <parameters/commands/ResetCommands.hpp>
#include <parameters/commands/SharedEdits.hpp>
#include <parameters/commands/UndoActions.hpp>
#include <parameters/EditorChoice.hpp>
#include <parameters/input/InputFilter.hpp>
#include <parameters/input/PendingEdit.hpp>
#include <parameters/rows/ConditionWatcher.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/ParameterVector.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QEvent>
#include <QMenu>
#include <QScrollBar>
#include <QVBoxLayout>
#include <unordered_set>

namespace Talo {

namespace {

std::vector<Kolt::ObjectPtr> withoutNull(std::vector<Kolt::ObjectPtr> objects) {
    objects.erase(std::remove(objects.begin(), objects.end(), nullptr), objects.end());
    return objects;
}

std::vector<Kolt::ParameterPtr> const& parametersOf(Kolt::ObjectPtr const& object) {
    static std::vector<Kolt::ParameterPtr> const none;
    return object ? object->parameters() : none;
}

} // namespace

class ParameterPanel::Private {
public:
    Private(ParameterPanel& panel, std::vector<Kolt::ObjectPtr> const& objects, Kolt::ValuePoolSource& poolSource)
        : Private(panel, objects.empty() ? nullptr : objects.front(), poolSource) {
        if (objects.size() < 2)
            return;
        shared = std::make_unique<SharedEdits>(objects.front(),
                                               std::vector<Kolt::ObjectPtr>(objects.begin() + 1, objects.end()));
        rows->setOthers([this](auto const& parameter) { return shared->othersOf(parameter); });
        applyFilter();
    }

    Private(ParameterPanel& panel, Kolt::ObjectPtr const& shown, Kolt::ValuePoolSource& poolSource)
        : object(shown),
          pools(poolSource),
          rows(new RowArea(shown ? QString::fromStdString(shown->Name()) : QString(), parametersOf(shown), poolSource)),
          conditions(parametersOf(shown)),
          emptyNote(new MutedLabel(QString(), &panel)) {
        auto* const layout = new QVBoxLayout(&panel);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(rows, 1);
        layout->addWidget(emptyNote, 1, Qt::AlignTop);
        emptyNote->setObjectName(QStringLiteral("emptyNote"));
        emptyNote->setMargin(12);
        emptyNote->setWordWrap(true);
        emptyNote->hide();
        QObject::connect(&conditions, &ConditionWatcher::changed, &panel, [this] { applyConditions(); });
        auto const& parameters = parametersOf(shown);
        hasAdvanced = std::any_of(parameters.begin(), parameters.end(),
                                  [](auto const& parameter) { return isAdvanced(*parameter); });
        applyFilter();
    }

    bool isFiltered() const { return !ParameterFilter(filter, onlyChanged).isEmpty(); }

    /// Finds the parameters by their values of now.
    void applyFilter() {
        found.clear();
        auto const living = object.strong();
        ParameterFilter const wanted(filter, onlyChanged);
        if (living && !wanted.isEmpty())
            for (auto const& parameter : living->parameters())
                if (wanted.finds(*living, *parameter, pools.pool(), kind))
                    found.insert(parameter.get());
        addVectorsToFound();
        applyConditions();
    }

    /// With one component of a vector the whole vector is found.
    void addVectorsToFound() {
        auto const living = object.strong();
        if (!living || found.empty())
            return;
        for (auto const& [name, components, members] : vectorsOf(living->parameters()))
            if (std::any_of(members.begin(), members.end(),
                            [&](auto const& member) { return found.count(member.get()) != 0; }))
                for (auto const& member : members)
                    found.insert(member.get());
    }

    /// Says why no parameter is shown.
    QString emptyText() const {
        if (!ParameterFilter(filter).isEmpty())
            return tr("No parameter of this object is found by the filter.");
        if (onlyChanged)
            return tr("No parameter of this object differs from its default.");
        return shared ? tr("The objects have no parameter in common that could be shown now.")
                      : tr("All parameters of this object are advanced, or of no use now.");
    }

    /// Shows which of the found parameters the conditions admit now.
    void applyConditions() {
        bool const hasFilter = isFiltered();
        auto const isShown = [&](Kolt::VParameter const& parameter) {
            bool const isWanted = hasFilter ? found.count(&parameter) != 0 : advancedShown || !isAdvanced(parameter);
            bool const isCommon = !shared || !shared->othersOf(parameter).empty();
            return isWanted && isCommon && conditions.isVisible(parameter, pools.pool());
        };
        rows->setAllSectionsOpen(hasFilter);
        if (hasFilter || shared || (hasAdvanced && !advancedShown) || conditions.hasConditions())
            rows->setFilter(isShown);
        else
            rows->setFilter({});
        bool const showsNone = !parametersOf(object.strong()).empty() && rows->shownCount() == 0;
        rows->setVisible(!showsNone);
        emptyNote->setText(emptyText());
        emptyNote->setVisible(showsNone);
        if (conditions.hasConditions())
            rows->setEnabledWhen(
                [this](auto const& parameter) { return conditions.isEnabled(parameter, pools.pool()); });
    }

    Kolt::UndoHistory& history() const {
        auto const living = object.strong();
        bool const hasParameter = living && !living->parameters().empty();
        return hasParameter ? living->parameters().front()->history() : Kolt::UndoHistory::theHistory();
    }

    /// Of several objects the parameters that all of them have, those of the first object first; of one object these.
    std::vector<Kolt::ParameterPtr> edited(std::vector<Kolt::ParameterPtr> const& parameters) const {
        if (!shared)
            return parameters;
        std::vector<Kolt::ParameterPtr> first;
        std::vector<Kolt::ParameterPtr> others;
        for (auto const& parameter : parameters)
            for (auto const& other : shared->othersOf(*parameter)) {
                if (first.empty() || first.back() != parameter)
                    first.push_back(parameter);
                others.push_back(other.parameter.strong());
            }
        first.insert(first.end(), others.begin(), others.end());
        return first;
    }

    UndoActions& undoActionsOf(ParameterPanel& panel) {
        if (!undoActions) {
            undoActions = new UndoActions(history(), &panel);
            undoActions->setNaming(naming);
            connect(undoActions, &UndoActions::refused, &panel, &ParameterPanel::refused);
            addActions(panel, {undoActions->undoAction(), undoActions->redoAction()});
        }
        return *undoActions;
    }
    ParameterCommands& commandsOf(ParameterPanel& panel) {
        if (!commands) {
            commands = new ParameterCommands(&panel, &panel);
            addActions(panel, commands->actions());
        }
        return *commands;
    }
    QAction* resetAllActionOf(ParameterPanel& panel) {
        if (!resetAllAction) {
            resetAllAction = new QAction(&panel);
            resetAllAction->setObjectName(QStringLiteral("resetAll"));
            connect(resetAllAction, &QAction::triggered, &panel, &ParameterPanel::resetAll);
            nameResetActions();
        }
        return resetAllAction;
    }
    QAction* resetSectionActionOf(ParameterPanel& panel) {
        if (!resetSectionAction) {
            resetSectionAction = new QAction(&panel);
            resetSectionAction->setObjectName(QStringLiteral("resetSection"));
            connect(resetSectionAction, &QAction::triggered, &panel, [this, &panel] {
                auto const* const row = commandsOf(panel).row();
                if (auto const parameter = row ? row->parameter() : nullptr)
                    panel.resetSection(ParameterDescription(*parameter).section);
            });
            nameResetActions();
        }
        // It follows which row has the focus.
        commandsOf(panel);
        return resetSectionAction;
    }
    void nameResetActions() const {
        if (resetAllAction)
            resetAllAction->setText(tr("Reset &all to default"));
        if (resetSectionAction)
            resetSectionAction->setText(tr("Reset s&ection to default"));
    }
    static void addActions(ParameterPanel& panel, QList<QAction*> const& actions) {
        for (auto* const action : actions)
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        panel.addActions(actions);
    }

    Tessera::WeakPtr<Kolt::VObject, Kolt::VManagedObjectBase> const object;
    PoolSourceRef const pools;
    std::shared_ptr<InputFilter> const inputFilter = InputFilter::shared();
    RowArea* const rows;
    ConditionWatcher conditions;
    // Null for one object.
    std::unique_ptr<SharedEdits> shared;
    MutedLabel* const emptyNote;
    QString filter;
    // What the object is for.
    QString kind;
    bool onlyChanged = false;
    // Those that the filter found; not asked without one.
    std::unordered_set<Kolt::VParameter const*> found;
    bool hasAdvanced = false;
    bool advancedShown = false;
    bool rawValuesShown = false;
    ParameterNaming naming;
    // Made on demand: a window with several panels has actions of its own instead.
    UndoActions* undoActions = nullptr;
    ParameterCommands* commands = nullptr;
    QAction* resetAllAction = nullptr;
    QAction* resetSectionAction = nullptr;
};

ParameterPanel::ParameterPanel(Kolt::ObjectPtr const& object, Kolt::ValuePoolSource& pools, QWidget* parent)
    : ParameterPanel(std::vector<Kolt::ObjectPtr>{object}, pools, parent) {}

ParameterPanel::ParameterPanel(std::vector<Kolt::ObjectPtr> const& objects, Kolt::ValuePoolSource& pools,
                               QWidget* parent)
    : QWidget(parent), d_(std::make_unique<Private>(*this, withoutNull(objects), pools)) {
    if (!d_->object.alive())
        qWarning("ParameterPanel: there is no object to show.");
    connect(d_->rows, &RowArea::editorOpened, this, &ParameterPanel::editorOpened);
    connect(d_->rows, &RowArea::refused, this, &ParameterPanel::refused);
    connect(d_->rows, &RowArea::helpRequested, this, &ParameterPanel::helpRequested);
    connect(d_->rows->sections(), &FormSections::menuRequested, this, &ParameterPanel::showSectionMenu);
}

ParameterPanel::~ParameterPanel() {
    // Before d_: editors may write when they are deleted, and the panel still reacts to that.
    delete d_->rows;
}

Kolt::ObjectPtr ParameterPanel::object() const {
    return d_->object.strong();
}

Kolt::PoolPtr ParameterPanel::pool() const {
    return d_->pools.pool();
}

QString ParameterPanel::filter() const {
    return d_->filter;
}

void ParameterPanel::setFilter(QString const& words) {
    bool const isNew = std::exchange(d_->filter, words) != words;
    d_->applyFilter();
    if (!isNew)
        return;
    d_->rows->verticalScrollBar()->setValue(0);
    emit filterChanged(words);
}

void ParameterPanel::setKind(QString const& kind) {
    if (std::exchange(d_->kind, kind) != kind && d_->isFiltered())
        d_->applyFilter();
}

bool ParameterPanel::onlyChanged() const {
    return d_->onlyChanged;
}

void ParameterPanel::setOnlyChanged(bool only) {
    bool const isNew = std::exchange(d_->onlyChanged, only) != only;
    d_->applyFilter();
    if (!isNew)
        return;
    d_->rows->verticalScrollBar()->setValue(0);
    emit onlyChangedChanged(only);
}

bool ParameterPanel::advancedShown() const {
    return d_->advancedShown;
}

void ParameterPanel::setAdvancedShown(bool shown) {
    if (std::exchange(d_->advancedShown, shown) == shown)
        return;
    d_->applyConditions();
    emit advancedShownChanged(shown);
}

bool ParameterPanel::rawValuesShown() const {
    return d_->rawValuesShown;
}

void ParameterPanel::setRawValuesShown(bool shown) {
    if (std::exchange(d_->rawValuesShown, shown) == shown)
        return;
    d_->rows->setRawValuesShown(shown);
    emit rawValuesShownChanged(shown);
}

QAction* ParameterPanel::action(Command command) {
    switch (command) {
    case Command::Undo:
        return d_->undoActionsOf(*this).undoAction();
    case Command::Redo:
        return d_->undoActionsOf(*this).redoAction();
    case Command::Reset:
        return d_->commandsOf(*this).action("resetValue");
    case Command::ResetSection:
        return d_->resetSectionActionOf(*this);
    case Command::ResetAll:
        return d_->resetAllActionOf(*this);
    case Command::Copy:
        return d_->commandsOf(*this).action("copyValue");
    case Command::Paste:
        return d_->commandsOf(*this).action("pasteValue");
    case Command::SetAsDefault:
        return d_->commandsOf(*this).action("setAsDefault");
    case Command::ShowHelp:
        return d_->commandsOf(*this).action("showHelp");
    }
    return nullptr;
}

void ParameterPanel::setEditorChoice(EditorChoice* choice) {
    if (auto* const old = EditorChoice::around(this))
        disconnect(old, &EditorChoice::changed, d_->rows, nullptr);
    EditorChoice::install(*this, choice);
    if (choice)
        connect(choice, &EditorChoice::changed, d_->rows, &RowArea::showPool);
    d_->rows->showPool();
}

void ParameterPanel::setNaming(ParameterNaming naming) {
    d_->naming = std::move(naming);
    if (d_->undoActions)
        d_->undoActions->setNaming(d_->naming);
}

void ParameterPanel::resetAll() {
    if (auto const living = object())
        resetToDefaults(d_->edited(living->parameters()), d_->pools.pool());
}

void ParameterPanel::resetSection(QString const& title) {
    if (auto const living = object())
        resetToDefaults(d_->edited(parametersInSection(*living, title)), d_->pools.pool());
}

void ParameterPanel::showSectionMenu(QString const& title, QPoint const& place) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Reset s&ection to default"), this, [this, title] { resetSection(title); })
        ->setObjectName(QStringLiteral("resetSection"));
    emit sectionMenuRequested(menu, title);
    menu->popup(place);
}

void ParameterPanel::commitPendingEdit() {
    Talo::commitPendingEdit(*window());
}

void ParameterPanel::closeEditors() {
    d_->rows->closeEditors();
}

void ParameterPanel::openEditors() {
    d_->rows->openEditors();
}

void ParameterPanel::showPool() {
    d_->rows->showPool();
    d_->applyFilter();
}

void ParameterPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    d_->emptyNote->setText(d_->emptyText());
    d_->nameResetActions();
}

RowArea* ParameterPanel::rowArea() const {
    return d_->rows;
}

} // namespace Talo
