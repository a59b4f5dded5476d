#include "FractalNetwork.hpp"

#include <fractal/objects/ColouringObject.hpp>
#include <fractal/objects/ExporterObject.hpp>
#include <fractal/objects/FormulaObject.hpp>
#include <fractal/objects/LayersObject.hpp>
#include <fractal/objects/RenderObject.hpp>
#include <fractal/objects/TitlesObject.hpp>

using Fractal::ExporterObject;
using Fractal::FractalSettings;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ComputingNetworkTest : public FractalNetworkTest {
protected:
    /// The files that the exporter is asked to write, as "format file pool".
    std::vector<std::string> written;

    void SetUp() override {
        FractalNetworkTest::SetUp();
        for (auto* const exporter : Fractal::ComputingNetwork(*network).all<ExporterObject>()) {
            exporter->setWriter([&](ExporterObject::Format format, QString const& file, Kolt::PoolPtr const& pool) {
                written.push_back((format == ExporterObject::Format::Png ? "png " : "pdf ") + file.toStdString() + " " +
                                  pool->Name());
            });
        }
    }

    QString palette(char const* name, QByteArray const& colours) const {
        write(path(name), "GIMP Palette\n" + colours);
        return path(name);
    }
};

} // namespace

TEST_F(ComputingNetworkTest, EachKindMakesItsObject) {
    auto const is = [&](char const* kind, auto* type) {
        auto const object = Fractal::makeObject(QString::fromUtf8(kind), QStringLiteral("name"));
        EXPECT_EQ(object->Name(), "name");
        return dynamic_cast<decltype(type)>(object.get()) != nullptr;
    };
    EXPECT_TRUE(is("formula", static_cast<Fractal::FormulaObject*>(nullptr)));
    EXPECT_TRUE(is("colouring", static_cast<Fractal::ColouringObject*>(nullptr)));
    EXPECT_TRUE(is("layers", static_cast<Fractal::LayersObject*>(nullptr)));
    EXPECT_TRUE(is("titles", static_cast<Fractal::TitlesObject*>(nullptr)));
    EXPECT_TRUE(is("exporter", static_cast<Fractal::ExporterObject*>(nullptr)));
    EXPECT_TRUE(is("render", static_cast<Fractal::RenderObject*>(nullptr)));
    EXPECT_FALSE(is("light source", static_cast<Fractal::ComputingObject*>(nullptr)));
    EXPECT_FALSE(is("", static_cast<Fractal::ComputingObject*>(nullptr)));
}

TEST_F(ComputingNetworkTest, WithoutAFactoryTheObjectsDoNothing) {
    auto const plain = Talo::Network::load(path("network.json")).network;
    ASSERT_TRUE(plain);
    EXPECT_FALSE(Fractal::ComputingNetwork(*plain).computes());
    EXPECT_TRUE(Fractal::ComputingNetwork(*network).computes());
}

TEST_F(ComputingNetworkTest, ReadsEveryParameter) {
    std::pair<char const*, char const*> const values[] = {{"formula.kind", "Burning ship"},
                                                          {"formula.iterations", "77"},
                                                          {"formula.quality", "3"},
                                                          {"formula.symmetry", "60"},
                                                          {"formula.zoom", "2.5"},
                                                          {"formula.contrast", "0.5"},
                                                          {"formula.rotation", "12.5"},
                                                          {"formula.smooth", "false"},
                                                          {"colouring.inside", "0.25 0.5 0.75 1"},
                                                          {"colouring.outside", "0 0.5 0 0.5"},
                                                          {"colouring.palette", "Meadow"},
                                                          {"colouring.blend", "Cubic"},
                                                          {"colouring.channels", "red=false\nalpha=true"},
                                                          {"layers.overlays", "Grid\nOrbit"},
                                                          {"layers.contours", "level 10"},
                                                          {"titles.heading", "H"},
                                                          {"titles.author", "A"},
                                                          {"titles.caption", "C"},
                                                          {"titles.date", "D"},
                                                          {"titles.legend", "L"},
                                                          {"exporter.width", "120"}};
    for (auto const& [name, text] : values)
        set(name, text);
    auto const read = settings(draft);
    EXPECT_EQ(read.formula, FractalSettings::Formula::BurningShip);
    EXPECT_EQ(read.iterations, 77);
    EXPECT_EQ(read.quality, 3);
    EXPECT_EQ(read.symmetry, 60);
    EXPECT_EQ(read.zoom, 2.5);
    EXPECT_EQ(read.contrast, 0.5);
    EXPECT_EQ(read.rotation, 12.5);
    EXPECT_FALSE(read.smooth);
    EXPECT_EQ(read.inside.green, 0.5F);
    EXPECT_EQ(read.outside.alpha, 0.5F);
    EXPECT_EQ(read.palette, FractalSettings::Palette::Meadow);
    EXPECT_EQ(read.blend, FractalSettings::Blend::Cubic);
    EXPECT_FALSE(read.red);
    EXPECT_TRUE(read.green && read.blue && read.alpha);
    EXPECT_TRUE(read.grid && read.orbit);
    EXPECT_FALSE(read.axes || read.escapeCircle || read.legend);
    EXPECT_EQ(read.contours, std::vector<int>{10});
    EXPECT_EQ(read.heading + read.author + read.caption + read.date + read.legendText, QStringLiteral("HACDL"));
    EXPECT_EQ(read.width, 120);
}

