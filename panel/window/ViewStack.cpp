#include <panel/window/ViewStack.hpp>

#include <algorithm>
#include <panel/look/Look.hpp>
#include <panel/window/ViewDock.hpp>
#include <QCoreApplication>
#include <QDockWidget>

namespace Panel {

namespace {

constexpr int keptViews = 8;

// In lines; docks that would be lower become tabs.
constexpr int leastViewHeight = 12;

QString nameOf(Kolt::ObjectPtr const& object) {
    return object ? QString::fromStdString(object->Name()) : QString();
}

} // namespace

ViewStack::ViewStack(Kolt::ValuePoolSource& pools, QMainWindow& window) : pools_(pools), window_(window) {}

ViewStack::~ViewStack() = default;

ObjectView* ViewStack::currentView() const {
    return static_cast<ObjectView*>(currentWidget());
}

ObjectView* ViewStack::visibleView(Kolt::ObjectPtr const& object) const {
    auto const all = views();
    auto const found = std::find_if(all.begin(), all.end(), [&](auto const* view) {
        return view->object() == object && !view->visibleRegion().isEmpty();
    });
    return found == all.end() ? nullptr : *found;
}

std::vector<ObjectView*> ViewStack::views() const {
    auto const found = window_.findChildren<ObjectView*>();
    return {found.begin(), found.end()};
}

void ViewStack::showObject(Kolt::ObjectPtr const& object, QString const& kind) {
    for (int index = 0; index < count(); ++index) {
        auto* const known = widget(index);
        auto const* const view = static_cast<ObjectView*>(known);
        if (view->object() != object || view->showsSeveral())
            continue;
        // The last of the stack is the one that was shown last.
        removeWidget(known);
        addWidget(known);
        setCurrentWidget(known);
        dropSeveral();
        return;
    }
    auto* const view = makeView({object}, kind, pools_, this);
    addWidget(view);
    setCurrentWidget(view);
    dropSeveral();
    while (count() > keptViews) {
        auto* const oldest = widget(0);
        removeWidget(oldest);
        oldest->deleteLater();
    }
}

void ViewStack::showObjects(std::vector<Kolt::ObjectPtr> const& objects, QString const& kind) {
    if (objects.size() == 1) {
        showObject(objects.front(), kind);
        return;
    }
    dropSeveral();
    auto* const view = makeView(objects, kind, pools_, this);
    addWidget(view);
    setCurrentWidget(view);
}

void ViewStack::dropSeveral() {
    for (int index = count() - 1; index >= 0; --index) {
        auto* const view = static_cast<ObjectView*>(widget(index));
        if (!view->showsSeveral())
            continue;
        removeWidget(view);
        view->deleteLater();
    }
}

ObjectView* ViewStack::makeView(std::vector<Kolt::ObjectPtr> const& objects, QString const& kind,
                                Kolt::ValuePoolSource& pools, QWidget* parent) {
    auto* const view = new ObjectView(objects, kind, pools, parent);
    auto* const panel = view->panel();
    panel->setEditorChoice(&editorChoice_);
    panel->setRawValuesShown(rawValuesShown_);
    panel->setAdvancedShown(advancedShown_);
    panel->setKind(kind);
    panel->setOnlyChanged(onlyChanged_);
    panel->setFilter(filter_);
    connect(panel, &Talo::ParameterPanel::editorOpened, this, &ViewStack::editorOpened);
    connect(panel, &Talo::ParameterPanel::refused, this, &ViewStack::refused);
    connect(panel, &Talo::ParameterPanel::helpRequested, this, &ViewStack::helpRequested);
    panel->rowArea()->setFoldedSections(folded_.value(nameOf(objects.front())));
    connect(panel->rowArea(), &Talo::RowArea::foldChanged, this, [this, view] { followFolding(*view); });
    connect(panel->rowArea(), &Talo::RowArea::defaultChanged, this, &ViewStack::showDefaults);
    return view;
}

ObjectView* ViewStack::addViewOn(Kolt::PoolPtr const& pool) {
    auto* const current = currentView();
    auto const object = current ? current->object() : nullptr;
    if (!object)
        return nullptr;
    auto* const dock = new ViewDock(offeredPools_, pools_, &window_);
    dock->setOwnPool(pool);
    auto* const view = makeView({object}, current->kind(), dock->pools(), dock);
    dock->setView(view);
    placeBesideForm(*dock);
    return view;
}

void ViewStack::placeBesideForm(QDockWidget& dock) {
    auto const area = trailingDockArea(layoutDirection());
    QList<QDockWidget*> docks;
    int height = 0;
    int width = this->width() / 2;
    auto const all = window_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto* const other : all) {
        if (!other->isVisible() || other->isFloating() || window_.dockWidgetArea(other) != area)
            continue;
        docks << other;
        height += other->height();
        width = other->width();
    }
    docks << &dock;
    window_.addDockWidget(area, &dock);
    int const each = height / docks.size();
    if (docks.size() > 1 && each < leastViewHeight * fontMetrics().height()) {
        window_.tabifyDockWidget(docks.at(docks.size() - 2), &dock);
        dock.show();
        dock.raise();
    }
    // Qt knows the sizes of a new dock only then.
    QCoreApplication::sendPostedEvents(&window_, QEvent::LayoutRequest);
    QList<int> heights;
    for (int index = 0; index < docks.size(); ++index)
        heights << each;
    if (docks.size() > 1)
        window_.resizeDocks(docks, heights, Qt::Vertical);
    window_.resizeDocks({&dock}, {width}, Qt::Horizontal);
}

