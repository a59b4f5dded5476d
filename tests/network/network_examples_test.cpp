#include "NetworkFile.hpp"

#include <array>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <lattice/InputRegistry.hpp>
#include <network/PresetFile.hpp>
#include <QImage>
#include <QRegularExpression>
#include <set>

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;
using StringArray = std::array<std::string, 1>;

QString const fractalFile = TALO_EXAMPLES "/networks/fractal.json";

std::unique_ptr<Talo::Network> fractal() {
    auto result = Talo::Network::load(fractalFile);
    if (!result.network)
        throw std::runtime_error(result.error.toStdString());
    return std::move(result.network);
}

TEST_F(Network, TheFractalNetworkIsSavedAsTheBytesThatItHas) {
    auto const copy = write(bytesOf(fractalFile), "fractal.json");
    auto const read = Talo::Network::load(copy);
    ASSERT_NE(read.network, nullptr) << read.error.toStdString();
    ASSERT_TRUE(read.network->save(path("again.json"), nullptr));
    EXPECT_EQ(bytesOf(path("again.json")), bytesOf(fractalFile));
}

TEST_F(Network, EveryExampleIsLoaded) {
    auto const files = QDir(QStringLiteral(TALO_EXAMPLES "/networks")).entryInfoList({QStringLiteral("*.json")});
    EXPECT_GE(files.size(), 3);
    for (auto const& file : files) {
        auto const read = Talo::Network::load(file.filePath());
        EXPECT_NE(read.network, nullptr) << read.error.toStdString();
    }
}

TEST_F(Network, TheFractalNetworkUsesEveryTypeAndPreference) {
    std::set<std::string> types;
    std::set<std::string> preferences;
    int perPool = 0;
    auto const read = fractal();
    for (auto const& object : read->objects()) {
        EXPECT_NE(read->kind(object), "") << object->Name();
        for (auto const& parameter : object->parameters()) {
            types.insert(parameter->declaredType());
            perPool += parameter->keepsValuesPerPool() ? 1 : 0;
            if (auto const& own = parameter->creationPreferences())
                preferences.insert(own->names().begin(), own->names().end());
        }
    }
    EXPECT_EQ(types, (std::set<std::string>{nameOfType<bool>(), nameOfType<int>(), nameOfType<double>(),
                                            nameOfType<ActionPtr>(), nameOfType<Ferro::rgba_float_t>(),
                                            nameOfType<Kolt::Enum>(), nameOfType<Kolt::FlagList>(),
                                            nameOfType<Kolt::info>(), nameOfType<Kolt::VStringList>(),
                                            nameOfType<Kolt::VMultipleStringList>(), nameOfType<Kolt::VObjectStatus>(),
                                            nameOfType<std::string>(), nameOfType<StringArray>()}));
    EXPECT_EQ(preferences, (std::set<std::string>{"FileInput", "MultiLine", "OneLine", "Save as", "Save as PDF",
                                                  "UpdateOnEnterOnly", "dial", "editable", "periodic"}));
    EXPECT_GE(perPool, 3);
}

/// A creator as a plug-in would register it, to test only which one is chosen.
template <typename T>
struct Creator : Kolt::VInputCreator<T, Kolt::VInputCreatorBase> {
    Creator(std::string const& name, Kolt::VCreationPreferences::Names preferences)
        : Kolt::VInputCreator<T, Kolt::VInputCreatorBase>(name, 0, withQt(std::move(preferences)), "TALO_API_VERSION") {
    }
    static Kolt::PreferencesPtr withQt(Kolt::VCreationPreferences::Names preferences) {
        preferences.insert("QT");
        return Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::move(preferences)));
    }
};

