#include <parameters/ParameterPanel.hpp>

#include <algorithm>
#include <lattice/UndoHistory.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/commands/ParameterFilter.hpp>
#include <parameters/commands/RowCommands.hpp>
#include <parameters/commands/UndoActions.hpp>
#include <parameters/EditorChoice.hpp>
#include <parameters/input/InputFilter.hpp>
#include <parameters/input/PendingEdit.hpp>
#include <parameters/rows/ConditionWatcher.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/ParameterVector.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <unordered_set>

namespace Talo {

namespace {

// A deleted parameter is not signalled, so a visible panel looks for it. In milliseconds.
constexpr int checkInterval = 250;

QString nameOf(Kolt::ObjectPtr const& object) {
    return object ? QString::fromStdString(object->Name()) : QString();
}

} // namespace

class ParameterPanel::Private {
public:
    Private(ParameterPanel& panel, Kolt::ObjectPtr const& shown, Kolt::ValuePoolSource& poolSource)
        : object(shown),
          pools(poolSource),
          rows(new RowArea(nameOf(shown), shown ? shown->parameters() : std::vector<Kolt::ParameterPtr>(), poolSource)),
          conditions(shown ? shown->parameters() : std::vector<Kolt::ParameterPtr>()),
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
        checkTimer.setInterval(checkInterval);
        QObject::connect(&checkTimer, &QTimer::timeout, rows, &RowArea::checkParameters);
        QObject::connect(&conditions, &ConditionWatcher::changed, &panel, [this] { applyConditions(); });
        hasAdvanced = shown && std::any_of(shown->parameters().begin(), shown->parameters().end(),
                                           [](auto const& parameter) { return isAdvanced(*parameter); });
        applyFilter();
    }

    /// Finds the parameters by their values of now.
    void applyFilter() {
        found.clear();
        auto const living = object.strong();
        ParameterFilter const words(filter);
        if (living && !words.isEmpty())
            for (auto const& parameter : living->parameters())
                if (words.finds(*living, *parameter, pools.pool()))
                    found.insert(parameter.get());
        addVectorsTo(found);
        applyConditions();
    }

    /// With one component of a vector the whole vector is found.
    void addVectorsTo(std::unordered_set<Kolt::VParameter const*>& parameters) const {
        auto const living = object.strong();
        if (!living || parameters.empty())
            return;
        for (auto const& [name, components, members] : vectorsOf(living->parameters()))
            if (std::any_of(members.begin(), members.end(),
                            [&](auto const& member) { return parameters.count(member.get()) != 0; }))
                for (auto const& member : members)
                    parameters.insert(member.get());
    }

    /// Shows which of the found parameters the conditions admit now.
    void applyConditions() {
        bool const hasWords = !ParameterFilter(filter).isEmpty();
        auto const isShown = [&](Kolt::VParameter const& parameter) {
            bool const isWanted = hasWords ? found.count(&parameter) != 0 : advancedShown || !isAdvanced(parameter);
            return isWanted && conditions.isVisible(parameter, pools.pool());
        };
        rows->setAllSectionsOpen(hasWords);
        if (hasWords || (hasAdvanced && !advancedShown) || conditions.hasConditions())
            rows->setFilter(isShown);
        else
            rows->setFilter({});
        auto const living = object.strong();
        bool const showsNone = living && !living->parameters().empty() && rows->shownCount() == 0;
        rows->setVisible(!showsNone);
        emptyNote->setText(hasWords ? tr("No parameter of this object is found by the filter.")
                                    : tr("All parameters of this object are advanced, or of no use now."));
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

    void resetAll() const {
        inputFilter->gestures().end();
        auto const living = object.strong();
        if (!living)
            return;
        Kolt::UndoHistory::Macro const macro(history());
        // Copies: a notifier may change the object or delete the panel.
        auto const parameters = living->parameters();
        auto const source = pools;
        for (auto const& parameter : parameters)
            if (parameter->defaults() && isChangeable(*parameter))
                (void)resetToDefault(parameter, source.pool());
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
            resetAllAction = new QAction(tr("Reset &all to default"), &panel);
            resetAllAction->setObjectName(QStringLiteral("resetAll"));
            connect(resetAllAction, &QAction::triggered, &panel, [this] { resetAll(); });
        }
        return resetAllAction;
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
    MutedLabel* const emptyNote;
    QTimer checkTimer;
    QString filter;
    // Those that the words of the filter found; not asked without words.
    std::unordered_set<Kolt::VParameter const*> found;
    bool hasAdvanced = false;
    bool advancedShown = false;
    bool rawValuesShown = false;
    ParameterNaming naming;
    // Made on demand: a window with several panels has actions of its own instead.
    UndoActions* undoActions = nullptr;
    ParameterCommands* commands = nullptr;
    QAction* resetAllAction = nullptr;
};

ParameterPanel::ParameterPanel(Kolt::ObjectPtr const& object, Kolt::ValuePoolSource& pools, QWidget* parent)
    : QWidget(parent), d_(std::make_unique<Private>(*this, object, pools)) {
    if (!object)
        qWarning("ParameterPanel: there is no object to show.");
    connect(d_->rows, &RowArea::editorOpened, this, &ParameterPanel::editorOpened);
    connect(d_->rows, &RowArea::refused, this, &ParameterPanel::refused);
    connect(d_->rows, &RowArea::helpRequested, this, &ParameterPanel::helpRequested);
}

ParameterPanel::~ParameterPanel() {
    // Before d_: editors may write when they are deleted, and the panel still reacts to that.
    delete d_->rows;
}

Kolt::ObjectPtr ParameterPanel::object() const {
    return d_->object.strong();
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

RowArea* ParameterPanel::rowArea() const {
    return d_->rows;
}

void ParameterPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    d_->rows->checkParameters();
    d_->checkTimer.start();
}

void ParameterPanel::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    d_->checkTimer.stop();
}

} // namespace Talo
