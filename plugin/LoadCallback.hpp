#pragma once

namespace Kolt {

/// The library's load/unload callback, with the arguments of a system loader: module handle, reason (0 process detach,
/// 1 process attach, 2 thread attach, 3 thread detach), reserved pointer. Tells the host of the four reasons and of
/// no other. Returns 1, success, in every case. Loading thread; the thread reasons on their thread.
int loadCallback(void* module, unsigned long reason, void* reserved);

} // namespace Kolt
