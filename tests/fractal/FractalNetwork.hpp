#pragma once

#include "support/TaloTest.hpp"

#include <fractal/objects/ComputingNetwork.hpp>
#include <fractal/objects/ObjectFactory.hpp>
#include <lattice/ActionNotifier.hpp>
#include <lattice/Scheduler.hpp>
#include <network/Network.hpp>
#include <QTemporaryDir>

/// Records the host's warnings.
struct Warnings : Kolt::VActionNotifier {
    void onWarning(std::string const& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

/// A network with a small picture and one object of each kind, in a temporary folder.
class FractalNetworkTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        network = load(json);
        ASSERT_TRUE(network);
        draft = network->findPool(QStringLiteral("draft"));
        final = network->findPool(QStringLiteral("final"));
    }

    static constexpr char const* json = R"({
        "pools": ["draft", "final"],
        "objects": [
            { "name": "formula", "kind": "formula", "parameters": [
                { "name": "kind", "type": "enum", "value": "Mandelbrot",
                  "entries": ["Mandelbrot", "Julia", "Burning ship", "Newton"] },
                { "name": "iterations", "type": "int", "value": 50, "values": { "final": 80 } },
                { "name": "quality", "type": "int", "value": 1 },
                { "name": "symmetry", "type": "int", "value": 0 },
                { "name": "zoom", "type": "double", "value": 0 },
                { "name": "contrast", "type": "double", "value": 1 },
                { "name": "rotation", "type": "double", "value": 0 },
                { "name": "smooth", "type": "bool", "value": true }
            ] },
            { "name": "colouring", "kind": "colouring", "parameters": [
                { "name": "inside", "type": "colour", "value": [0, 0, 0.5, 1] },
                { "name": "outside", "type": "colour", "value": [1, 1, 1, 1] },
                { "name": "palette", "type": "selection", "value": "Embers",
                  "entries": ["Embers", "Glacier", "Meadow", "Greyscale", "From file"] },
                { "name": "blend", "type": "selection", "value": "Linear",
                  "entries": ["Linear", "Cosine", "Cubic", "Steps"] },
                { "name": "channels", "type": "flags",
                  "value": { "red": true, "green": true, "blue": true, "alpha": false } }
            ], "slots": [ { "name": "palette file", "parameter": "exporter.palette" } ] },
            { "name": "layers", "kind": "layers", "parameters": [
                { "name": "overlays", "type": "multiselection", "value": [],
                  "entries": ["Axes", "Grid", "Escape circle", "Orbit", "Legend"] },
                { "name": "contours", "type": "multiselection", "value": [], "entries": ["level 5", "level 10"] }
            ] },
            { "name": "titles", "kind": "titles", "parameters": [
                { "name": "heading", "type": "string", "value": "" },
                { "name": "author", "type": "string", "value": "" },
                { "name": "caption", "type": "stringarray", "value": [""] },
                { "name": "date", "type": "string", "value": "" },
                { "name": "legend", "type": "string", "value": "" }
            ] },
            { "name": "exporter", "kind": "exporter", "parameters": [
                { "name": "picture", "type": "string", "value": "" },
                { "name": "document", "type": "string", "value": "" },
                { "name": "palette", "type": "string", "value": "" },
                { "name": "width", "type": "int", "value": 96 }
            ], "slots": [
                { "name": "write picture", "parameter": "exporter.picture" },
                { "name": "write document", "parameter": "exporter.document" }
            ] },
            { "name": "render", "kind": "render", "parameters": [
                { "name": "start", "type": "action", "value": "Render" },
                { "name": "progress", "type": "info", "value": "Nothing." },
                { "name": "status", "type": "status", "value": "Ready." }
            ] }
        ]
    })";

    std::unique_ptr<Talo::Network> load(QByteArray const& text) const {
        auto const file = path("network.json");
        write(file, text);
        auto result = Talo::Network::load(file, Fractal::makeObject);
        EXPECT_EQ(result.error, QString());
        return std::move(result.network);
    }
    QString path(char const* name) const { return folder.filePath(QString::fromUtf8(name)); }
    static void write(QString const& file, QByteArray const& text) {
        QFile target(file);
        EXPECT_TRUE(target.open(QIODevice::WriteOnly));
        EXPECT_EQ(target.write(text), text.size());
    }

    Kolt::ParameterPtr parameter(char const* name) const { return network->findParameter(QString::fromUtf8(name)); }
    /// Sets a value as the host would.
    void set(char const* name, QString const& text, Kolt::PoolPtr const& pool) const {
        QString error;
        EXPECT_TRUE(network->setText(QString::fromUtf8(name), text, pool, &error)) << qPrintable(error);
    }
    void set(char const* name, char const* text) const { set(name, QString::fromUtf8(text), draft); }
    /// Sets a file name and schedules the objects bound to the parameter, as the editor of a file name does.
    void chooseFile(char const* name, QString const& file) const {
        set(name, file, draft);
        for (auto const& object : network->objects()) {
            if (object->findSlot(parameter(name)))
                Kolt::VScheduler::schedule(object, 0, draft);
        }
        Kolt::VScheduler::runDue();
    }
    std::string valueOf(char const* name, Kolt::PoolPtr const& pool) const {
        return Fractal::effectiveValue(parameter(name), pool)->Text();
    }
    Fractal::FractalSettings settings(Kolt::PoolPtr const& pool) const {
        return Fractal::ComputingNetwork(*network).settings(pool);
    }

    QTemporaryDir folder;
    Warnings warnings;
    std::unique_ptr<Talo::Network> network;
    Kolt::PoolPtr draft;
    Kolt::PoolPtr final;
};
