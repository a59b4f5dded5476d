#pragma once

#include <lattice/InputRegistry.hpp>
#include <lattice/ValuePool.hpp>
#include <panel/gallery/GalleryState.hpp>

namespace Panel {

/// The name of a value type for people: its key in network files, and the type itself where that says more.
QString valueTypeTitle(std::string const& valueType);

/// A new parameter that suits a registered creator in a state of the gallery: of the creator's type, with the
/// creator's preferences, a value that makes sense for it and the properties that its editors look for. `pools` are
/// those for which a parameter that keeps values per pool gets one. The caller owns it. Null for a creator that is gone
/// and for a type of which nobody can make a value. User-interface thread.
Kolt::ParameterPtr makeGalleryExample(Kolt::InputRegistry::Entry const& entry, GalleryState state,
                                      std::vector<Kolt::PoolPtr> const& pools);

} // namespace Panel
