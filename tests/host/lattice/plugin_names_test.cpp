// A file is one plug-in, by whatever name it is called and whatever becomes of the name while it is loaded.

#include "host/lattice/PluginLoaderTest.hpp"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class PluginNames : public PluginLoaderTest {
protected:
    void SetUp() override {
        PluginLoaderTest::SetUp();
        earlierFolder_ = fs::current_path();
        // A copy finds its libraries in the folder of the sample alone.
        file_ = fs::path(TALO_SAMPLE_PLUGIN);
    }
    void TearDown() override {
        fs::current_path(earlierFolder_);
        PluginLoaderTest::TearDown();
    }
    void expectLoadedAlready(std::string const& name) {
        EXPECT_EQ(loader_.load(name).message, "The plug-in " + name + " is loaded already.");
    }
    fs::path file_;
    fs::path earlierFolder_;
};

TEST_F(PluginNames, ALinkOfAnotherNameLeadsToTheExportOfTheFile) {
    auto const link = (folder_ / "current.talo").string();
    fs::create_symlink(file_, link);
    auto const loaded = loader_.load(link);
    ASSERT_TRUE(loaded.ok) << loaded.message;
    EXPECT_THAT(loader_.files(), ElementsAre(link));
    expectLoadedAlready(file_.string());
    EXPECT_TRUE(loader_.unload(file_.string()).ok);
    EXPECT_FALSE(isMapped(file_.string()));
}

TEST_F(PluginNames, ALinkThatLeadsElsewhereByNowIsStillTheLoadedFile) {
    auto const link = (folder_ / "current.talo").string();
    fs::create_symlink(file_, link);
    ASSERT_TRUE(loader_.load(link).ok);
    fs::remove(link);
    fs::create_symlink(TALO_SECOND_SAMPLE_PLUGIN, link);
    EXPECT_TRUE(loader_.unload(link).ok);
    EXPECT_FALSE(isMapped(file_.string()));
}

TEST_F(PluginNames, ARelativePathIsTheFileItWasInWhateverFolderTheProgramIsNow) {
    fs::current_path(file_.parent_path());
    auto const name = file_.filename().string();
    ASSERT_TRUE(loader_.load(name).ok);
    expectLoadedAlready(file_.string());
    fs::current_path(folder_);
    EXPECT_EQ(loader_.livingEditors(name), 0);
    expectLoadedAlready(file_.string());
    EXPECT_THAT(loader_.load(name).message, testing::HasSubstr("No such file")) << "here is none of this name";
    EXPECT_TRUE(loader_.unload(name).ok) << "the name by which it was loaded";
    EXPECT_FALSE(isMapped(file_.string()));
}

TEST_F(PluginNames, AFileThatWasReplacedOrRemovedIsUnloadedByItsName) {
    // As deep as the file, so that the copy finds the same libraries.
    auto const copy = file_.parent_path().parent_path() / "copied" / file_.filename();
    fs::create_directories(copy.parent_path());
    for (bool const isReplaced : {true, false}) {
        fs::copy_file(TALO_SAMPLE_PLUGIN, copy, fs::copy_options::overwrite_existing);
        auto const loaded = loader_.load(copy.string());
        ASSERT_TRUE(loaded.ok) << loaded.message;
        fs::remove(copy);
        if (isReplaced)
            fs::copy_file(TALO_SECOND_SAMPLE_PLUGIN, copy);
        expectLoadedAlready(copy.string());
        auto const unloaded = loader_.unload(copy.string());
        EXPECT_TRUE(unloaded.ok) << unloaded.message;
    }
    fs::remove_all(copy.parent_path());
}

TEST_F(PluginNames, AnotherNameOfTheSameFileIsNotLoadedTwice) {
    auto const other = file_.parent_path() / "hard" / file_.filename();
    fs::create_directories(other.parent_path());
    fs::remove(other);
    fs::create_hard_link(file_, other);
    ASSERT_TRUE(loader_.load(file_.string()).ok);
    EXPECT_EQ(loader_.load(other.string()).message,
              "The plug-in " + other.string() + " is loaded already, as " + file_.string() + ".");
    EXPECT_TRUE(loader_.unload(file_.string()).ok);
    EXPECT_FALSE(isMapped(file_.string()));
    fs::remove_all(other.parent_path());
}

} // namespace
