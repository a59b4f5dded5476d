#include <lattice/ElfFile.hpp>

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <iterator>
#include <limits>
#include <link.h>

// The header of the library that this source is linked into, which the linker defines.
extern "C" [[gnu::visibility("hidden")]] ElfW(Ehdr) const ownHeader __asm__("__ehdr_start");

namespace Kolt {

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);
using Section = ElfW(Shdr);
using Symbol = ElfW(Sym);
using DynamicEntry = ElfW(Dyn);

constexpr auto outside = std::numeric_limits<std::uint64_t>::max();
constexpr std::size_t longestName = 1000;
constexpr std::size_t mostDefined = 100000;
constexpr char cutOff[] = "it is cut off";

bool looksLikeText(std::string_view bytes) {
    auto const start = bytes.substr(0, 512);
    return std::all_of(start.begin(), start.end(), [](char sign) {
        auto const code = static_cast<unsigned char>(sign);
        return code >= ' ' || sign == '\n' || sign == '\r' || sign == '\t';
    });
}

} // namespace

template <typename T>
bool ElfFile::read(std::uint64_t offset, T& out) const {
    if (!isWithin(offset, sizeof out))
        return false;
    // Copied, as nothing in a file need be aligned.
    std::memcpy(&out, bytes_.data() + offset, sizeof out);
    return true;
}

bool ElfFile::isWithin(std::uint64_t offset, std::uint64_t size) const {
    return offset <= bytes_.size() && size <= bytes_.size() - offset;
}

std::string_view ElfFile::slice(std::uint64_t offset, std::uint64_t size) const {
    return isWithin(offset, size) ? bytes_.substr(offset, size) : std::string_view();
}

ElfFile::ElfFile(std::string_view bytes) : bytes_(bytes), fault_(findFault()) {}

std::string ElfFile::findFault() const {
    auto const fault = faultOfHeader();
    return fault.empty() ? faultOfSegments() : fault;
}

std::string ElfFile::faultOfHeader() const {
    if (bytes_.empty())
        return "it is empty";
    std::string_view const mark(ELFMAG, SELFMAG);
    auto const start = bytes_.substr(0, mark.size());
    if (start != mark && start == mark.substr(0, start.size()))
        return cutOff;
    if (start != mark)
        return looksLikeText(bytes_) ? "it is a text and no ELF file" : "it is no ELF file";
    Header header{};
    std::memcpy(&header, bytes_.data(), std::min(sizeof header, bytes_.size()));
    if (bytes_.size() < EI_NIDENT)
        return cutOff;
    if (header.e_ident[EI_CLASS] != ownHeader.e_ident[EI_CLASS])
        return header.e_ident[EI_CLASS] == ELFCLASS32 ? "it is for a machine of 32 bits" : "it is for another machine";
    if (header.e_ident[EI_DATA] != ownHeader.e_ident[EI_DATA])
        return "it is for another machine";
    if (bytes_.size() < sizeof header)
        return cutOff;
    if (header.e_machine != ownHeader.e_machine)
        return "it is for another machine";
    if (header.e_type != ET_DYN)
        return "it is an ELF file but no shared library";
    if (header.e_ident[EI_VERSION] != EV_CURRENT || header.e_phentsize != sizeof(Segment) || header.e_phnum == 0)
        return "its ELF header is damaged";
    return {};
}

std::string ElfFile::faultOfSegments() const {
    Header header{};
    read(0, header);
    // What is at the end of the file is looked at too, as it is what a file that is cut off lacks first.
    std::uint64_t const sections = std::uint64_t{header.e_shnum} * header.e_shentsize;
    if (!isWithin(header.e_phoff, std::uint64_t{header.e_phnum} * sizeof(Segment)) ||
        !isWithin(header.e_shoff, sections))
        return cutOff;
    bool hasDynamic = false;
    bool hasContent = false;
    for (unsigned index = 0; index < header.e_phnum; ++index) {
        Segment segment{};
        read(header.e_phoff + index * sizeof(Segment), segment);
        bool const isLoaded = segment.p_type == PT_LOAD;
        hasContent = hasContent || isLoaded;
        hasDynamic = hasDynamic || segment.p_type == PT_DYNAMIC;
        if (segment.p_type != PT_NULL && !isWithin(segment.p_offset, segment.p_filesz))
            return cutOff;
        if (isLoaded && (segment.p_filesz > segment.p_memsz || segment.p_vaddr + segment.p_memsz < segment.p_vaddr))
            return "its segments are damaged";
    }
    return hasDynamic && hasContent ? std::string() : "it has nothing that can be loaded";
}

std::uint64_t ElfFile::offsetOf(std::uint64_t address) const {
    Header header{};
    read(0, header);
    for (unsigned index = 0; index < header.e_phnum; ++index) {
        Segment segment{};
        read(header.e_phoff + index * sizeof(Segment), segment);
        if (segment.p_type == PT_LOAD && address >= segment.p_vaddr && address - segment.p_vaddr < segment.p_filesz)
            return segment.p_offset + (address - segment.p_vaddr);
    }
    return outside;
}