TEST_F(Network, EachOfTheTwentyThreeCreatorsIsChosenInTheFractalNetwork) {
    Creator<bool> const boolean("boolean", {});
    Creator<int> const integer("int", {});
    Creator<int> const integerDial("intDial", {"dial"});
    Creator<int> const integerDialPeriodic("intDialPeriodic", {"dial", "periodic"});
    Creator<double> const real("double", {});
    Creator<double> const realDial("FltDial", {"dial"});
    Creator<double> const realDialPeriodic("Periodic FltDial", {"dial", "periodic"});
    Creator<ActionPtr> const action("action", {});
    Creator<Ferro::rgba_float_t> const colour("ColorDisplay", {});
    Creator<Kolt::Enum> const enumeration("enum", {});
    Creator<Kolt::FlagList> const flags("checkboxes", {});
    Creator<Kolt::info> const information("InformationDisplay", {});
    Creator<Kolt::VMultipleStringList> const multiple("selection", {});
    Creator<Kolt::VMultipleStringList> const multipleEditable("selection", {"editable"});
    Creator<Kolt::VObjectStatus> const status("StatusDisplay", {});
    Creator<std::string> const line("simplestring", {Kolt::VValueTrait<std::string>::OneLine()});
    Creator<StringArray> const arrayLine("singlelinestring", {});
    Creator<Kolt::VStringList> const selection("selection", {});
    Creator<Kolt::VStringList> const selectionEditable("selection", {"editable"});
    Creator<std::string> const text("string", {Kolt::VValueTrait<std::string>::MultiLine()});
    Creator<std::string> const saveAs("FileNameCreator", {"Save as"});
    Creator<std::string> const savePdf("FileNameCreatorPDF", {"Save as PDF"});
    Creator<std::string> const open("OpenFileCreator", {"FileInput"});

    auto const& registry = Kolt::InputRegistry::theRegistry();
    ASSERT_EQ(registry.entries().size(), 23U);
    std::set<Kolt::VInputCreatorBase*> chosen;
    auto const read = fractal();
    for (auto const& object : read->objects())
        for (auto const& parameter : object->parameters())
            chosen.insert(registry.choose(*parameter, {"QT"}).creator.strong().get());
    for (auto const& entry : registry.entries()) {
        auto const creator = entry.creator.strong();
        EXPECT_EQ(chosen.count(creator.get()), 1U) << creator->describe() << " for " << entry.valueType;
    }
}

TEST_F(Network, TheFractalNetworkBindsItsFileNamesAndHasItsPicture) {
    auto const read = fractal();
    for (auto const* const name : {"exporter.picture", "exporter.document", "exporter.palette"})
        EXPECT_NE(read->findObject("exporter")->findSlot(read->findParameter(name)), nullptr) << name;
    EXPECT_NE(read->findObject("colouring")->findSlot(read->findParameter("exporter.palette")), nullptr);
    auto const icon = read->findParameter("render.start")->properties()->getValue("icon");
    EXPECT_FALSE(QImage(QString::fromStdString(icon->Text())).isNull()) << icon->Text();
}

TEST_F(Network, EveryPieceOfTheDescriptionIsRight) {
    auto const description = QString::fromUtf8(bytesOf(TALO_EXAMPLES "/../docs/network-files.md"));
    static QRegularExpression const block("```json\\n(.*?)```", QRegularExpression::DotMatchesEverythingOption);
    std::set<std::string> types;
    int networks = 0;
    int presetFiles = 0;
    for (auto all = block.globalMatch(description); all.hasNext();) {
        auto const text = all.next().captured(1).toUtf8();
        if (text.contains("\"presets\"")) {
            EXPECT_EQ(Talo::PresetFile(write(text)).read().toStdString(), "");
            ++presetFiles;
            continue;
        }
        bool const whole = text.contains("\"objects\"");
        networks += whole ? 1 : 0;
        auto const result = Talo::Network::load(write(whole ? text : withParameters(text)));
        ASSERT_NE(result.network, nullptr) << result.error.toStdString() << "\n" << text.toStdString();
        for (auto const& object : result.network->objects())
            for (auto const& parameter : object->parameters())
                types.insert(parameter->declaredType());
    }
    EXPECT_EQ(networks, 1);
    EXPECT_EQ(presetFiles, 1);
    EXPECT_EQ(types.size(), 13U);
}

} // namespace
