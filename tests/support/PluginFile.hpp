#pragma once

/// The full path of the plug-in file that the test loads: qtalo_inputs.talo of this build, for most. It is no macro, as
/// tests that do not know in which folder they are built need not be compiled again for another one.
extern char const* const pluginFile;
