// Value types that the libraries do not know: networks hold them as soon as somebody registers their formats.

#include "NetworkFile.hpp"
#include "support/TestWarnings.hpp"

#include <lattice/UndoHistory.hpp>
#include <lattice/ValueFormat.hpp>
#include <memory>
#include <network/JsonFormat.hpp>
#include <QJsonArray>
#include <QJsonDocument>

namespace Sample {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(Point const& other) const { return x == other.x && y == other.y; }
};

/// Shows how something stands.
struct Light {
    bool isOn = false;
    bool operator==(Light const& other) const { return isOn == other.isOn; }
};

} // namespace Sample

namespace Kolt {

template <>
struct VValueTrait<Sample::Light> : ValueTraitDefaults<Sample::Light> {
    static constexpr bool IsEdited = false;
    static std::string Text(Sample::Light const& light) { return VValueTrait<bool>::Text(light.isOn); }
    static bool setValueFromText(Sample::Light& light, std::string const& text) {
        return VValueTrait<bool>::setValueFromText(light.isOn, text);
    }
};

template <>
struct VValueTrait<Sample::Point> : ValueTraitDefaults<Sample::Point> {
    static std::string Text(Sample::Point const& point) {
        return std::to_string(point.x) + ' ' + std::to_string(point.y);
    }
    static bool setValueFromText(Sample::Point& point, std::string const& text) {
        Sample::Point read;
        auto const space = text.find(' ');
        if (space == std::string::npos || !VValueTrait<int>::setValueFromText(read.x, text.substr(0, space)) ||
            !VValueTrait<int>::setValueFromText(read.y, text.substr(space + 1)))
            return false;
        point = read;
        return true;
    }
};

} // namespace Kolt

