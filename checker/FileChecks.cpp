#include <checker/Check.hpp>
#include <dlfcn.h>
#include <lattice/ElfFile.hpp>
#include <lattice/PluginFile.hpp>
#include <lattice/PluginLoader.hpp>
#include <tessera/FileContent.hpp>

namespace Checker {

namespace {

void canBeLoaded(Subject const& subject, Findings& findings) {
    auto const problem = Kolt::PluginFile(subject.file).problem();
    findings.expect(problem.empty(), problem);
}

/// Calls a function with each symbol that the file defines for others, but for its export.
template <typename Function>
void forEachOther(Subject const& subject, Findings& findings, Function const& function) {
    auto const path = Kolt::PluginFile::canonicalPath(subject.file);
    auto const content = Tessera::FileContent::read(path, Kolt::PluginFile::LargestSize);
    if (!findings.expect(bool(content), "it cannot be read: " + content.reason()))
        return;
    Kolt::ElfFile const elf(content.bytes());
    if (!findings.expect(elf.fault().empty(), elf.fault()))
        return;
    for (auto const& symbol : elf.defined())
        if (symbol.name != Kolt::PluginLoader::exportName(path))
            function(symbol);
}

void hidesTheRest(Subject const& subject, Findings& findings) {
    forEachOther(subject, findings, [&](Kolt::ElfFile::Defined const& symbol) {
        findings.fault("it exports " + symbol.name + ", which another plug-in may have, too");
    });
}

void hasNoUniqueSymbol(Subject const& subject, Findings& findings) {
    forEachOther(subject, findings, [&](Kolt::ElfFile::Defined const& symbol) {
        findings.expect(!symbol.isUnique,
                        "the symbol " + symbol.name + " is unique and keeps the file loaded for ever");
    });
}

void findsEverySymbol(Subject const& subject, Findings& findings) {
    auto const path = Kolt::PluginFile::canonicalPath(subject.file);
    // All symbols are looked up at once.
    void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle)
        dlclose(handle);
    else
        findings.fault(dlerror());
}

} // namespace

void addFileChecks(std::vector<Check>& checks) {
    checks.push_back(
        {1, "file", "It is a plug-in for this machine and host, with one export of the right name.", canBeLoaded});
    checks.push_back({1, "hidden", "Nothing but the export can be seen by others.", hidesTheRest});
    checks.push_back({1, "resolved", "The libraries that it names define all that it needs.", findsEverySymbol});
    checks.push_back({1, "unique", "It has no symbol that keeps it loaded.", hasNoUniqueSymbol});
}

} // namespace Checker
