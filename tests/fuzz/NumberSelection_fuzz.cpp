#include "NumberSelectionCheck.hpp"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (!readsLikeTheReference(std::string(reinterpret_cast<char const*>(data), size)))
        std::abort();
    return 0;
}
