#include "host/lattice/plugins/sample_plugin.hpp"
#include "support/TaloTest.hpp"

#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <lattice/HostObserver.hpp>
#include <lattice/InputRegistry.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/UndoHistory.hpp>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using Kolt::InputRegistry;
using Kolt::PluginLoader;
using Kolt::UndoHistory;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class PluginLoading : public TaloTest {
protected:
    void SetUp() override {
        folder_ = fs::path(getenv("HOME")) / testing::UnitTest::GetInstance()->current_test_info()->name();
        fs::create_directories(folder_);
    }
    void TearDown() override { EXPECT_THAT(InputRegistry::theRegistry().entries(), IsEmpty()); }

    static bool isMapped(std::string const& file) {
        void* const handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
        if (handle)
            dlclose(handle);
        return handle != nullptr;
    }
    static Tessera::StrongPtr<SampleWorkshop, Tessera::InterfaceBase> workshop() {
        auto const entries = InputRegistry::theRegistry().entries();
        return entries.empty() ? nullptr : entries.front().creator.strong()->getInterface<SampleWorkshop>();
    }
    std::string const sample_ = TALO_SAMPLE_PLUGIN;
    fs::path folder_;
    Kolt::VInitialization host_;
    PluginLoader loader_{host_};
};

TEST_F(PluginLoading, ASoundFileRegistersAndIsClosedAgain) {
    auto const loaded = loader_.load(sample_);
    EXPECT_TRUE(loaded.ok);
    EXPECT_EQ(loaded.message, "");
    EXPECT_THAT(loader_.files(), ElementsAre(sample_));
    EXPECT_THAT(InputRegistry::theRegistry().entries(), testing::SizeIs(1));

    auto const unloaded = loader_.unload(sample_);
    EXPECT_TRUE(unloaded.ok);
    EXPECT_EQ(unloaded.message, "");
    EXPECT_THAT(loader_.files(), IsEmpty());
    EXPECT_FALSE(isMapped(sample_));
}

TEST_F(PluginLoading, TheExportIsNamedAfterTheFile) {
    EXPECT_EQ(PluginLoader::exportName("/some/where/qtalo_inputs.talo"), "TALO_API_2023_MAR_29__qtalo_inputs");
    EXPECT_EQ(PluginLoader::exportName("plain"), "TALO_API_2023_MAR_29__plain");
}

TEST_F(PluginLoading, AMissingFileIsReportedWithTheSystemsReason) {
    auto const file = (folder_ / "missing.talo").string();
    auto const outcome = loader_.load(file);
    EXPECT_FALSE(outcome.ok);
    EXPECT_THAT(outcome.message,
                AllOf(StartsWith("Cannot open the plug-in " + file + ": "), HasSubstr("No such file or directory")));
    EXPECT_THAT(loader_.files(), IsEmpty());
}

TEST_F(PluginLoading, AFileThatIsNoLibraryCannotBeOpened) {
    auto const file = (folder_ / "text.talo").string();
    std::ofstream(file) << std::string(1000, 'x');
    EXPECT_THAT(loader_.load(file).message,
                AllOf(StartsWith("Cannot open the plug-in " + file + ": "), HasSubstr("ELF")));
    EXPECT_THAT(loader_.load(folder_.string()).message,
                StartsWith("Cannot open the plug-in " + folder_.string() + ": "));
    EXPECT_THAT(loader_.load("").message, StartsWith("Cannot open the plug-in : "))
        << "no name at all is not the program itself";
    EXPECT_THAT(loader_.files(), IsEmpty());
}

TEST_F(PluginLoading, WhatIsNoFileOrTooLargeIsRefusedAtOnce) {
    auto const pipe = (folder_ / "pipe.talo").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(loader_.load(pipe).message, "Cannot open the plug-in " + pipe + ": it is no regular file");
    EXPECT_EQ(loader_.load(folder_.string()).message,
              "Cannot open the plug-in " + folder_.string() + ": it is a folder");
    auto const large = (folder_ / "large.talo").string();
    std::ofstream(large) << 'x';
    std::filesystem::resize_file(large, (256U << 20) + 1);
    EXPECT_EQ(loader_.load(large).message, "Cannot open the plug-in " + large + ": it is larger than 256 MB");
    EXPECT_THAT(loader_.files(), IsEmpty());
}

