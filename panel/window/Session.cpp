#include <panel/window/Session.hpp>

#include <algorithm>
#include <optional>
#include <panel/window/MainWindow.hpp>
#include <panel/window/ViewDock.hpp>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDockWidget>
#include <QEvent>
#include <QSplitter>
#include <utility>

namespace Panel {

namespace {

// Of what QMainWindow writes. Another number refuses what was kept by a window with other parts.
constexpr int dockVersion = 1;

// More further views than anybody can use come from a damaged file.
constexpr int mostViews = 50;

constexpr char networkArray[] = "networks";

// What Qt writes has no check of its own, and Qt takes sizes and places out of it as they stand.
QByteArray checksum(QByteArray const& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

QByteArray sealed(QByteArray const& bytes) {
    return checksum(bytes) + bytes;
}

/// The bytes that were sealed; none where a single one of them is another now.
QByteArray unsealed(QVariant const& kept) {
    auto const all = kept.toByteArray();
    auto const bytes = all.mid(checksum({}).size());
    return all == sealed(bytes) ? bytes : QByteArray();
}

/// "object.section" for each of them; names of objects have no dot.
QStringList toList(QMap<QString, QStringList> const& folded) {
    QStringList all;
    for (auto object = folded.begin(); object != folded.end(); ++object)
        for (auto const& section : object.value())
            all << object.key() + QLatin1Char('.') + section;
    return all;
}

QMap<QString, QStringList> fromList(QStringList const& list) {
    QMap<QString, QStringList> folded;
    for (auto const& each : list)
        folded[each.section(QLatin1Char('.'), 0, 0)] << each.section(QLatin1Char('.'), 1);
    return folded;
}

constexpr std::pair<Theme, char const*> themeKeys[] = {
    {Theme::System, "system"}, {Theme::Light, "light"}, {Theme::Dark, "dark"}};

QString keyOf(Theme theme) {
    for (auto const& [each, key] : themeKeys)
        if (each == theme)
            return QLatin1String(key);
    return {};
}

std::optional<Theme> themeOfKey(QString const& key) {
    for (auto const& [theme, each] : themeKeys)
        if (key == QLatin1String(each))
            return theme;
    return {};
}

/// Each key and its value after it.
QStringList toList(QMap<QString, QString> const& map) {
    QStringList all;
    for (auto each = map.begin(); each != map.end(); ++each)
        all << each.key() << each.value();
    return all;
}

QMap<QString, QString> pairsOf(QStringList const& list) {
    QMap<QString, QString> map;
    for (int index = 0; index + 1 < list.size(); index += 2)
        map.insert(list.at(index), list.at(index + 1));
    return map;
}

QString shownObject(ObjectView const* view) {
    auto const object = view ? view->object() : nullptr;
    return object ? QString::fromStdString(object->Name()) : QString();
}

} // namespace

QString Session::userFile() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("talo"), QStringLiteral("talo_panel"))
        .fileName();
}

Session::Session(QString const& file, QObject* parent) : QObject(parent), settings_(file, QSettings::IniFormat) {}

Session::~Session() = default;

void Session::follow(MainWindow& window) {
    window_ = &window;
    restoreWindow();
    restoreNetwork();
    connect(&window, &MainWindow::networkAboutToClose, this, &Session::keep);
    connect(&window, &MainWindow::networkOpened, this, &Session::restoreNetwork);
    window.installEventFilter(this);
}

bool Session::eventFilter(QObject* watched, QEvent* event) {
    // Before the window hides its docks. Of other events some come when the window is no window any more.
    if (event->type() == QEvent::Close && watched == window_)
        keep();
    return QObject::eventFilter(watched, event);
}

void Session::restoreWindow() {
    window_->restoreGeometry(unsealed(settings_.value(QStringLiteral("window/geometry"))));
    if (auto* const splitter = window_->findChild<QSplitter*>(QStringLiteral("columns")))
        splitter->restoreState(unsealed(settings_.value(QStringLiteral("window/columns"))));
    window_->setRawValuesShown(settings_.value(QStringLiteral("window/rawValues"), false).toBool());
    auto const order = settings_.value(QStringLiteral("window/objectOrder")).toByteArray();
    window_->objectList()->setOrder(ObjectModel::orderNamed(order));
    window_->views().editorChoice().setOfTypes(
        pairsOf(settings_.value(QStringLiteral("window/editors")).toStringList()));
    window_->setAdvancedShown(settings_.value(QStringLiteral("window/advanced"), false).toBool());
    if (auto const found = themeOfKey(settings_.value(QStringLiteral("window/look")).toString()))
        window_->look().chooseTheme(*found);
    if (int const steps = settings_.value(QStringLiteral("window/textSize"), 0).toInt(); steps != 0)
        window_->look().chooseTextSize(steps);
    window_->recentFiles().addOlder(settings_.value(QStringLiteral("window/recent")).toStringList());
}

