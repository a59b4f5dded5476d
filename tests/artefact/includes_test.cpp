#include "support/TaloTest.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>

namespace {

namespace fs = std::filesystem;

/// The modules, each with those whose headers it may include besides its own.
std::map<std::string, std::vector<std::string>> const allowed = {
    {"tessera", {}},
    {"lattice", {"tessera"}},
    {"bramble", {"tessera", "lattice"}},
    {"sorrel", {"tessera", "lattice", "bramble"}},
    {"plugin", {"tessera", "lattice", "bramble", "sorrel"}},
    {"qVinputs", {"tessera", "lattice", "bramble", "sorrel", "plugin"}},
    {"network", {"tessera", "lattice", "bramble"}},
    {"parameters", {"tessera", "lattice", "bramble", "sorrel", "network"}},
    {"fractal", {"tessera", "lattice", "bramble", "network"}},
    {"panel", {"tessera", "lattice", "bramble", "sorrel", "network", "parameters", "fractal"}}};

bool isHost(std::string const& module) {
    return module == "tessera" || module == "lattice" || module == "bramble" || module == "sorrel";
}

bool has(std::vector<std::string> const& modules, std::string const& module) {
    return std::find(modules.begin(), modules.end(), module) != modules.end();
}

/// Why a source of a module must not include a header; nothing where it may. The header is what stands between the
/// brackets or quotation marks.
std::optional<std::string> objection(std::string const& module, std::string const& header) {
    bool const mayUseQt = !isHost(module) || module == "sorrel";
    auto const slash = header.find('/');
    if (slash == std::string::npos) {
        // By the name of the class, or of the file.
        static std::regex const qt("Q[A-Za-z0-9]+|q[a-z0-9_]+\\.h");
        if (std::regex_match(header, qt))
            return mayUseQt ? std::nullopt : std::make_optional<std::string>("uses Qt");
        // What the meta-object compiler makes of the source itself.
        if (header.size() > 4 && header.substr(header.size() - 4) == ".moc")
            return mayUseQt ? std::nullopt : std::make_optional<std::string>("uses Qt");
        static std::regex const standard("[a-z0-9_]+(\\.h)?");
        return std::regex_match(header, standard) ? std::nullopt : std::make_optional<std::string>("names no module");
    }
    auto const target = header.substr(0, slash);
    if (target.rfind("Qt", 0) == 0)
        return mayUseQt ? std::nullopt : std::make_optional<std::string>("uses Qt");
    if (target == "sys")
        return std::nullopt;
    if (allowed.count(target) == 0)
        return "looks into an unknown place";
    bool const mayInclude = target == module || has(allowed.at(module), target);
    return mayInclude ? std::nullopt : std::make_optional<std::string>("goes against the dependencies");
}

std::vector<std::string> headersOf(std::istream& source) {
    static std::regex const include("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"].*");
    std::vector<std::string> headers;
    for (std::string line; std::getline(source, line);) {
        std::smatch match;
        if (std::regex_match(line, match, include))
            headers.push_back(match[1]);
    }
    return headers;
}

class Includes : public TaloTest {};

class IncludesOfModule : public TaloTest, public testing::WithParamInterface<char const*> {};

TEST_P(IncludesOfModule, FollowTheDependencies) {
    std::string const module = GetParam();
    fs::path const folder = fs::path(TALO_SOURCES) / (isHost(module) ? "host/" + module : module);
    int headers = 0;
    for (auto const& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".hpp" && entry.path().extension() != ".cpp")
            continue;
        std::ifstream source(entry.path());
        ASSERT_TRUE(source) << entry.path();
        for (auto const& header : headersOf(source)) {
            ++headers;
            auto const reason = objection(module, header);
            EXPECT_FALSE(reason) << entry.path() << " " << *reason << ": " << header;
        }
    }
    EXPECT_GT(headers, 0) << "no source was found in " << folder;
}

INSTANTIATE_TEST_SUITE_P(Modules, IncludesOfModule,
                         testing::Values("tessera", "lattice", "bramble", "sorrel", "plugin", "qVinputs", "network",
                                         "parameters", "fractal", "panel"),
                         [](auto const& test) { return std::string(test.param); });

TEST_F(Includes, AreFoundInEverySpelling) {
    std::istringstream source("#include <a/b.hpp>\n  #  include \"c.moc\" // why\n// #include <no>\n#pragma once\n");
    EXPECT_THAT(headersOf(source), testing::ElementsAre("a/b.hpp", "c.moc"));
}

TEST_F(Includes, AgainstTheDependenciesAreObjectedTo) {
    std::pair<char const*, char const*> const wrong[] = {{"tessera", "lattice/Value.hpp"},
                                                         {"lattice", "bramble/Color.hpp"},
                                                         {"bramble", "sorrel/QIconizer.hpp"},
                                                         {"sorrel", "plugin/VInputValue.hpp"},
                                                         {"plugin", "qVinputs/basics/QBool.hpp"},
                                                         {"qVinputs", "panel/look/Look.hpp"},
                                                         {"panel", "plugin/VInputValue.hpp"},
                                                         {"network", "sorrel/InputFrontEnd.hpp"},
                                                         {"parameters", "panel/look/Look.hpp"},
                                                         {"parameters", "fractal/engine/Picture.hpp"},
                                                         {"fractal", "parameters/PoolSource.hpp"},
                                                         {"fractal", "panel/look/Look.hpp"},
                                                         {"network", "parameters/PoolSource.hpp"},
                                                         {"panel", "qVinputs/basics/QBool.hpp"},
                                                         {"tessera", "QString"},
                                                         {"bramble", "qstring.h"},
                                                         {"lattice", "qglobal.h"},
                                                         {"lattice", "QtCore/QString"},
                                                         {"bramble", "Values.moc"},
                                                         {"qVinputs", "elsewhere/Thing.hpp"},
                                                         {"qVinputs", "QBool.hpp"},
                                                         {"panel", "../plugin/VInputValue.hpp"},
                                                         {"lattice", "Value.hpp"}};
    for (auto const& [module, header] : wrong)
        EXPECT_TRUE(objection(module, header)) << module << " " << header;
}

TEST_F(Includes, AlongTheDependenciesAreFine) {
    std::pair<char const*, char const*> const right[] = {{"lattice", "tessera/Reference.hpp"},
                                                         {"lattice", "lattice/Value.hpp"},
                                                         {"sorrel", "QWidget"},
                                                         {"sorrel", "qglobal.h"},
                                                         {"lattice", "queue"},
                                                         {"plugin", "sorrel/QInputCreator.hpp"},
                                                         {"qVinputs", "plugin/VInputValue.hpp"},
                                                         {"qVinputs", "qVColor.moc"},
                                                         {"panel", "sorrel/InputFrontEnd.hpp"},
                                                         {"panel", "network/Network.hpp"},
                                                         {"panel", "fractal/ui/Preview.hpp"},
                                                         {"parameters", "network/ValueFormat.hpp"},
                                                         {"panel", "sys/eventfd.h"},
                                                         {"tessera", "cxxabi.h"},
                                                         {"tessera", "unordered_map"}};
    for (auto const& [module, header] : right)
        EXPECT_FALSE(objection(module, header)) << module << " " << header;
}

} // namespace
