#include "support/TaloTest.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>

namespace {

namespace fs = std::filesystem;

/// The rooms in the order of the arrows: each may look into itself and into those before it.
std::vector<std::string> const rooms = {"tessera", "lattice", "bramble", "sorrel", "plugin", "qVinputs"};

std::ptrdiff_t placeOf(std::string const& room) {
    return std::find(rooms.begin(), rooms.end(), room) - rooms.begin();
}

bool isHost(std::string const& room) {
    return placeOf(room) <= placeOf("sorrel");
}

/// Why a source of a room must not include a header; nothing where it may. The header is what stands between the
/// brackets or quotation marks.
std::optional<std::string> objection(std::string const& room, std::string const& header) {
    bool const mayUseQt = !isHost(room) || room == "sorrel";
    auto const slash = header.find('/');
    if (slash == std::string::npos) {
        static std::regex const qt("Q[A-Za-z0-9]+");
        if (std::regex_match(header, qt))
            return mayUseQt ? std::nullopt : std::make_optional<std::string>("uses Qt");
        // What the meta-object compiler makes of the source itself.
        if (header.size() > 4 && header.substr(header.size() - 4) == ".moc")
            return mayUseQt ? std::nullopt : std::make_optional<std::string>("uses Qt");
        static std::regex const standard("[a-z0-9_]+(\\.h)?");
        return std::regex_match(header, standard) ? std::nullopt : std::make_optional<std::string>("names no room");
    }
    auto const target = header.substr(0, slash);
    if (target.rfind("Qt", 0) == 0)
        return mayUseQt ? std::nullopt : std::make_optional<std::string>("uses Qt");
    if (target == "sys")
        return std::nullopt;
    if (target == "panel")
        return room == "panel" ? std::nullopt : std::make_optional<std::string>("looks into the panel");
    if (placeOf(target) == static_cast<std::ptrdiff_t>(rooms.size()))
        return "looks into an unknown place";
    if (room == "panel")
        return isHost(target) ? std::nullopt : std::make_optional<std::string>("looks into the plug-in");
    return placeOf(target) <= placeOf(room) ? std::nullopt : std::make_optional<std::string>("goes against the arrows");
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

class IncludesOfRoom : public TaloTest, public testing::WithParamInterface<char const*> {};

TEST_P(IncludesOfRoom, FollowTheArrows) {
    std::string const room = GetParam();
    fs::path const folder = fs::path(TALO_SOURCES) / (isHost(room) ? "host/" + room : room);
    int headers = 0;
    for (auto const& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".hpp" && entry.path().extension() != ".cpp")
            continue;
        std::ifstream source(entry.path());
        ASSERT_TRUE(source) << entry.path();
        for (auto const& header : headersOf(source)) {
            ++headers;
            auto const reason = objection(room, header);
            EXPECT_FALSE(reason) << entry.path() << " " << *reason << ": " << header;
        }
    }
    EXPECT_GT(headers, 0) << "no source was found in " << folder;
}

INSTANTIATE_TEST_SUITE_P(Rooms, IncludesOfRoom,
                         testing::Values("tessera", "lattice", "bramble", "sorrel", "plugin", "qVinputs", "panel"),
                         [](auto const& test) { return std::string(test.param); });

TEST_F(Includes, AreFoundInEverySpelling) {
    std::istringstream source("#include <a/b.hpp>\n  #  include \"c.moc\" // why\n// #include <no>\n#pragma once\n");
    EXPECT_THAT(headersOf(source), testing::ElementsAre("a/b.hpp", "c.moc"));
}

TEST_F(Includes, AgainstTheArrowsAreObjectedTo) {
    std::pair<char const*, char const*> const wrong[] = {{"tessera", "lattice/Value.hpp"},
                                                         {"lattice", "bramble/Values.hpp"},
                                                         {"bramble", "sorrel/QIconizer.hpp"},
                                                         {"sorrel", "plugin/VInputValue.hpp"},
                                                         {"plugin", "qVinputs/basics/QBool.hpp"},
                                                         {"qVinputs", "panel/Look.hpp"},
                                                         {"panel", "plugin/VInputValue.hpp"},
                                                         {"panel", "qVinputs/basics/QBool.hpp"},
                                                         {"tessera", "QString"},
                                                         {"lattice", "QtCore/QString"},
                                                         {"bramble", "Values.moc"},
                                                         {"qVinputs", "elsewhere/Thing.hpp"},
                                                         {"qVinputs", "QBool.hpp"},
                                                         {"panel", "../plugin/VInputValue.hpp"},
                                                         {"lattice", "Value.hpp"}};
    for (auto const& [room, header] : wrong)
        EXPECT_TRUE(objection(room, header)) << room << " " << header;
}

TEST_F(Includes, AlongTheArrowsAreFine) {
    std::pair<char const*, char const*> const right[] = {{"lattice", "tessera/Reference.hpp"},
                                                         {"lattice", "lattice/Value.hpp"},
                                                         {"sorrel", "QWidget"},
                                                         {"plugin", "sorrel/QInputCreator.hpp"},
                                                         {"qVinputs", "plugin/VInputValue.hpp"},
                                                         {"qVinputs", "qVColor.moc"},
                                                         {"panel", "sorrel/InputFrontEnd.hpp"},
                                                         {"panel", "panel/network/Network.hpp"},
                                                         {"panel", "sys/eventfd.h"},
                                                         {"tessera", "cxxabi.h"},
                                                         {"tessera", "unordered_map"}};
    for (auto const& [room, header] : right)
        EXPECT_FALSE(objection(room, header)) << room << " " << header;
}

} // namespace
