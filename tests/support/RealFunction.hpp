#pragma once

#include <dlfcn.h>

/// The function of the system that one of the program stands before: the next one of that name. It has the type of the
/// first argument.
template <typename Function>
Function* real(Function*, char const* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}