TEST_F(PluginLoading, ABareNameIsNotSearchedForInTheSystemsFolders) {
    auto const outcome = loader_.load("libm.so.6");
    EXPECT_FALSE(outcome.ok);
    EXPECT_THAT(outcome.message, StartsWith("Cannot open the plug-in libm.so.6: "));
}

TEST_F(PluginLoading, ALibraryWithoutTheExportIsReportedAndClosed) {
    std::string const file = TALO_NO_EXPORT_PLUGIN;
    EXPECT_THAT(
        loader_.load(file).message,
        AllOf(StartsWith("Cannot find the export TALO_API_2023_MAR_29__no_export_plugin in the plug-in " + file + ": "),
              HasSubstr("it has none")));
    EXPECT_FALSE(isMapped(file));
}

TEST_F(PluginLoading, ARenamedFileLacksItsExport) {
    // In the folder of the first file, from which a plug-in finds its libraries.
    auto const file = fs::path(sample_).parent_path() / "renamed.talo";
    fs::copy_file(sample_, file, fs::copy_options::overwrite_existing);
    EXPECT_THAT(loader_.load(file.string()).message,
                StartsWith("Cannot find the export TALO_API_2023_MAR_29__renamed in the plug-in "));
    EXPECT_FALSE(isMapped(file.string()));
    fs::remove(file);
}

TEST_F(PluginLoading, AnIncompatibleFileIsRefusedAndClosed) {
    std::string const file = TALO_INCOMPATIBLE_PLUGIN;
    EXPECT_EQ(loader_.load(file).message,
              "The plug-in " + file + " says that it is not compatible with this host (TALO_API_VERSION).");
    EXPECT_THAT(loader_.files(), IsEmpty());
    EXPECT_FALSE(isMapped(file));
}

TEST_F(PluginLoading, TheFileAsksTheHostObjectThatTheLoaderWasGiven) {
    struct Refusing : Kolt::VInitialization {
        bool IsCompatible(char const*) const override { return false; }
    };
    Refusing refusing;
    PluginLoader loader(refusing);
    EXPECT_FALSE(loader.load(sample_).ok);
}

TEST_F(PluginLoading, AFileThatIsLoadedAlreadyIsLeftAsItIs) {
    ASSERT_TRUE(loader_.load(sample_).ok);
    EXPECT_EQ(loader_.load(sample_).message, "The plug-in " + sample_ + " is loaded already.");
    auto const detour = fs::path(sample_).parent_path() / "." / fs::path(sample_).filename();
    EXPECT_EQ(loader_.load(detour.string()).message, "The plug-in " + detour.string() + " is loaded already.");
    EXPECT_THAT(loader_.files(), ElementsAre(sample_));
    EXPECT_TRUE(loader_.unload(sample_).ok);
    EXPECT_FALSE(isMapped(sample_));
}

TEST_F(PluginLoading, ALinkToALoadedFileIsTheSameFile) {
    auto const link = folder_ / fs::path(sample_).filename();
    fs::create_symlink(sample_, link);
    ASSERT_TRUE(loader_.load(sample_).ok);
    EXPECT_EQ(loader_.load(link.string()).message, "The plug-in " + link.string() + " is loaded already.");
    EXPECT_THAT(loader_.files(), ElementsAre(sample_));
    EXPECT_TRUE(loader_.unload(link.string()).ok);
    EXPECT_FALSE(isMapped(sample_));
}

TEST_F(PluginLoading, WhatIsNotLoadedCannotBeUnloaded) {
    EXPECT_EQ(loader_.unload(sample_).message, "The plug-in " + sample_ + " is not loaded.");
    EXPECT_EQ(loader_.livingEditors(sample_), 0);
}

