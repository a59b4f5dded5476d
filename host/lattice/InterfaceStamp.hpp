#pragma once

namespace Kolt {

/// The stamp of the host's interface: a text that changes when the layout of one of its classes does, such as by a
/// virtual function or a member that comes or goes. `scripts/abi` computes and writes it.
///
/// It lies in a section of every file that was compiled with these headers, so that the host can read from a plug-in
/// file, before it loads it, for which interface it was built (PluginFile).
[[gnu::section(".talo.interface"), gnu::used, gnu::retain]] constexpr char interfaceStamp[] = "5f981ee780e9ed11";

} // namespace Kolt