ElfFile::Symbols ElfFile::dynamicSymbols() const {
    Header header{};
    read(0, header);
    Segment dynamic{};
    for (unsigned index = 0; index < header.e_phnum && dynamic.p_type != PT_DYNAMIC; ++index)
        read(header.e_phoff + index * sizeof(Segment), dynamic);
    // By the tags, of which the loader of the system uses the last one, too.
    std::uint64_t found[] = {outside, outside, 0, outside, outside};
    constexpr std::int64_t tags[] = {DT_SYMTAB, DT_STRTAB, DT_STRSZ, DT_HASH, DT_GNU_HASH};
    DynamicEntry entry{};
    for (std::uint64_t at = 0; at + sizeof entry <= dynamic.p_filesz; at += sizeof entry) {
        if (!read(dynamic.p_offset + at, entry) || entry.d_tag == DT_NULL)
            break;
        auto const* const tag = std::find(std::begin(tags), std::end(tags), entry.d_tag);
        if (tag != std::end(tags))
            found[tag - tags] = entry.d_un.d_val;
    }
    auto const [table, names, namesSize, hash, gnuHash] = found;
    return {offsetOf(table), countByHash(offsetOf(hash), offsetOf(gnuHash)), slice(offsetOf(names), namesSize)};
}

std::uint64_t ElfFile::countByHash(std::uint64_t hash, std::uint64_t gnuHash) const {
    // The table of symbols has no length of its own; each of its two indexes has it.
    std::uint32_t counts[2] = {};
    return read(hash, counts) ? counts[1] : countByGnuHash(gnuHash);
}

std::uint64_t ElfFile::countByGnuHash(std::uint64_t table) const {
    struct {
        std::uint32_t buckets, firstSymbol, filterWords, filterShift;
    } head{};
    if (!read(table, head))
        return 0;
    auto const buckets = table + sizeof head + std::uint64_t{head.filterWords} * sizeof(ElfW(Addr));
    auto const chains = buckets + std::uint64_t{head.buckets} * sizeof(std::uint32_t);
    std::uint32_t last = 0;
    for (std::uint64_t index = 0; index < head.buckets; ++index) {
        std::uint32_t symbol = 0;
        if (!read(buckets + index * sizeof symbol, symbol))
            return 0;
        last = std::max(last, symbol);
    }
    if (last < head.firstSymbol || last == 0)
        return 0;
    // The last chain ends with a hash whose lowest bit is set.
    std::uint32_t hash = 0;
    while ((hash & 1) == 0) {
        if (!read(chains + std::uint64_t{last - head.firstSymbol} * sizeof hash, hash))
            return 0;
        ++last;
    }
    return last;
}

char const* ElfFile::nameAt(std::string_view names, std::uint64_t offset) {
    if (offset >= names.size())
        return nullptr;
    auto const rest = names.substr(offset, longestName + 1);
    return rest.find('\0') == std::string_view::npos ? nullptr : rest.data();
}

std::vector<ElfFile::Defined> ElfFile::defined() const {
    std::vector<Defined> all;
    if (!fault_.empty())
        return all;
    auto const symbols = dynamicSymbols();
    for (std::uint64_t index = 0; index < symbols.count && all.size() < mostDefined; ++index) {
        Symbol symbol{};
        if (!read(symbols.table + index * sizeof symbol, symbol))
            break;
        auto const type = ELF64_ST_TYPE(symbol.st_info);
        auto const binding = ELF64_ST_BIND(symbol.st_info);
        bool const isForOthers =
            symbol.st_shndx != SHN_UNDEF && binding != STB_LOCAL && (type == STT_FUNC || type == STT_OBJECT);
        if (auto const* const name = isForOthers ? nameAt(symbols.names, symbol.st_name) : nullptr)
            all.push_back({name, type == STT_FUNC, binding == STB_GNU_UNIQUE});
    }
    return all;
}

std::vector<std::string> ElfFile::functions(std::string_view prefix) const {
    std::vector<std::string> names;
    for (auto& symbol : defined())
        if (symbol.isFunction && symbol.name.compare(0, prefix.size(), prefix) == 0)
            names.push_back(std::move(symbol.name));
    return names;
}

std::string_view ElfFile::section(std::string_view name) const {
    Header header{};
    if (!fault_.empty() || !read(0, header) || header.e_shentsize != sizeof(Section))
        return {};
    Section names{};
    if (header.e_shstrndx >= header.e_shnum || !read(header.e_shoff + header.e_shstrndx * sizeof(Section), names))
        return {};
    for (unsigned index = 0; index < header.e_shnum; ++index) {
        Section section{};
        read(header.e_shoff + index * sizeof(Section), section);
        auto const ownName = slice(names.sh_offset, names.sh_size);
        if (section.sh_name >= ownName.size() || section.sh_type == SHT_NOBITS)
            continue;
        auto const rest = ownName.substr(section.sh_name, name.size() + 1);
        if (rest.size() == name.size() + 1 && rest.substr(0, name.size()) == name && rest.back() == '\0')
            return slice(section.sh_offset, section.sh_size);
    }
    return {};
}

} // namespace Kolt
