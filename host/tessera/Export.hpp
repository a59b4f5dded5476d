#pragma once

/// Marks what a shared library of the host exports. Everything else in the libraries is hidden.
#define TALO_EXPORT __attribute__((visibility("default")))
