// Values of a plug-in's own type in the panel: files, clipboard, filter, raw values, presets, comparison, gallery.

#include "support/PluginFile.hpp"
#include "VectorPanelTest.hpp"

#include <panel/gallery/Gallery.hpp>
#include <parameters/commands/ObjectValues.hpp>
#include <parameters/commands/ValueClipboard.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QTreeView>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class VectorValuesTest : public VectorPanelTest {
protected:
    static QJsonArray numbers(double x, double y, double z) { return {x, y, z}; }
    /// The JSON that a file has for a parameter of the camera, by its number.
    static QJsonValue savedParameter(QString const& file, int number) {
        QFile source(file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(source.readAll())["objects"][0]["parameters"][number];
    }
    void enter(char const* name, int index, char const* text) const {
        type(name, index, text);
        QTest::keyClick(field(name, index), Qt::Key_Return);
    }
    static QMimeData const& copied() { return *QApplication::clipboard()->mimeData(); }
    std::vector<std::string> found(char const* words) const {
        window->findChild<QLineEdit*>(QStringLiteral("filter"))->setText(QString::fromUtf8(words));
        std::vector<std::string> names;
        for (auto const* const each : window->currentView()->rows())
            if (each->isVisible())
                names.push_back(each->parameterName().toStdString());
        return names;
    }
};

} // namespace

TEST_F(VectorValuesTest, AFileIsRefusedUntilThePluginIsLoaded) {
    ASSERT_TRUE(window->openNetwork(networkFile("lamps.json", lamps)));
    QString error;
    ASSERT_TRUE(plugins.unload(&error)) << qPrintable(error);
    EXPECT_FALSE(window->openNetwork(file(), &error));
    EXPECT_EQ(error.toStdString(), file().toStdString() +
                                       ":6: camera.position: expected a type, one of bool, int, double, action, "
                                       "colour, enum, flags, info, selection, multiselection, status, string, "
                                       "stringarray, found the text \"vector3\"");
    ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
    ASSERT_TRUE(plugins.load(QStringLiteral(TALO_VECTOR_PLUGIN_FILE), &error)) << qPrintable(error);
    EXPECT_TRUE(window->openNetwork(file(), &error)) << qPrintable(error);
    EXPECT_EQ(shown("target"), "0 1 0");
}

TEST_F(VectorValuesTest, KeepTheirPluginLoadedWhileANetworkHasThem) {
    enter("target", 0, "5");
    QString error;
    EXPECT_FALSE(plugins.unload(&error));
    EXPECT_THAT(error.toStdString(), HasSubstr("vector_inputs.talo cannot be unloaded while these are in use: "));
    EXPECT_THAT(error.toStdString(),
                HasSubstr("values of type Kolt::VValue<VectorInputs::Vector3> (camera.position; "));
    ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
    EXPECT_EQ(shown("target"), "5 1 0");
    action("undo")->trigger();
    EXPECT_EQ(shown("target"), "0 1 0");
    action("redo")->trigger();

    // Another network and its history have none of its values.
    ASSERT_TRUE(window->openNetwork(networkFile("lamps.json", lamps), &error)) << qPrintable(error);
    error.clear();
    EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
}

TEST_F(VectorValuesTest, AreSavedAsListsAndLoadedAgain) {
    enter("target", 1, "0.1");
    EXPECT_TRUE(waitUntil([this] { return window->isWindowModified(); }));
    action("save")->trigger();
    EXPECT_TRUE(waitUntil([this] { return !window->isWindowModified(); }));
    EXPECT_EQ(savedParameter(file(), 1)["value"].toArray(), numbers(0, 0.1, 0));
    EXPECT_EQ(savedParameter(file(), 1)["type"].toString(), QStringLiteral("vector3"));
    EXPECT_EQ(savedParameter(file(), 0)["values"]["final"].toArray(), numbers(0.25, 1.5, -3));
    QString error;
    ASSERT_TRUE(window->openNetwork(file(), &error)) << qPrintable(error);
    EXPECT_EQ(shown("target"), "0 0.1 0");
}

