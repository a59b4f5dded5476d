#pragma once

#include <QString>

/// Where the program finds what comes with it, in a build folder as well as where it was installed. It looks from the
/// folder of the program.
namespace Panel {

/// The network that is opened when none is named; empty when it is not there.
QString defaultNetworkFile();

/// The project's own plug-in, in the folder whose plug-ins are loaded. Where it is not there, the place where it should
/// be.
QString defaultPluginFile();

/// The checker of plug-in files (talo_check); empty when it is not there.
QString checkerProgram();

} // namespace Panel