TEST_F(PluginLoading, IsNotUnloadedWhileAnEditorLives) {
    ASSERT_TRUE(loader_.load(sample_).ok);
    ASSERT_TRUE(workshop());
    EXPECT_EQ(loader_.livingEditors(sample_), 0);
    auto first = workshop()->makeEditor();
    auto second = workshop()->makeEditor();
    EXPECT_EQ(loader_.livingEditors(sample_), 2);
    EXPECT_EQ(loader_.unload(sample_).message,
              "The plug-in " + sample_ + " cannot be unloaded while 2 of its editors are in use.");
    second.reset();
    EXPECT_EQ(loader_.unload(sample_).message,
              "The plug-in " + sample_ + " cannot be unloaded while 1 of its editors is in use.");
    EXPECT_THAT(loader_.files(), ElementsAre(sample_));
    EXPECT_TRUE(isMapped(sample_));
    first.reset();
    EXPECT_TRUE(loader_.unload(sample_).ok);
    EXPECT_FALSE(isMapped(sample_));
}

TEST_F(PluginLoading, CountsTheEditorsOfEachFileApart) {
    struct OwnEditor : Kolt::ValueNotifier {
        void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
    };
    OwnEditor const own;
    ASSERT_TRUE(loader_.load(sample_).ok);
    EXPECT_EQ(loader_.livingEditors(sample_), 0) << "an editor of the host is not counted";
    EXPECT_TRUE(loader_.unload(sample_).ok);
}

TEST_F(PluginLoading, UndoStepsOfAFileAreForgottenWithIt) {
    struct OwnStep : Kolt::VUndoAction {
        OwnStep() : VUndoAction("a step of the host") {}
        bool undo() override { return true; }
    };
    Kolt::VParameter parameter("p", Kolt::makeValue(1));
    ASSERT_TRUE(loader_.load(sample_).ok);
    workshop()->recordStep(parameter);
    parameter.AddUndoAction(Tessera::StrongPtr<Kolt::VUndoAction>(new OwnStep), 1);
    auto& history = UndoHistory::theHistory();
    EXPECT_THAT(history.steps(), testing::SizeIs(2));
    EXPECT_TRUE(loader_.unload(sample_).ok);
    ASSERT_THAT(history.steps(), testing::SizeIs(1));
    EXPECT_EQ(history.steps()[0]->description(), "a step of the host");
    EXPECT_TRUE(history.undo());
}

TEST_F(PluginLoading, TheLoaderClosesWhatItLoadedWhenItGoes) {
    {
        PluginLoader loader(host_);
        ASSERT_TRUE(loader.load(sample_).ok);
    }
    EXPECT_THAT(InputRegistry::theRegistry().entries(), IsEmpty());
    EXPECT_FALSE(isMapped(sample_));
}

TEST_F(PluginLoading, TheLoaderClosesTheLatestFileFirst) {
    struct Departures : Kolt::HostObserver {
        Departures() { setObserver(this); }
        ~Departures() override { setObserver(nullptr); }
        void creatorUnregistered(std::string const&, Kolt::VInputCreatorBase const& creator) override {
            names.push_back(creator.Name());
        }
        std::vector<std::string> names;
    };
    Departures const departures;
    {
        PluginLoader loader(host_);
        ASSERT_TRUE(loader.load(sample_).ok);
        ASSERT_TRUE(loader.load(TALO_SECOND_SAMPLE_PLUGIN).ok);
    }
    EXPECT_THAT(departures.names, ElementsAre("second_sample_plugin", "sample_plugin"));
}

TEST_F(PluginLoading, TheLoaderLeavesAFileWhoseEditorsLiveWhenItGoes) {
    std::unique_ptr<Kolt::ValueNotifier> editor;
    {
        PluginLoader loader(host_);
        ASSERT_TRUE(loader.load(sample_).ok);
        editor = workshop()->makeEditor();
    }
    EXPECT_TRUE(isMapped(sample_));
    editor.reset();
    // The loader abandoned its handle, which keeps the file loaded. Close it here, so that the next test starts without
    // the file.
    void* const handle = dlopen(sample_.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    ASSERT_NE(handle, nullptr);
    dlclose(handle);
    dlclose(handle);
    EXPECT_FALSE(isMapped(sample_));
}

} // namespace
