// Reads everything that a plug-in file's bytes say. The sanitizers see a read beyond them.

#include <cstdint>
#include <lattice/ElfFile.hpp>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    // In memory of exactly their size.
    std::vector<char> const bytes(data, data + size);
    Kolt::ElfFile const elf({bytes.data(), bytes.size()});
    static_cast<void>(elf.functions("TALO_API_"));
    static_cast<void>(elf.defined());
    static_cast<void>(elf.section(".talo.interface"));
    return 0;
}