void ViewStack::closeViews() {
    folded_.clear();
    offeredPools_.clear();
    for (auto* const view : views()) {
        auto* const dock = qobject_cast<QDockWidget*>(view->parentWidget());
        QWidget* const closed = dock ? dock : static_cast<QWidget*>(view);
        closed->hide();
        if (!dock)
            removeWidget(view);
        closed->deleteLater();
    }
    editorChoice_.setOfParameters({});
}

void ViewStack::deleteViews() {
    for (auto* const view : views())
        delete view;
}

void ViewStack::setFilter(QString const& words, bool onlyChanged) {
    filter_ = words;
    onlyChanged_ = onlyChanged;
    for (auto* const view : views()) {
        if (view->panel()->onlyChanged() != onlyChanged)
            view->panel()->setOnlyChanged(onlyChanged);
        view->panel()->setFilter(words);
    }
}

void ViewStack::setRawValuesShown(bool shown) {
    rawValuesShown_ = shown;
    for (auto* const view : views())
        view->panel()->setRawValuesShown(shown);
}

void ViewStack::setAdvancedShown(bool shown) {
    advancedShown_ = shown;
    for (auto* const view : views())
        view->panel()->setAdvancedShown(shown);
}

void ViewStack::setFoldedSections(QMap<QString, QStringList> const& folded) {
    folded_ = folded;
    for (auto* const view : views())
        view->panel()->rowArea()->setFoldedSections(folded_.value(nameOf(view->object())));
}

void ViewStack::foldAllSections(bool folded) {
    if (auto* const view = currentView())
        view->panel()->rowArea()->foldAllSections(folded);
}

void ViewStack::followFolding(ObjectView const& view) {
    auto const object = view.object();
    auto const folded = view.panel()->rowArea()->foldedSections();
    folded_.insert(nameOf(object), folded);
    for (auto* const other : views())
        if (other != &view && other->object() == object)
            other->panel()->rowArea()->setFoldedSections(folded);
}

void ViewStack::showPool() {
    for (auto* const view : views()) {
        if (auto* const dock = qobject_cast<ViewDock*>(view->parentWidget()))
            dock->followWindow();
        else
            view->panel()->showPool();
    }
}

void ViewStack::showDefaults() {
    for (auto* const view : views())
        view->panel()->rowArea()->showDefaults();
}

void ViewStack::closeEditors() {
    for (auto* const view : views())
        view->panel()->closeEditors();
}

void ViewStack::openEditors() {
    for (auto* const view : views())
        view->panel()->openEditors();
}

} // namespace Panel