TEST_F(ComputingNetworkTest, ReadsTheValuesOfThePool) {
    EXPECT_EQ(settings(draft).iterations, 50);
    EXPECT_EQ(settings(final).iterations, 80);
    EXPECT_EQ(settings(nullptr).iterations, 50);
}

TEST_F(ComputingNetworkTest, WhatIsMissingOrOfAnotherTypeLeavesTheUsual) {
    auto const odd = load(R"({ "pools": ["p"], "objects": [
        { "name": "f", "kind": "formula", "parameters": [
            { "name": "kind", "type": "string", "value": "Julia" },
            { "name": "iterations", "type": "double", "value": 7 },
            { "name": "zoom", "type": "int", "value": 7 } ] },
        { "name": "c", "kind": "colouring", "parameters": [
            { "name": "inside", "type": "string", "value": "red" },
            { "name": "channels", "type": "flags", "value": { "green": false, "sound": true } } ] },
        { "name": "l", "kind": "layers" }, { "name": "t", "kind": "titles" }, { "name": "e", "kind": "exporter" } ] })");
    auto const read = Fractal::ComputingNetwork(*odd).settings(odd->pools().front());
    FractalSettings const usual;
    EXPECT_EQ(read.formula, usual.formula);
    EXPECT_EQ(read.iterations, usual.iterations);
    EXPECT_EQ(read.zoom, usual.zoom);
    EXPECT_EQ(read.inside.blue, usual.inside.blue);
    EXPECT_TRUE(read.red && read.blue);
    EXPECT_FALSE(read.green);
    EXPECT_EQ(read.heading, QString());
    EXPECT_EQ(read.width, usual.width);
}

TEST_F(ComputingNetworkTest, ARemovedParameterLeavesTheUsual) {
    network->findObject(QStringLiteral("formula"))->removeParameter(parameter("formula.iterations"));
    EXPECT_EQ(settings(draft).iterations, FractalSettings().iterations);
}

TEST_F(ComputingNetworkTest, AChosenFileIsWrittenOnce) {
    chooseFile("exporter.picture", QStringLiteral("a.png"));
    EXPECT_THAT(written, ElementsAre("png a.png draft"));
    chooseFile("exporter.document", QStringLiteral("b.pdf"));
    EXPECT_THAT(written, ElementsAre("png a.png draft", "pdf b.pdf draft"));
}

TEST_F(ComputingNetworkTest, TheSameFileChosenAgainIsWrittenAgain) {
    chooseFile("exporter.picture", QStringLiteral("a.png"));
    chooseFile("exporter.document", QStringLiteral("b.pdf"));
    chooseFile("exporter.picture", QStringLiteral("a.png"));
    EXPECT_THAT(written, ElementsAre("png a.png draft", "pdf b.pdf draft", "png a.png draft"));
}

TEST_F(ComputingNetworkTest, AFileNameThatWasOnlySetIsNotWrittenWithAnotherOne) {
    set("exporter.picture", "precious.png");
    chooseFile("exporter.document", QStringLiteral("b.pdf"));
    EXPECT_THAT(written, ElementsAre("pdf b.pdf draft"));
}

TEST_F(ComputingNetworkTest, TwoFilesChosenBeforeTheRunAreBothWritten) {
    auto const exporter = network->findObject(QStringLiteral("exporter"));
    set("exporter.picture", "a.png");
    Kolt::VScheduler::schedule(exporter, 0, draft);
    set("exporter.document", "b.pdf");
    Kolt::VScheduler::schedule(exporter, 0, draft);
    Kolt::VScheduler::runDue();
    EXPECT_THAT(written, testing::UnorderedElementsAre("png a.png draft", "pdf b.pdf draft"));
}