void Session::restoreNetwork() {
    if (!window_ || !window_->network())
        return;
    auto docks = unsealed(settings_.value(QStringLiteral("window/docks")));
    auto const known = networks();
    auto const found =
        std::find_if(known.begin(), known.end(),
                     [file = window_->document().path()](auto const& network) { return network.file == file; });
    if (found != known.end()) {
        window_->choosePool(found->pool);
        window_->views().setFoldedSections(found->folded);
        window_->views().editorChoice().setOfParameters(found->editors);
        auto const first = shownObject(window_->currentView());
        auto const views = found->views.mid(0, mostViews);
        for (int index = 0; index < views.size(); ++index)
            if (window_->showObject(views.at(index)))
                window_->views().addViewOn(window_->network()->findPool(found->viewPools.value(index)));
        if (!window_->showObject(found->object))
            window_->showObject(first);
        window_->objectList()->setFoldedKinds(found->foldedKinds);
        docks = found->docks;
    }
    nameViewDocks();
    window_->restoreDocks(docks, dockVersion);
}

void Session::keep() {
    if (!window_)
        return;
    auto const views = nameViewDocks();
    auto const docks = window_->saveState(dockVersion);
    settings_.setValue(QStringLiteral("window/geometry"), sealed(window_->saveGeometry()));
    settings_.setValue(QStringLiteral("window/docks"), sealed(docks));
    settings_.setValue(QStringLiteral("window/rawValues"), window_->rawValuesShown());
    settings_.setValue(QStringLiteral("window/advanced"), window_->advancedShown());
    settings_.setValue(QStringLiteral("window/objectOrder"), ObjectModel::nameOf(window_->objectList()->order()));
    settings_.setValue(QStringLiteral("window/look"), keyOf(theme()));
    settings_.setValue(QStringLiteral("window/textSize"), textSize());
    settings_.setValue(QStringLiteral("window/recent"), window_->recentFiles().files());
    settings_.setValue(QStringLiteral("window/editors"), toList(window_->views().editorChoice().ofTypes()));
    if (auto const* const splitter = window_->findChild<QSplitter*>(QStringLiteral("columns")))
        settings_.setValue(QStringLiteral("window/columns"), sealed(splitter->saveState()));
    if (window_->network()) {
        auto const pool = window_->pools().pool();
        keepNetwork({window_->document().path(), pool ? QString::fromStdString(pool->Name()) : QString(),
                     shownObject(window_->currentView()), views, viewPools(), docks, window_->views().foldedSections(),
                     window_->objectList()->foldedKinds(), window_->views().editorChoice().ofParameters()});
    }
    settings_.sync();
    if (settings_.status() == QSettings::AccessError)
        emit failed(tr("The session cannot be kept in %1.").arg(settings_.fileName()));
}

void Session::keepNetwork(NetworkRecord const& network) {
    auto all = networks();
    all.erase(std::remove_if(all.begin(), all.end(), [&](auto const& other) { return other.file == network.file; }),
              all.end());
    all.insert(all.begin(), network);
    settings_.remove(QLatin1String(networkArray));
    settings_.beginWriteArray(QLatin1String(networkArray));
    for (int index = 0; index < Capacity && index < static_cast<int>(all.size()); ++index) {
        auto const& record = all.at(static_cast<std::size_t>(index));
        settings_.setArrayIndex(index);
        settings_.setValue(QStringLiteral("file"), record.file);
        settings_.setValue(QStringLiteral("pool"), record.pool);
        settings_.setValue(QStringLiteral("object"), record.object);
        settings_.setValue(QStringLiteral("views"), record.views);
        settings_.setValue(QStringLiteral("viewPools"), record.viewPools);
        settings_.setValue(QStringLiteral("docks"), sealed(record.docks));
        settings_.setValue(QStringLiteral("folded"), toList(record.folded));
        settings_.setValue(QStringLiteral("foldedKinds"), record.foldedKinds);
        settings_.setValue(QStringLiteral("editors"), toList(record.editors));
    }
    settings_.endArray();
}

std::vector<Session::NetworkRecord> Session::networks() {
    std::vector<NetworkRecord> all;
    int const count = qMin(settings_.beginReadArray(QLatin1String(networkArray)), Capacity);
    for (int index = 0; index < count; ++index) {
        settings_.setArrayIndex(index);
        all.push_back({settings_.value(QStringLiteral("file")).toString(),
                       settings_.value(QStringLiteral("pool")).toString(),
                       settings_.value(QStringLiteral("object")).toString(),
                       settings_.value(QStringLiteral("views")).toStringList(),
                       settings_.value(QStringLiteral("viewPools")).toStringList(),
                       unsealed(settings_.value(QStringLiteral("docks"))),
                       fromList(settings_.value(QStringLiteral("folded")).toStringList()),
                       settings_.value(QStringLiteral("foldedKinds")).toStringList(),
                       pairsOf(settings_.value(QStringLiteral("editors")).toStringList())});
    }
    settings_.endArray();
    return all;
}

QStringList Session::nameViewDocks() const {
    QStringList objects;
    auto const docks = window_->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto* const dock : docks) {
        auto const* const view = qobject_cast<ObjectView*>(dock->widget());
        if (!view)
            continue;
        // One that was closed goes now, before it is counted.
        QPointer<QDockWidget> const open = dock;
        QCoreApplication::sendPostedEvents(dock, QEvent::DeferredDelete);
        if (!open)
            continue;
        objects << shownObject(view);
        dock->setObjectName(QStringLiteral("view%1").arg(objects.size()));
    }
    return objects;
}

QStringList Session::viewPools() const {
    QStringList pools;
    auto const docks = window_->findChildren<ViewDock*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto const* const dock : docks)
        pools << (dock->ownPool() ? QString::fromStdString(dock->ownPool()->Name()) : QString());
    return pools;
}

} // namespace Panel
