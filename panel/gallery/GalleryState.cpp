#include <panel/gallery/GalleryState.hpp>

#include <algorithm>
#include <QCoreApplication>
#include <QStringList>

namespace Panel {

namespace {

struct Key {
    GalleryState state;
    char const* text;
};

constexpr Key keys[] = {{GalleryState::Normal, "normal"},
                        {GalleryState::PerPool, "per-pool"},
                        {GalleryState::DeadParameter, "dead-parameter"},
                        {GalleryState::NoPool, "no-pool"},
                        {GalleryState::WrongType, "wrong-type"}};

} // namespace

std::vector<GalleryState> const& galleryStates() {
    static auto const states = [] {
        std::vector<GalleryState> all;
        std::transform(std::begin(keys), std::end(keys), std::back_inserter(all),
                       [](auto const& key) { return key.state; });
        return all;
    }();
    return states;
}

std::optional<GalleryState> findGalleryState(QString const& key) {
    auto const* const found = std::find_if(std::begin(keys), std::end(keys),
                                           [&](auto const& known) { return key == QLatin1String(known.text); });
    return found == std::end(keys) ? std::nullopt : std::optional<GalleryState>(found->state);
}

QString galleryStateKeys() {
    QStringList all;
    for (auto const& key : keys)
        all << QLatin1String(key.text);
    return all.join(QLatin1String(", "));
}

QString galleryStateTitle(GalleryState state) {
    switch (state) {
    case GalleryState::PerPool:
        return QCoreApplication::translate("Panel::GalleryState", "Per pool");
    case GalleryState::DeadParameter:
        return QCoreApplication::translate("Panel::GalleryState", "Dead parameter");
    case GalleryState::NoPool:
        return QCoreApplication::translate("Panel::GalleryState", "No pool");
    case GalleryState::WrongType:
        return QCoreApplication::translate("Panel::GalleryState", "Wrong type");
    case GalleryState::Normal:
        break;
    }
    return QCoreApplication::translate("Panel::GalleryState", "Normal");
}

QString galleryStateDescription(GalleryState state) {
    switch (state) {
    case GalleryState::PerPool:
        return QCoreApplication::translate(
            "Panel::GalleryState",
            "Each parameter keeps a value per pool. Editors show and change the value of the chosen pool.");
    case GalleryState::DeadParameter:
        return QCoreApplication::translate(
            "Panel::GalleryState",
            "Each parameter was deleted after its editors were made. An edit finds nothing to write to and says so.");
    case GalleryState::NoPool:
        return QCoreApplication::translate("Panel::GalleryState",
                                           "No pool is chosen. An edit stores nothing and tells nobody.");
    case GalleryState::WrongType:
        return QCoreApplication::translate(
            "Panel::GalleryState",
            "Each parameter holds a value of another type than it declares. Editors leave that value alone.");
    case GalleryState::Normal:
        break;
    }
    return QCoreApplication::translate(
        "Panel::GalleryState", "Each parameter has one value. What one editor changes, the other one shows at once.");
}

} // namespace Panel