TEST_F(ComputingNetworkTest, AnEmptyNameAndARunWithoutAChoiceWriteNothing) {
    chooseFile("exporter.picture", QString());
    network->findObject(QStringLiteral("exporter"))->run(draft);
    EXPECT_THAT(written, IsEmpty());
    chooseFile("exporter.picture", QStringLiteral("a.png"));
    network->findObject(QStringLiteral("exporter"))->run(draft);
    network->findObject(QStringLiteral("exporter"))->run(nullptr);
    EXPECT_THAT(written, ElementsAre("png a.png draft"));
}

TEST_F(ComputingNetworkTest, AnObjectWithoutSlotsAndOneWithoutAWriterDoNothing) {
    Fractal::ExporterObject alone("alone");
    alone.run(nullptr);
    Fractal::ColouringObject colouring("colouring");
    colouring.run(nullptr);
    for (auto* const exporter : Fractal::ComputingNetwork(*network).all<ExporterObject>())
        exporter->setWriter({});
    chooseFile("exporter.picture", QStringLiteral("a.png"));
    EXPECT_THAT(written, IsEmpty());
    EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(ComputingNetworkTest, AChosenPaletteIsReadAndTaken) {
    auto const age = parameter("colouring.palette")->ownValue()->age();
    chooseFile("exporter.palette", palette("a.gpl", "1 2 3\n4 5 6\n"));
    EXPECT_EQ(valueOf("colouring.palette", draft), "From file");
    EXPECT_GT(parameter("colouring.palette")->ownValue()->age(), age);
    EXPECT_THAT(settings(draft).fileColours, ElementsAre(qRgb(1, 2, 3), qRgb(4, 5, 6)));
    EXPECT_THAT(warnings.texts, IsEmpty());
    EXPECT_THAT(written, IsEmpty());
    // A file that is chosen again is read again.
    chooseFile("exporter.palette", palette("a.gpl", "7 8 9\n"));
    EXPECT_THAT(settings(draft).fileColours, ElementsAre(qRgb(7, 8, 9)));
}

TEST_F(ComputingNetworkTest, ABadPaletteIsWarnedOfAndNotTaken) {
    auto const file = palette("bad.gpl", "red\n");
    chooseFile("exporter.palette", file);
    EXPECT_EQ(valueOf("colouring.palette", draft), "Embers");
    ASSERT_EQ(warnings.texts.size(), 1U);
    EXPECT_THAT(warnings.texts[0], HasSubstr("bad.gpl:2: expected"));
    EXPECT_EQ(settings(draft).problem, QString());
    // If the palette is selected nevertheless, the settings contain the error.
    set("colouring.palette", "From file");
    EXPECT_THAT(settings(draft).problem.toStdString(), HasSubstr("bad.gpl:2: expected"));
    EXPECT_THAT(settings(draft).fileColours, IsEmpty());
    EXPECT_EQ(warnings.texts.size(), 1U);
}

TEST_F(ComputingNetworkTest, ThePaletteOfTheFileIsReadWhenItIsNeeded) {
    set("exporter.palette", palette("a.gpl", "1 2 3\n"), draft);
    EXPECT_THAT(settings(draft).fileColours, IsEmpty());
    set("colouring.palette", "From file");
    EXPECT_THAT(settings(draft).fileColours, ElementsAre(qRgb(1, 2, 3)));
    set("exporter.palette", palette("b.gpl", "3 2 1\n"), draft);
    EXPECT_THAT(settings(draft).fileColours, ElementsAre(qRgb(3, 2, 1)));
    set("exporter.palette", "");
    EXPECT_THAT(settings(draft).fileColours, IsEmpty());
    EXPECT_EQ(settings(draft).problem, QString());
}

TEST_F(ComputingNetworkTest, TheFractalNetworkHasWhatItsObjectsLookFor) {
    auto const fractal =
        Talo::Network::load(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), Fractal::makeObject).network;
    ASSERT_TRUE(fractal);
    auto const pool = [&](char const* name) { return fractal->findPool(QString::fromUtf8(name)); };
    Fractal::ComputingNetwork const computing(*fractal);
    EXPECT_EQ(computing.all<Fractal::ComputingObject>().size(), fractal->objects().size());
    auto const read = computing.settings(pool("final"));
    EXPECT_EQ(read.iterations, 2000);
    EXPECT_EQ(read.quality, 8);
    EXPECT_EQ(read.rotation, 30.5);
    EXPECT_EQ(read.blend, FractalSettings::Blend::Cosine);
    EXPECT_TRUE(read.axes && read.legend);
    EXPECT_THAT(read.contours, ElementsAre(10, 50));
    EXPECT_EQ(read.caption, QStringLiteral("Escape time, smoothed"));
    EXPECT_EQ(read.width, 960);
    EXPECT_EQ(computing.settings(pool("draft")).blend, FractalSettings::Blend::Steps);
}