namespace {

using Sample::Point;
using testing::HasSubstr;

std::string pointToJson(Point const& point) {
    return point.x == 13 ? std::string()
                         : QJsonDocument(QJsonArray{point.x, point.y}).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<Point> pointFromJson(std::string const& json) {
    auto const list = QJsonDocument::fromJson(QByteArray::fromStdString(json)).array();
    if (list.size() != 2)
        return std::nullopt;
    if (list[0].toInt() == 13)
        throw std::runtime_error("bad luck");
    return Point{list[0].toInt(), list[1].toInt()};
}

class OwnTypes : public NetworkFileTest {
protected:
    using Format = Kolt::TypedValueFormat<Point>;

    void useText() { format_ = std::make_unique<Format>("point"); }
    void useJson() {
        format_ = std::make_unique<Format>("point", "a list of two integers", pointToJson, pointFromJson);
    }
    std::string errorOf(QByteArray const& parameter) const {
        auto const result = Talo::Network::load(write(withParameters(parameter)));
        EXPECT_FALSE(result.network);
        return result.error.toStdString();
    }
    static QByteArray point(QByteArray const& value) {
        return R"({ "name": "p", "type": "point", "value": )" + value + " }";
    }
    QByteArray saved(Talo::Network const& network) const {
        QString error;
        EXPECT_TRUE(network.save(path("saved.json"), &error)) << qPrintable(error);
        return bytesOf(path("saved.json"));
    }

    RecordedWarnings warnings_;
    std::unique_ptr<Format> format_;
};

} // namespace

TEST_F(OwnTypes, AreWrittenAsTheirTextWithoutFurtherCode) {
    useText();
    auto const loaded =
        network(withParameters(R"({ "name": "p", "type": "point", "value": "1 -2", "values": { "draft": "3 4" } })"));
    auto const parameter = parameterOf(*loaded);
    EXPECT_EQ(parameter->declaredType(), "Sample::Point");
    EXPECT_EQ(content<Point>(parameter->ownValue()), (Point{1, -2}));
    EXPECT_EQ(content<Point>(parameter->effectiveValue(loaded->findPool("draft"))), (Point{3, 4}));
    auto const bytes = saved(*loaded);
    EXPECT_THAT(bytes.toStdString(), HasSubstr(R"("type": "point",)"));
    EXPECT_THAT(bytes.toStdString(), HasSubstr(R"("value": "1 -2")"));
    EXPECT_THAT(bytes.toStdString(), HasSubstr(R"("draft": "3 4")"));
    EXPECT_EQ(saved(*network(bytes)), bytes);
}

TEST_F(OwnTypes, AreWrittenAsJsonByTwoFunctions) {
    useJson();
    auto const loaded = network(withParameters(point("[1, -2]")));
    EXPECT_EQ(content<Point>(parameterOf(*loaded)->ownValue()), (Point{1, -2}));
    auto const bytes = saved(*loaded);
    EXPECT_EQ(QJsonDocument::fromJson(bytes)["objects"][0]["parameters"][0]["value"].toArray(), (QJsonArray{1, -2}));
    EXPECT_EQ(saved(*network(bytes)), bytes);
}

TEST_F(OwnTypes, AreUnknownBeforeAndAfterTheirFormatIs) {
    auto const file = write(withParameters(point("\"1 2\"")));
    auto const unknown = file.toStdString() +
                         ":3: o.p: expected a type, one of bool, int, double, action, colour, enum, flags, info, "
                         "selection, multiselection, status, string, stringarray, found the text \"point\"";
    EXPECT_EQ(Talo::Network::load(file).error.toStdString(), unknown);
    useText();
    EXPECT_TRUE(Talo::Network::load(file).network) << "the same file, after the type became known";
    EXPECT_THAT(errorOf(R"({ "name": "p", "type": "pint", "value": 1 })"), HasSubstr("stringarray, point, found"));
    write(withParameters(point("\"1 2\"")));
    format_.reset();
    EXPECT_EQ(Talo::Network::load(file).error.toStdString(), unknown);
}

TEST_F(OwnTypes, AWrongValueIsAnErrorThatSaysWhatIsExpected) {
    useText();
    EXPECT_THAT(errorOf(point("\"1\"")),
                HasSubstr(R"(:3: o.p: expected a value of type point, written as its text, found the text "1")"));
    EXPECT_THAT(errorOf(point("[1, 2]")), HasSubstr(":3: o.p: expected a value of type point, written as its text"));
    EXPECT_THAT(errorOf(R"({ "name": "p", "type": "point", "value": "1 2", "entries": [] })"),
                HasSubstr("expected no entries for the type point"));
    format_.reset();
    useJson();
    EXPECT_THAT(errorOf(point("\"1 2\"")),
                HasSubstr(R"(:3: o.p: expected a value of type point, a list of two integers, found the text "1 2")"));
    EXPECT_THAT(errorOf(point("[13, 2]")),
                HasSubstr("expected a value of type point, a list of two integers (bad luck), found"));
}

TEST_F(OwnTypes, AValueThatCannotBeWrittenIsNotSaved) {
    useJson();
    auto const loaded = network(withParameters(point("[1, 2]")));
    ASSERT_TRUE(loaded->setText("o.p", "13 2", nullptr, nullptr));
    QString error;
    EXPECT_FALSE(loaded->save(path("saved.json"), &error));
    EXPECT_THAT(error.toStdString(), HasSubstr("o.p: the value is not of type point"));
}

TEST_F(OwnTypes, HaveDefaultsUndoAndUnsavedValues) {
    useJson();
    auto const loaded = network(withParameters(point("[1, 2]")));
    auto const parameter = parameterOf(*loaded);
    EXPECT_FALSE(loaded->isModified());
    ASSERT_TRUE(parameter->history().store(parameter, nullptr, {Kolt::makeValue(Point{5, 6}), false}));
    EXPECT_TRUE(loaded->isModified());
    auto const kept = loaded->unsavedValues();
    parameter->history().undo();
    EXPECT_EQ(content<Point>(parameter->ownValue()), (Point{1, 2}));
    EXPECT_FALSE(loaded->isModified());
    EXPECT_TRUE(loaded->takeValues(kept).isEmpty());
    EXPECT_EQ(content<Point>(parameter->ownValue()), (Point{5, 6}));
    ASSERT_NE(parameter->defaults(), nullptr);
    EXPECT_EQ(content<Point>(parameter->defaults()->in(nullptr).value), (Point{1, 2}));
    EXPECT_THAT(loaded->values().toStdString(), HasSubstr("5"));
    parameter->history().clear();
}

TEST_F(OwnTypes, ThatNobodyEditsAreSavedAsTheyWereWhenOpened) {
    Kolt::TypedValueFormat<Sample::Light> const format("light");
    auto const loaded = network(withParameters(R"({ "name": "p", "type": "light", "value": "false" })"));
    auto const before = saved(*loaded);
    ASSERT_TRUE(loaded->setText("o.p", "true", nullptr, nullptr));
    EXPECT_TRUE(content<Sample::Light>(parameterOf(*loaded)->ownValue()).isOn);
    EXPECT_FALSE(loaded->isModified());
    EXPECT_EQ(saved(*loaded), before);
    EXPECT_THAT(before.toStdString(), HasSubstr(R"("value": "false")"));
}

TEST_F(OwnTypes, HaveNumbersWithFractionsAsPropertiesThatSaySo) {
    useText();
    auto const loaded = network(withParameters(R"({ "name": "p", "type": "point", "value": "1 2",
        "properties": { "min": 1, "max": { "double": 2.5 } } })"));
    EXPECT_EQ(propertyOf(parameterOf(*loaded), "min"), "int 1");
    EXPECT_EQ(propertyOf(parameterOf(*loaded), "max"), "double 2.5");
    auto const bytes = saved(*loaded);
    EXPECT_EQ(saved(*network(bytes)), bytes);
}

TEST_F(OwnTypes, AreTextsOfConditions) {
    useText();
    auto const parameters = [](QByteArray const& condition) {
        return withParameters(point("\"1 2\"") + R"(, { "name": "q", "type": "int", "value": 1, "properties": {
            "visibleWhen": ")" +
                              condition + "\" } }");
    };
    EXPECT_TRUE(network(parameters("p=1 2|3 4")));
    EXPECT_THAT(Talo::Network::load(write(parameters("p=1"))).error.toStdString(), HasSubstr("\"p\" cannot be \"1\""));
}

TEST_F(OwnTypes, TheHostsOwnTypesAreRegisteredLikeThem) {
    QStringList keys;
    for (auto const* const format : Kolt::VValueFormat::all())
        keys << QString::fromStdString(format->key());
    EXPECT_EQ(keys.join(' ').toStdString(), "bool int double action colour enum flags info selection multiselection "
                                            "status string stringarray");
    auto const* const colour = Kolt::VValueFormat::ofKey("colour");
    auto const value = colour->read("[0.5, 1, 0, 1]");
    ASSERT_TRUE(value);
    EXPECT_EQ(value->Text(), "0.5 1 0 1");
    EXPECT_EQ(colour->write(value), "[0.5,1,0,1]");
    EXPECT_FALSE(colour->read("[0.5, 1]"));
    EXPECT_FALSE(colour->read("nonsense"));
    EXPECT_EQ(Kolt::VValueFormat::ofKey("int")->write(Kolt::makeValue(7)), "7");
    EXPECT_EQ(Kolt::VValueFormat::ofKey("int")->write(Kolt::makeValue(true)), std::nullopt);
}
