#pragma once

/// Marks what a shared library of the host exports: public classes, free functions, variables and explicit
/// instantiations of templates. Everything else in the libraries is hidden, so that a host or a plug-in can only use
/// what the headers offer. A class template needs no mark.
#define TALO_EXPORT __attribute__((visibility("default")))
