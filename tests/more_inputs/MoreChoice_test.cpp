// Loading more_inputs changes no editor of a parameter that does not ask for it, in whatever order files are loaded.

#include "../artefact/creators_table.hpp"
#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <lattice/InputRegistry.hpp>
#include <lattice/PluginLoader.hpp>
#include <set>

namespace {

using Names = Kolt::VCreationPreferences::Names;

/// A wanted set of names for a type.
using Wish = std::pair<std::string, Names>;

class MoreChoice : public TaloTest {
protected:
    void load(std::vector<char const*> const& files) {
        for (auto const* const file : files) {
            auto const outcome = loader.load(file);
            ASSERT_TRUE(outcome.ok) << outcome.message;
        }
    }
    void unloadAll() {
        auto const files = loader.files();
        for (auto file = files.rbegin(); file != files.rend(); ++file)
            EXPECT_TRUE(loader.unload(*file).ok);
    }
    /// Every type with every set of preferences that a creator of qtalo_inputs has, and with no preference.
    static std::set<Wish> wishes() {
        std::set<std::string> types;
        std::set<Names> sets{{"QT"}};
        for (auto const& row : creatorsTable()) {
            types.insert(row.valueType);
            Names names(row.given.begin(), row.given.end());
            names.insert("QT");
            sets.insert(names);
        }
        std::set<Wish> all;
        for (auto const& type : types)
            for (auto const& names : sets)
                all.insert({type, names});
        return all;
    }
    /// Which creator is chosen for each wish.
    static std::map<Wish, std::string> choices() {
        std::map<Wish, std::string> chosen;
        for (auto const& wish : wishes()) {
            auto const choice = Kolt::InputRegistry::theRegistry().choose(wish.first, wish.second);
            auto const creator = choice.creator.strong();
            chosen[wish] = creator ? creator->describe() : "none";
        }
        return chosen;
    }

    Kolt::PluginLoader loader;
};

} // namespace

TEST_F(MoreChoice, TheUsualEditorsStayTheUsualOnes) {
    load({pluginFile});
    auto const usual = choices();
    std::set<std::string> types;
    for (auto const& [wish, creator] : usual) {
        types.insert(wish.first);
        EXPECT_NE(creator, "none");
    }
    EXPECT_EQ(types.size(), 13U);
    EXPECT_EQ(creatorsTable().size(), 23U);
    unloadAll();

    load({pluginFile, TALO_MORE_PLUGIN_FILE});
    EXPECT_EQ(choices(), usual);
    unloadAll();

    load({TALO_MORE_PLUGIN_FILE, pluginFile});
    EXPECT_EQ(choices(), usual);
    unloadAll();
}

TEST_F(MoreChoice, AWishForBothIsDecidedAlikeInBothOrders) {
    auto const chosen = [this](std::vector<char const*> const& files) {
        load(files);
        auto const choice = Kolt::InputRegistry::theRegistry().choose("int", {"QT", "dial", "spin"});
        auto const name = choice.creator.strong()->Name();
        unloadAll();
        return name;
    };
    EXPECT_EQ(chosen({pluginFile, TALO_MORE_PLUGIN_FILE}), "spin") << "more_inputs comes before qtalo_inputs";
    EXPECT_EQ(chosen({TALO_MORE_PLUGIN_FILE, pluginFile}), "spin");
}

TEST_F(MoreChoice, ItsEditorsAreThere) {
    load({TALO_MORE_PLUGIN_FILE});
    std::multiset<std::string> names;
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        names.insert(creator->Name());
        EXPECT_EQ(creator->preferences()->names(), (Names{"QT", creator->Name()}));
    }
    EXPECT_EQ(names, (std::multiset<std::string>{"dropdown", "dropdown", "field", "field", "spin", "spin", "switch",
                                                 "text list"}));
    unloadAll();
}
