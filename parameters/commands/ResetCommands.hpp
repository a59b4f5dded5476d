#pragma once

#include <lattice/Object.hpp>
#include <QString>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Makes the defaults of these parameters effective in a pool. All that changes in one history is one undo step of it.
/// Those without a default stay as they are, and so do those that people may not change (isChangeable). Notifiers may
/// delete parameters and widgets meanwhile.
TALO_EXPORT void resetToDefaults(std::vector<Kolt::ParameterPtr> const& parameters, Kolt::PoolPtr const& pool);

/// The parameters of an object that have this section title (ParameterDescription), in their order. Those without a
/// section have the empty title.
TALO_EXPORT std::vector<Kolt::ParameterPtr> parametersInSection(Kolt::VObject const& object, QString const& title);

} // namespace Talo
