// What a plug-in leaves registered is removed, with a warning.

#include "host/lattice/PluginLoaderTest.hpp"

#include <lattice/HostObserver.hpp>
#include <lattice/ValueCreator.hpp>
#include <lattice/ValueFormat.hpp>
#include <tessera/SpeakPtr.hpp>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PluginRemainders : public PluginLoaderTest {};

TEST_F(PluginRemainders, OfAPluginWhoseExportThrowsAreRemoved) {
    auto const file = badPlugin("throws");
    auto const outcome = loader_.load(file);
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.message, "The plug-in " + file + " ended with an exception: there is no licence");
    EXPECT_EQ(loader_.load(badPlugin("throws_a_number")).message,
              "The plug-in " + badPlugin("throws_a_number") + " ended with an exception: its type is unknown");
    EXPECT_THAT(loader_.files(), IsEmpty());
    EXPECT_FALSE(isMapped(file));
    EXPECT_FALSE(isMapped(badPlugin("throws_a_number")));
}

TEST_F(PluginRemainders, OfAPluginThatRefusesTheHostAreRemovedAndTold) {
    auto const file = badPlugin("refuses_after_registering");
    PlantedLeak const leak;
    EXPECT_EQ(loader_.load(file).message,
              "The plug-in " + file +
                  " says that it is not compatible with this host (TALO_API_VERSION). The plug-in " + file +
                  " left behind what was removed now: 1 creator.");
    EXPECT_THAT(loader_.files(), IsEmpty());
    EXPECT_FALSE(isMapped(file));
}

TEST_F(PluginRemainders, OfAPluginThatNeverUnregistersAreRemovedAndTold) {
    auto const file = badPlugin("leaves_creators");
    PlantedLeak const leak;
    for (int round = 0; round < 2; ++round) {
        warnings_.texts.clear();
        auto const loaded = loader_.load(file);
        ASSERT_TRUE(loaded.ok) << loaded.message;
        EXPECT_THAT(Kolt::InputRegistry::theRegistry().entries(), testing::SizeIs(2)) << "in each round";
        auto const unloaded = loader_.unload(file);
        EXPECT_TRUE(unloaded.ok) << unloaded.message;
        EXPECT_THAT(warnings_.texts,
                    ElementsAre("The plug-in " + file +
                                " left behind what was removed now: 2 creators, 1 notifier, 1 value creator, 1 "
                                "warning receiver"));
        EXPECT_FALSE(isMapped(file));
        EXPECT_THAT(Kolt::InputRegistry::theRegistry().entries(), IsEmpty());
        EXPECT_EQ(Kolt::VValueCreator::registered("OwnType"), 0);
        EXPECT_EQ(Kolt::VValueCreator::create("OwnType"), nullptr);
        struct Visitor : Kolt::VManagedObjectIterator {
            bool visit(Kolt::VManagedObject&) override { return ++visited > 0; }
            int visited = 0;
        } visitor;
        Kolt::VManagedObject::traverse(typeid(Kolt::VInputCreatorBase), visitor, -1000, 1000);
        EXPECT_EQ(visitor.visited, 0);
        Kolt::VActionNotifier::Warning("goes to the living alone");
    }
}

TEST_F(PluginRemainders, OfAPluginThatLeavesAFormatAreRemovedAndTold) {
    auto const file = badPlugin("leaves_format");
    PlantedLeak const leak;
    ASSERT_TRUE(loader_.load(file).ok);
    ASSERT_NE(Kolt::VValueFormat::ofKey("left"), nullptr);
    EXPECT_TRUE(loader_.unload(file).ok);
    EXPECT_FALSE(isMapped(file));
    EXPECT_THAT(Kolt::VValueFormat::all(), IsEmpty());
    EXPECT_EQ(Kolt::VValueFormat::ofKey("left"), nullptr);
    EXPECT_EQ(Kolt::VValueCreator::create("Bad::Left"), nullptr);
    EXPECT_THAT(warnings_.texts,
                ElementsAre("The plug-in " + file + " left behind what was removed now: 1 format, 1 value creator"));
}

TEST_F(PluginRemainders, ThatAreInstalledInTheHostAreRemovedAndTold) {
    auto const file = badPlugin("leaves_observer");
    auto* const observer = &Kolt::HostObserver::theObserver();
    auto* const speaker = &Tessera::SpeakPtr::theSpeaker();
    PlantedLeak const leak;
    ASSERT_TRUE(loader_.load(file).ok);
    EXPECT_NE(&Kolt::HostObserver::theObserver(), observer);
    EXPECT_NE(&Tessera::SpeakPtr::theSpeaker(), speaker);
    EXPECT_TRUE(loader_.unload(file).ok);
    EXPECT_THAT(warnings_.texts,
                ElementsAre("The plug-in " + file + " left behind what was removed now: 1 observer, 1 speaker"));
    EXPECT_EQ(&Kolt::HostObserver::theObserver(), observer);
    EXPECT_EQ(&Tessera::SpeakPtr::theSpeaker(), speaker);
}

TEST_F(PluginRemainders, AFileThatOthersHoldStaysListedUntilTheyLetGo) {
    std::string const file = TALO_SAMPLE_PLUGIN;
    ASSERT_TRUE(loader_.load(file).ok);
    void* const handle = dlopen(file.c_str(), RTLD_NOW);
    auto const unloaded = loader_.unload(file);
    EXPECT_FALSE(unloaded.ok);
    EXPECT_EQ(unloaded.message,
              "The plug-in " + file + " was closed and is still in memory, because something else holds it.");
    EXPECT_THAT(loader_.files(), ElementsAre(file));
    EXPECT_THAT(Kolt::InputRegistry::theRegistry().entries(), testing::SizeIs(1)) << "its creator still works";
    dlclose(handle);
    EXPECT_TRUE(loader_.unload(file).ok);
    EXPECT_FALSE(isMapped(file));
}

TEST_F(PluginRemainders, TwoLoadersCanHaveOneFile) {
    std::string const file = TALO_SAMPLE_PLUGIN;
    {
        Kolt::PluginLoader second;
        ASSERT_TRUE(loader_.load(file).ok);
        ASSERT_TRUE(second.load(file).ok);
        EXPECT_FALSE(second.unload(file).ok) << "the first one has it";
    }
    EXPECT_TRUE(isMapped(file));
    EXPECT_TRUE(loader_.unload(file).ok) << "the second one has let go";
    EXPECT_FALSE(isMapped(file));
}

TEST(PluginThatStays, IsListedAndWorksOn) {
    // In a process of its own, as nothing unloads it.
    auto const file = std::string(TALO_BAD_PLUGINS) + "stays_in_memory.talo";
    auto const run = [&] {
        Kolt::PluginLoader loader;
        bool const isLoaded = loader.load(file).ok;
        bool const isUnloaded = loader.unload(file).ok;
        bool const isListed = loader.files() == std::vector<std::string>{file};
        bool const isRegistered = Kolt::InputRegistry::theRegistry().entries().size() == 1;
        _exit(isLoaded && !isUnloaded && isListed && isRegistered ? 0 : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

} // namespace
