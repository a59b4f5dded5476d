#include "support/TaloTest.hpp"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

std::string read(fs::path const& file) {
    std::ifstream stream(file);
    EXPECT_TRUE(stream.good()) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// A document, and its text without the blocks of code.
struct Document {
    fs::path file;
    std::string text;
    std::string prose;
};

/// What the documents say of the tree must hold: the files and folders that they name, the names of the code, and the
/// code that they show.
class DocumentsTest : public TaloTest {
protected:
    DocumentsTest() {
        for (auto const* const folder : {".", "docs", "examples"}) {
            for (auto const& entry : fs::directory_iterator(root / folder)) {
                if (entry.path().extension() != ".md")
                    continue;
                auto const text = read(entry.path());
                static std::regex const block("```[^`]*```");
                documents.push_back({entry.path(), text, std::regex_replace(text, block, "")});
            }
        }
    }

    /// All that an expression with one group finds in a text.
    static std::vector<std::string> find(std::string const& text, std::string const& expression) {
        std::regex const regex(expression);
        std::vector<std::string> found;
        for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match)
            found.push_back((*match)[1]);
        return found;
    }

    /// The words of the sources, scripts and build files.
    std::set<std::string> wordsOfTheTree() const {
        std::set<std::string> words;
        auto const add = [&](fs::path const& file) {
            std::string word;
            for (char const c : read(file) + ' ') {
                if (std::isalnum(static_cast<unsigned char>(c)) || c == '_')
                    word += c;
                else if (!word.empty())
                    words.insert(std::exchange(word, {}));
            }
        };
        add(root / "CMakeLists.txt");
        add(root / "CMakePresets.json");
        for (auto const* const folder : {"host", "plugin", "qVinputs", "network", "parameters", "fractal", "panel",
                                         "tests", "benchmarks", "cmake", "examples", "scripts"}) {
            for (auto const& entry : fs::recursive_directory_iterator(root / folder)) {
                if (!entry.is_regular_file() || entry.path().extension() == ".md" || entry.path().extension() == ".ts")
                    continue;
                add(entry.path());
            }
        }
        return words;
    }

    fs::path const root = TALO_SOURCES;
    std::vector<Document> documents;
};

} // namespace

TEST_F(DocumentsTest, LinksLeadToFiles) {
    std::size_t links = 0;
    for (auto const& document : documents) {
        for (auto const& link : find(document.prose, "\\]\\(([^)#]+)\\)")) {
            ++links;
            EXPECT_TRUE(fs::exists(document.file.parent_path() / link)) << document.file << " links " << link;
        }
    }
    EXPECT_GT(links, 10U);
}

TEST_F(DocumentsTest, PathsExist) {
    std::size_t paths = 0;
    for (auto const& document : documents) {
        for (auto const& path : find(document.prose, "`([A-Za-z.][A-Za-z0-9_.-]*/[A-Za-z0-9_./-]*)`")) {
            // Others belong to folders of the reader, or are made by the build.
            auto const first = path.substr(0, path.find('/'));
            bool const inDocument = fs::exists(document.file.parent_path() / path);
            if (first == "build" || (first != "." && !fs::exists(root / first) && !inDocument))
                continue;
            ++paths;
            EXPECT_TRUE(inDocument || fs::exists(root / path)) << document.file << " names " << path;
        }
    }
    EXPECT_GT(paths, 20U);
}

TEST_F(DocumentsTest, NamesAreThoseOfTheCode) {
    auto const words = wordsOfTheTree();
    std::size_t names = 0;
    for (auto const& document : documents) {
        // What was called otherwise in an older version may still be read there.
        if (document.file.filename() == "CHANGELOG.md")
            continue;
        for (auto const& name : find(document.prose, "`((?:[A-Za-z_]\\w*::)*[A-Za-z_]\\w*)(?:<[^`]*>)?(?:\\(\\))?`")) {
            ++names;
            for (auto const& part : find(name, "(\\w+)"))
                EXPECT_EQ(words.count(part), 1U) << document.file << " names " << name;
        }
    }
    EXPECT_GT(names, 50U);
}

TEST_F(DocumentsTest, ShownCodeIsThatOfTheFile) {
    std::size_t blocks = 0;
    for (auto const& document : documents) {
        static std::regex const block("<!-- file: ([^ ]+) -->\n```[a-z]*\n([^`]*)```");
        for (std::sregex_iterator match(document.text.begin(), document.text.end(), block), end; match != end;
             ++match) {
            ++blocks;
            std::string const code = (*match)[2];
            // What is shown begins with whole lines of the file.
            auto const text = "\n" + read(root / (*match)[1].str());
            EXPECT_NE(text.find("\n" + code), std::string::npos)
                << document.file << " shows other code than " << (*match)[1] << ":\n"
                << code;
        }
    }
    EXPECT_GT(blocks, 3U);
}
