#include "NetworkFileCheck.hpp"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    auto const problem = problemOfNetworkFile(QByteArray(reinterpret_cast<char const*>(data), static_cast<int>(size)));
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