TEST_F(VectorValuesTest, AreCopiedAndPastedAlsoAsText) {
    enter("target", 0, "0.1");
    focus("target");
    action("copyValue")->trigger();
    EXPECT_EQ(copied().text().toStdString(), "0.1 1 0");
    EXPECT_EQ(copied().data(Talo::ValueClipboard::mimeType()).toStdString(), R"({"type":"vector3","value":[0.1,1,0]})");
    focus("position");
    action("pasteValue")->trigger();
    EXPECT_EQ(held("position"), "0.1 1 0");
    EXPECT_EQ(shown("position"), "0.1 1 0");

    QApplication::clipboard()->setText(QStringLiteral(" 3 2 1\n"));
    action("pasteValue")->trigger();
    EXPECT_EQ(held("position"), "3 2 1");
    QApplication::clipboard()->setText(QStringLiteral("3 2 nan"));
    action("pasteValue")->trigger();
    EXPECT_EQ(held("position"), "3 2 1");
    EXPECT_THAT(window->messages()->texts(Panel::MessageList::Source::Error).constLast().toStdString(),
                HasSubstr("\"3 2 nan\" is no value of position, which is of type vector3."));
    EXPECT_EQ(window->history().steps().size(), 3U);
}

TEST_F(VectorValuesTest, AreResetWithTheirObject) {
    enter("target", 0, "5");
    enter("position", 2, "5");
    action("resetAllObjects")->trigger();
    EXPECT_EQ(held("target"), "0 1 0");
    EXPECT_EQ(held("position"), "0 1.5 -4");
    EXPECT_TRUE(waitUntil([this] { return !window->isWindowModified(); }));
}

TEST_F(VectorValuesTest, AreFoundByTheirText) {
    EXPECT_THAT(found("1.5"), ElementsAre("position"));
    EXPECT_THAT(found("0 1 0"), ElementsAre("position", "target", "up")) << "all words are found in a value";
    set("camera.target", "9.75 0 0");
    EXPECT_THAT(found("9.75"), ElementsAre("target"));
}

TEST_F(VectorValuesTest, HaveARawValue) {
    action("rawValues")->setChecked(true);
    ASSERT_TRUE(row("target")->rawValue());
    EXPECT_EQ(row("target")->rawValue()->text().toStdString(), "0 1 0");
    set("camera.target", "1 2 3");
    EXPECT_TRUE(waitUntil([&] { return row("target")->rawValue()->text() == QLatin1String("1 2 3"); }));
}

TEST_F(VectorValuesTest, ArePartsOfPresets) {
    auto const camera = window->network()->findObject(QStringLiteral("camera"));
    auto const draft = window->network()->findPool(QStringLiteral("draft"));
    auto const preset = Talo::objectValues(*camera, draft);
    EXPECT_EQ(preset["target"].toObject()["value"].toArray(), numbers(0, 1, 0));
    enter("target", 0, "5");
    EXPECT_TRUE(Talo::applyObjectValues(camera, draft, preset).isEmpty());
    EXPECT_EQ(shown("target"), "0 1 0");
}

TEST_F(VectorValuesTest, AreComparedBetweenPools) {
    action("showComparison")->trigger();
    QCoreApplication::processEvents();
    auto const* const model = window->findChild<QTreeView*>(QStringLiteral("differences"))->model();
    QStringList cells;
    for (int column = 0; column < model->columnCount(); ++column)
        cells << model->index(0, column).data().toString();
    EXPECT_EQ(model->rowCount(), 1);
    EXPECT_EQ(cells.join(QLatin1Char('|')).toStdString(), "camera|position|0 1.5 -4|0.25 1.5 -3");
}

TEST_F(VectorValuesTest, HaveTheirEditorInTheGallery) {
    Panel::Gallery gallery;
    auto* const page = gallery.showState(Panel::GalleryState::Normal);
    gallery.show();
    auto const& rows = page->rows();
    auto const vector = std::find_if(rows.begin(), rows.end(),
                                     [](auto const* each) { return each->valueType() == "VectorInputs::Vector3"; });
    ASSERT_NE(vector, rows.end());
    EXPECT_EQ((*vector)->creatorName(), "vector");
    auto const fields = (*vector)->editor(0)->findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 3);
    fields[1]->setText(QStringLiteral("2"));
    QTest::keyClick(fields[1], Qt::Key_Return);
    EXPECT_EQ((*vector)->parameter()->ownValue()->Text(), "0 2 0");
    EXPECT_EQ((*vector)->editor(1)->findChildren<QLineEdit*>().value(1)->text(), QStringLiteral("2"));
    // The lists in the gallery print a trace.
    EXPECT_THAT(takeOutput(), testing::Each("calling getSeletion from valueChanged"));
}
