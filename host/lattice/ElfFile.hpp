#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// What the bytes of a file say about the library in it, without loading it. Whatever the bytes are, nothing beyond
/// them is read. It refers to the bytes, which must outlive it. Any thread. Prints nothing.
class TALO_EXPORT ElfFile {
public:
    /// Looks at the bytes of a whole file.
    explicit ElfFile(std::string_view bytes);

    /// Why the bytes are no complete library for this machine, without the name of the file: "it is empty", "it is cut
    /// off". Empty if they are one.
    std::string const& fault() const { return fault_; }
    /// A symbol that a library defines for others.
    struct Defined {
        std::string name;        ///< at most 1000 bytes
        bool isFunction = false; ///< else data
        bool isUnique = false;   ///< whether the system's loader keeps it unique, and so the library loaded
    };
    /// All that the library defines for others, in the order of its symbol table. Longer names are left out. Empty if
    /// there is a fault.
    std::vector<Defined> defined() const;
    /// The names of the functions that the library defines for others and that begin with `prefix`, in the order of its
    /// symbol table, at most 1000 of them. Names of more than 1000 bytes are left out. Empty if there is a fault.
    std::vector<std::string> functions(std::string_view prefix) const;
    /// The content of the first section with this name; empty if there is none, or a fault.
    std::string_view section(std::string_view name) const;

private:
    struct Symbols {
        std::uint64_t table;
        std::uint64_t count;
        std::string_view names;
    };
    template <typename T>
    bool read(std::uint64_t offset, T& out) const;
    std::string_view slice(std::uint64_t offset, std::uint64_t size) const;
    bool isWithin(std::uint64_t offset, std::uint64_t size) const;
    std::string findFault() const;
    std::string faultOfHeader() const;
    std::string faultOfSegments() const;
    // Where an address of the library lies in the file; beyond the file for an address that is in no segment.
    std::uint64_t offsetOf(std::uint64_t address) const;
    Symbols dynamicSymbols() const;
    // Null for a name that is no text of the file, or too long.
    static char const* nameAt(std::string_view names, std::uint64_t offset);
    // Of the symbols, by the offsets of the two kinds of index; 0 if the library has neither.
    std::uint64_t countByHash(std::uint64_t hash, std::uint64_t gnuHash) const;
    std::uint64_t countByGnuHash(std::uint64_t table) const;

    std::string_view bytes_;
    std::string fault_;
};

} // namespace Kolt
