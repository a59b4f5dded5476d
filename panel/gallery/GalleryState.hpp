#pragma once

#include <optional>
#include <QString>
#include <vector>

namespace Panel {

/// The circumstances in which the gallery shows editors.
enum class GalleryState {
    Normal,        ///< one value, shared by all pools
    PerPool,       ///< a value for each pool, and a pool that can be switched
    DeadParameter, ///< the parameter was deleted after its editors were made
    NoPool,        ///< nobody chose a pool
    WrongType      ///< the parameter holds a value of another type than it declares
};

/// All states, in the order in which they are shown.
std::vector<GalleryState> const& galleryStates();

/// The state with a key ("per-pool"); nothing for any other text.
std::optional<GalleryState> findGalleryState(QString const& key);

/// The keys of all states, for messages: "normal, per-pool, ...".
QString galleryStateKeys();

/// The name of a state, for people.
QString galleryStateTitle(GalleryState state);

/// What is so in a state, and what an edit does there: a sentence or two.
QString galleryStateDescription(GalleryState state);

} // namespace Panel
