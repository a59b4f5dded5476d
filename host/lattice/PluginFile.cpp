#include <lattice/PluginFile.hpp>

#include <algorithm>
#include <filesystem>
#include <lattice/ElfFile.hpp>
#include <lattice/InterfaceStamp.hpp>
#include <lattice/PluginLoader.hpp>
#include <tessera/FileContent.hpp>

namespace Kolt {

namespace {

/// A few are enough to know what the file is.
std::string firstOf(std::vector<std::string> const& names) {
    constexpr std::size_t most = 3;
    std::string text;
    for (std::size_t index = 0; index < std::min(names.size(), most); ++index)
        text += (text.empty() ? "" : ", ") + names[index];
    return text + (names.size() > most ? " and others" : "");
}

/// Why the host cannot work with a file of this name that was compiled with the stamps in this section; empty if it
/// can. Each source of the file has a stamp.
std::string problemOfStamps(std::string const& file, std::string_view stamps) {
    if (stamps.empty())
        return "The plug-in " + file + " does not say for which interface of the host it was built.";
    std::string_view const own(interfaceStamp);
    for (std::size_t at = 0; at < stamps.size();) {
        auto const stamp = stamps.substr(at, stamps.find('\0', at) - at);
        at += stamp.size() + 1;
        if (!stamp.empty() && stamp != own)
            return "The plug-in " + file + " was built for another interface of the host (" +
                   std::string(stamp.substr(0, 100)) + ", not " + std::string(own) + "). Build it again.";
    }
    return {};
}

} // namespace

PluginFile::PluginFile(std::string const& file) : path_(canonicalPath(file)), problem_(problemOf(file)) {}

std::string PluginFile::canonicalPath(std::string const& file) {
    // The system would search its library folders for a bare name and take an empty one for the program itself. Two
    // links to one file are the same plug-in.
    std::error_code ignored;
    auto const absolute = std::filesystem::absolute(file.empty() ? "." : file, ignored);
    auto const real = std::filesystem::weakly_canonical(absolute, ignored);
    return (real.empty() ? absolute.lexically_normal() : real).string();
}

std::string PluginFile::exportPrefix() {
    return "TALO_API_2023_MAR_29__";
}

std::string PluginFile::problemOf(std::string const& file) const {
    auto const content = Tessera::FileContent::read(path_, LargestSize);
    if (!content)
        return "Cannot open the plug-in " + file + ": " + content.reason();
    return problemOfContent(file, content.bytes());
}

std::string PluginFile::problemOfContent(std::string const& file, std::string const& bytes) const {
    ElfFile const elf(bytes);
    if (!elf.fault().empty())
        return "Cannot open the plug-in " + file + ": " + elf.fault();
    auto const name = PluginLoader::exportName(path_);
    auto const exports = elf.functions(exportPrefix());
    if (std::find(exports.begin(), exports.end(), name) == exports.end())
        return "Cannot find the export " + name + " in the plug-in " + file + ": " +
               (exports.empty() ? "it has none" : "it has " + firstOf(exports));
    if (exports.size() > 1)
        return "Cannot open the plug-in " + file + ": it has several exports, " + firstOf(exports);
    return problemOfStamps(file, elf.section(".talo.interface"));
}

} // namespace Kolt
