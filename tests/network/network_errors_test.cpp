#include "NetworkFile.hpp"
#include <sys/stat.h>

namespace {

struct WrongFile {
    char const* name;
    QByteArray json;
    int line;
    char const* error; ///< what follows the line
};

void PrintTo(WrongFile const& wrong, std::ostream* stream) {
    *stream << wrong.name;
}

/// A network whose only object has these parameters on line 3.
QByteArray parameters(QByteArray const& text) {
    return "{ \"pools\": [\"draft\"], \"objects\": [\n{ \"name\": \"o\", \"parameters\": [\n" + text + "\n] } ] }\n";
}

/// A network whose only object has a parameter "p" and these slots, on line 4.
QByteArray slotList(QByteArray const& text) {
    return "{ \"pools\": [\"draft\"], \"objects\": [\n{ \"name\": \"o\", \"parameters\": [\n"
           "{ \"name\": \"p\", \"type\": \"bool\", \"value\": true } ], \"slots\": [\n" +
           text + "\n] } ] }\n";
}

/// The same with one parameter "p"; `rest` follows its name.
QByteArray parameter(QByteArray const& rest) {
    return parameters("{ \"name\": \"p\", " + rest + " }");
}

/// A network whose only object has two integers: "p", which is visible on a condition, and "q", which is enabled on
/// one.
QByteArray conditions(QByteArray const& visible, QByteArray const& enabled) {
    auto const properties = enabled.isEmpty() ? QByteArray("{}") : "{ \"enabledWhen\": \"" + enabled + "\" }";
    return parameters(R"({ "name": "p", "type": "int", "value": 1, "properties": {)"
                      "\n\"visibleWhen\": \"" +
                      visible + "\" } },\n" + R"({ "name": "q", "type": "int", "value": 1, "properties": )" +
                      properties + " }");
}

/// A network whose only object has three integers: "a", "p" in the row of another one, and "q" in that of "p".
QByteArray rows(QByteArray const& rowOfP, QByteArray const& rowOfQ) {
    auto const number = [](QByteArray const& name, QByteArray const& rowOf) {
        return "{ \"name\": \"" + name + "\", \"type\": \"int\", \"value\": 1, \"properties\": {\n\"rowOf\": \"" +
               rowOf + "\" } }";
    };
    return parameters("{ \"name\": \"a\", \"type\": \"int\", \"value\": 1 },\n" + number("p", rowOfP) + ",\n" +
                      number("q", rowOfQ));
}

std::vector<WrongFile> wrongFiles() {
    return {
        {"NothingAtAll", "", 1, "expected valid JSON, found: illegal value"},
        {"Text", "hello\n", 1, "expected valid JSON, found: illegal value"},
        {"UnfinishedObject", "{\n \"title\": \"x\",\n", 3, "expected valid JSON, found: unterminated object"},
        {"MissingComma", "{\n \"title\": \"x\"\n \"pools\": []\n}", 3,
         "expected valid JSON, found: unterminated object"},
        {"UnfinishedText", "{\n\n \"title\": \"x }", 3, "expected valid JSON, found: unterminated string"},
        {"WrongUtf8", "{\n \"title\": \"\xFF\xFE\" }", 2, "expected valid JSON, found: invalid UTF8 string"},
        {"Garbage", "{}\n\nmore", 3, "expected valid JSON, found: garbage at the end of the document"},
        {"List", "\n[]", 2, "expected a network, an object, found a list of 0"},
        {"UnknownKeyOfNetwork", "{ \"pools\": [\"a\"],\n\"object\":\n[] }", 2,
         "expected only the keys objects, pools, title in a network, found \"object\""},
        // Qt loses a byte order mark when it gives a key out, and finds no value for what is left.
        {"KeyWithByteOrderMark", "{ \"pools\": [\"draft\"],\n\"\xEF\xBB\xBFobjects\": [0, 1] }", 2,
         "expected a key without the characters U+0000 and U+FEFF, found \"objects\""},
        // Qt takes keys for equal whose texts are equal up to such a character.
        {"KeysWithNul", QByteArray(R"({ "@a": [["draft"], 2, 3, 4], "@b": [] })").replace('@', '\0'), 1,
         "expected a key without the characters U+0000 and U+FEFF, found \"a\""},
        {"EscapedNulInKey", "{\n\"a\\u0000b\": 1 }", 2,
         "expected a key without the characters U+0000 and U+FEFF, found \"ab\""},
        {"KeyTwice", "{ \"title\": \"a\",\n\"title\": \"b\" }", 2, "expected each key once, found \"title\" again"},
        {"EscapedKeyTwice", "{ \"title\": \"a\",\n\n\"t\\u0069tle\": \"b\" }", 3,
         "expected each key once, found \"title\" again"},
        {"TitleNoText", "{\n\"title\": 5 }", 2, "expected the title, a text, found the number 5"},
        {"NoPools", "\n{ \"objects\": [] }", 2, "expected the key \"pools\" in a network, found none"},
        {"EmptyPools", "{ \"objects\": [],\n\"pools\": [] }", 2, "expected at least one pool, found a list of 0"},
        {"PoolsNoList", "{ \"pools\": \"draft\" }", 1, "expected the pools, a list, found the text \"draft\""},
        {"PoolTwice", "{ \"pools\": [\"a\",\n\"a\"] }", 2, "expected a pool name that is not taken, found \"a\" again"},
        {"PoolWithoutName", "{ \"pools\": [\n\"\"] }", 2,
         "expected the name of a pool, a text that is not empty, found the text \"\""},
        {"NoObjects", "{ \"pools\": [\"a\"] }", 1, "expected the key \"objects\" in a network, found none"},
        {"ObjectNoObject", "{ \"pools\": [\"a\"], \"objects\": [\n1] }", 2,
         "expected an object of the network, an object, found the number 1"},
        {"UnknownKeyOfObject", "{ \"pools\": [\"a\"], \"objects\": [\n{ \"name\": \"o\",\n\"slot\": [] }] }", 3,
         "expected only the keys kind, name, parameters, slots in an object of the network, found \"slot\""},
        {"ObjectWithoutName", "{ \"pools\": [\"a\"], \"objects\": [\n\n{ \"kind\": \"x\" }] }", 3,
         "expected the key \"name\" in an object of the network, found none"},
        {"ObjectNameWithDot", "{ \"pools\": [\"a\"], \"objects\": [\n{ \"name\": \"a.b\" }] }", 2,
         "expected the name of an object, which has no dot, found the text \"a.b\""},
        {"ObjectTwice", "{ \"pools\": [\"a\"], \"objects\": [{ \"name\": \"o\" },\n{\n\"name\": \"o\" }] }", 3,
         "expected an object name that is not taken, found \"o\" again"},
        {"KindNoText", "{ \"pools\": [\"a\"], \"objects\": [{ \"name\": \"o\",\n\"kind\": null }] }", 2,
         "expected the kind of an object, a text, found null"},
        {"ParameterTwice",
         parameters("{ \"name\": \"p\", \"type\": \"bool\", \"value\": true },\n"
                    "{ \"type\": \"bool\", \"value\": true,\n\"name\": \"p\" }"),
         5, "expected a parameter name that is not taken in the object, found \"p\" again"},
        {"UnknownKeyOfParameter", parameter("\"type\": \"bool\",\n\"vlaue\": true"), 4,
         "o.p: expected only the keys entries, name, perPool, preferences, properties, type, value, values in a "
         "parameter, "
         "found \"vlaue\""},
        {"NoType", parameter("\"value\": true"), 3, "o.p: expected the key \"type\" in a parameter, found none"},
        {"NoValue", parameter("\"type\": \"bool\""), 3, "o.p: expected the key \"value\" in a parameter, found none"},
        {"UnknownType", parameter("\n\"type\": \"boolean\", \"value\": true"), 4,
         "o.p: expected a type, one of bool, int, double, action, colour, enum, flags, info, selection, "
         "multiselection, "
         "status, string, stringarray, found the text \"boolean\""},
        {"BoolNoBool", parameter("\"type\": \"bool\",\n\"value\": 1"), 4,
         "o.p: expected a bool value, true or false, found the number 1"},
        {"IntTooLarge", parameter("\"type\": \"int\",\n\"value\": 2147483648"), 4,
         "o.p: expected an int value, a whole number from -2147483648 to 2147483647, found the number 2147483648"},
        {"IntTooSmall", parameter("\"type\": \"int\",\n\"value\": -2147483649"), 4,
         "o.p: expected an int value, a whole number from -2147483648 to 2147483647, found the number -2147483649"},
        {"IntWithFraction", parameter("\"type\": \"int\",\n\"value\": 1.5"), 4,
         "o.p: expected an int value, a whole number from -2147483648 to 2147483647, found the number 1.5"},
        {"IntNoNumber", parameter("\"type\": \"int\",\n\"value\": \"1\""), 4,
         "o.p: expected an int value, a whole number from -2147483648 to 2147483647, found the text \"1\""},
        {"DoubleNoNumber", parameter("\"type\": \"double\",\n\"value\": \"1.5\""), 4,
         "o.p: expected a double value, a number or one of \"nan\", \"inf\", \"-inf\", \"-0\", found the text \"1.5\""},
        {"DoubleTooLarge", parameter("\"type\": \"double\",\n\"value\": 1e999"), 4,
         "expected valid JSON, found: illegal number"},
        {"ActionNoText", parameter("\"type\": \"action\",\n\"value\": {}"), 4,
         "o.p: expected the name of an action, a text, found an object"},
        {"ColourOfThree", parameter("\"type\": \"colour\",\n\"value\": [0, 0, 0]"), 4,
         "o.p: expected a colour value, a list of red, green, blue and alpha, found a list of 3"},
        {"ColourNoList", parameter("\"type\": \"colour\",\n\"value\": \"red\""), 4,
         "o.p: expected a colour value, a list of red, green, blue and alpha, a list, found the text \"red\""},
        {"ColourChannelNoNumber", parameter("\"type\": \"colour\", \"value\": [0,\n0,\nfalse,\n1]"), 5,
         "o.p: expected a colour channel, a number or one of \"nan\", \"inf\", \"-inf\", \"-0\", found false"},
        {"ColourChannelTooLarge", parameter("\"type\": \"colour\", \"value\": [0,\n1e39, 0, 1]"), 4,
         "o.p: expected a colour channel in the range of a float, found the number 1e+39"},
        {"NoEntries", parameter("\"type\": \"enum\", \"value\": \"a\""), 3,
         "o.p: expected the key \"entries\" in a parameter of type enum, found none"},
        {"EntryTwice", parameter("\"type\": \"enum\", \"value\": \"a\", \"entries\": [\"a\",\n\"a\"]"), 4,
         "o.p: expected each of the entries once, found \"a\" again"},
        {"EntriesForInt", parameter("\"type\": \"int\", \"value\": 1,\n\"entries\": [\"a\"]"), 4,
         "o.p: expected no entries for the type int, found a list of 1"},
        {"EnumNoEntry", parameter("\"type\": \"enum\", \"entries\": [\"a\"],\n\"value\": \"b\""), 4,
         "o.p: expected an enum value, one of the entries, found the text \"b\""},
        {"EnumNoText", parameter("\"type\": \"enum\", \"entries\": [\"a\"],\n\"value\": 0"), 4,
         "o.p: expected an enum value, a text, found the number 0"},
        {"SelectionNoEntry", parameter("\"type\": \"selection\", \"entries\": [\"a\"],\n\"value\": \"b\""), 4,
         "o.p: expected a selection value, one of the entries, found the text \"b\""},
        {"MultiselectionNoEntry",
         parameter("\"type\": \"multiselection\", \"entries\": [\"a\"], \"value\": [\n\"a\",\n\"b\"]"), 5,
         "o.p: expected a chosen text, one of the entries, found the text \"b\""},
        {"MultiselectionTwice",
         parameter("\"type\": \"multiselection\", \"entries\": [\"a\"], \"value\": [\n\"a\",\n\"a\"]"), 5,
         "o.p: expected each chosen text once, found the text \"a\""},
        {"FlagNoBool", parameter("\"type\": \"flags\", \"value\": {\n\"red\": \"true\" }"), 4,
         "o.p: expected a flag, true or false, found the text \"true\""},
        {"FlagTwice", parameter("\"type\": \"flags\", \"value\": {\n\"red\": true,\n\"red\": false }"), 5,
         "expected each key once, found \"red\" again"},
        {"InfoNoText", parameter("\"type\": \"info\",\n\"value\": []"), 4,
         "o.p: expected an info value, a text, found a list of 0"},
        {"StatusNoText", parameter("\"type\": \"status\",\n\"value\": true"), 4,
         "o.p: expected a status value, a text, found true"},
        {"StringNoText", parameter("\"type\": \"string\",\n\"value\": null"), 4,
         "o.p: expected a string value, a text, found null"},
        {"StringWithHalfACharacter", parameter("\"type\": \"string\",\n\"value\": \"\\ud800\""), 4,
         "o.p: expected a string value, a text of whole Unicode characters, found the text \"?\""},
        {"StringArrayOfTwo", parameter("\"type\": \"stringarray\",\n\"value\": [\"a\", \"b\"]"), 4,
         "o.p: expected a stringarray value, a list of one text, found a list of 2"},
        {"UnknownPool", parameter("\"type\": \"int\", \"value\": 1, \"values\": {\n\"draft\": 2,\n\"fnial\": 3 }"), 5,
         "o.p: expected values of the pools of the network, found the pool \"fnial\""},
        {"WrongPoolValue", parameter("\"type\": \"int\", \"value\": 1, \"values\": {\n\"draft\": 0.5 }"), 4,
         "o.p: expected an int value, a whole number from -2147483648 to 2147483647, found the number 0.5"},
        {"PoolValuesOfASharedOne", parameter("\"type\": \"int\", \"value\": 1, \"values\": {},\n\"perPool\": false"), 4,
         "o.p: expected true where \"values\" are given, found false"},
        {"PreferenceTwice", parameter("\"type\": \"int\", \"value\": 1, \"preferences\": [\"dial\",\n\"dial\"]"), 4,
         "o.p: expected each of the preferences once, found \"dial\" again"},
        {"PreferenceNoText", parameter("\"type\": \"int\", \"value\": 1, \"preferences\": [\n1]"), 4,
         "o.p: expected the name of a preference, a text, found the number 1"},
        {"PropertiesNoObject", parameter("\"type\": \"int\", \"value\": 1,\n\"properties\": []"), 4,
         "o.p: expected the properties, an object, found a list of 0"},
        {"IntPropertyWithFraction", parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"min\": 0.5 }"), 4,
         "o.p: expected the property \"min\", a whole number from -2147483648 to 2147483647, found the number 0.5"},
        {"PrecisionWithFraction",
         parameter("\"type\": \"double\", \"value\": 1, \"properties\": {\n\"precision\": 2.5 }"), 4,
         "o.p: expected the property \"precision\", a whole number from -2147483648 to 2147483647, found the number "
         "2.5"},
        {"DoublePropertyNoNumber",
         parameter("\"type\": \"double\", \"value\": 1, \"properties\": {\n\"min\": \"inf\" }"), 4,
         "o.p: expected the property \"min\", a number, found the text \"inf\""},
        {"TextPropertyNoText", parameter("\"type\": \"action\", \"value\": \"a\", \"properties\": {\n\"tooltip\": 1 }"),
         4, "o.p: expected the property \"tooltip\", a text, found the number 1"},
        {"IconNoText", parameter("\"type\": \"action\", \"value\": \"a\", \"properties\": {\n\"icon\": false }"), 4,
         "o.p: expected the property \"icon\", a text, found false"},
        {"LabelNoText", parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"label\": 5 }"), 4,
         "o.p: expected the property \"label\", a text, found the number 5"},
        {"AdvancedNoTruth", parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"advanced\": 1 }"), 4,
         "o.p: expected the property \"advanced\", true or false, found the number 1"},
        {"ConditionWithoutValues", conditions("q", ""), 4,
         "o.p: expected the name of a parameter, \"=\" and values with \"|\" between them, found the text \"q\""},
        {"ConditionOnNothing", conditions("r=1", ""), 4,
         "o.p: expected a condition on another parameter of the object; \"r\" is none, found the text \"r=1\""},
        {"ConditionThatCannotHold", conditions("q=1|yes", ""), 4,
         "o.p: expected a condition that can hold; \"q\" cannot be \"yes\", found the text \"q=1|yes\""},
        {"ConditionOnItself", conditions("p=1", ""), 4,
         "o.p: expected a condition that does not depend on itself, found the text \"p=1\""},
        {"CircularCondition", conditions("q=1", "p=1"), 4,
         "o.p: expected a condition that does not depend on itself, found the text \"q=1\""},
        {"RowOfNothing", rows("b", "a"), 5,
         "o.p: expected the name of a parameter that comes before and begins a row, found the text \"b\""},
        {"RowOfItself", rows("p", "a"), 5,
         "o.p: expected the name of a parameter that comes before and begins a row, found the text \"p\""},
        {"RowOfALaterOne", rows("q", "a"), 5,
         "o.p: expected the name of a parameter that comes before and begins a row, found the text \"q\""},
        {"RowOfOneInARow", rows("a", "p"), 7,
         "o.q: expected the name of a parameter that comes before and begins a row, found the text \"p\""},
        {"FreePropertyWithHalfACharacter",
         parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"note\": \"\\ud800\" }"), 4,
         "o.p: expected the property \"note\", a text of whole Unicode characters, found the text \"?\""},
        {"FreePropertyList", parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"weight\": [] }"), 4,
         "o.p: expected the property \"weight\", a number, a text, true or false, found a list of 0"},
        {"UnknownTag", parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"weight\": { \"real\": 1 } }"),
         4, "o.p: expected only the keys int, double in the property \"weight\", found \"real\""},
        {"TwoTags",
         parameter("\"type\": \"int\", \"value\": 1, \"properties\": {\n\"weight\": { \"int\": 1, \"double\": 1 } }"),
         4, "o.p: expected the property \"weight\", {\"int\": ...} or {\"double\": ...}, found an object"},
        {"NoColumn",
         parameter("\"type\": \"enum\", \"value\": null, \"entries\": [], \"properties\": {\n\"wrap\": 0 }"), 4,
         "o.p: expected the property \"wrap\", at least 1, found the number 0"},
        {"EmptyIntRange", parameter("\"type\": \"int\", \"value\": 1, \"properties\": { \"min\": 5,\n\"max\": 4 }"), 4,
         "o.p: expected the property \"max\", not below \"min\", found the number 4"},
        {"EmptyDoubleRange",
         parameter("\"type\": \"double\", \"value\": 1, \"properties\": { \"min\": 5,\n\"max\": 5 }"), 4,
         "o.p: expected the property \"max\", above \"min\", found the number 5"},
        {"InfiniteRange",
         parameter("\"type\": \"double\", \"value\": 1, \"properties\": {\n\"max\": { \"double\": \"inf\" } }"), 4,
         "o.p: expected the property \"max\", a finite number, found an object"},
        {"OnePosition", parameter("\"type\": \"double\", \"value\": 1, \"properties\": {\n\"increment\": 1.5 }"), 4,
         "o.p: expected the property \"increment\", a number from 2 to 2147483647, found the number 1.5"},
        {"TooManyPositions",
         parameter("\"type\": \"double\", \"value\": 1, \"properties\": {\n\"increment\": 2147483648 }"), 4,
         "o.p: expected the property \"increment\", a number from 2 to 2147483647, found the number 2147483648"},
        {"UnknownKeyOfSlot", slotList("{ \"name\": \"s\",\n\"to\": \"o.p\" }"), 5,
         "expected only the keys name, parameter in a slot, found \"to\""},
        {"SlotWithoutParameter", slotList("{ \"name\": \"s\" }"), 4,
         "expected the key \"parameter\" in a slot, found none"},
        {"SlotOfUnknownParameter", slotList("{ \"name\": \"s\",\n\"parameter\": \"o.q\" }"), 5,
         "expected the parameter of a slot, \"object.parameter\" of the network, found the text \"o.q\""},
        {"SlotOfUnknownObject", slotList("{ \"name\": \"s\",\n\"parameter\": \"p\" }"), 5,
         "expected the parameter of a slot, \"object.parameter\" of the network, found the text \"p\""},
        {"SlotTwice",
         slotList("{ \"name\": \"s\", \"parameter\": \"o.p\" },\n{ \"name\": \"s\", \"parameter\": \"o.p\" }"), 5,
         "expected a slot name that is not taken in the object, found \"s\" again"},
    };
}

class WrongNetworkFile : public NetworkFileTest, public testing::WithParamInterface<WrongFile> {};

TEST_P(WrongNetworkFile, IsRefusedWithFileLineAndWhatWasExpected) {
    auto const file = write(GetParam().json);
    auto const result = Talo::Network::load(file);
    EXPECT_EQ(result.network, nullptr);
    EXPECT_EQ(result.error.toStdString(),
              file.toStdString() + ":" + std::to_string(GetParam().line) + ": " + GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(All, WrongNetworkFile, testing::ValuesIn(wrongFiles()),
                         [](auto const& row) { return std::string(row.param.name); });

using NetworkFileErrors = NetworkFileTest;

TEST_F(NetworkFileErrors, AMissingFileIsReportedWithTheReason) {
    auto const file = path("not there.json");
    auto const result = Talo::Network::load(file);
    EXPECT_EQ(result.network, nullptr);
    EXPECT_EQ(result.error, file + ":0: expected a file that can be read, found: No such file or directory");
}

TEST_F(NetworkFileErrors, AFolderIsNoFile) {
    auto const result = Talo::Network::load(path("."));
    EXPECT_EQ(result.network, nullptr);
    EXPECT_THAT(result.error.toStdString(), testing::HasSubstr(":0: expected a file that can be read, found: "));
}

TEST_F(NetworkFileErrors, WhatIsNoFileOrTooLargeIsRefusedAtOnce) {
    auto const refusal = [](QString const& file) {
        auto const result = Talo::Network::load(file);
        EXPECT_EQ(result.network, nullptr);
        return result.error.mid(file.size()).toStdString();
    };
    auto const pipe = path("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(refusal(pipe), ":0: expected a file that can be read, found: it is no regular file");
    EXPECT_EQ(refusal("/dev/zero"), ":0: expected a file that can be read, found: it is no regular file");
    EXPECT_EQ(refusal(path(".")), ":0: expected a file that can be read, found: it is a folder");
    QFile large(path("large.json"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize((64 << 20) + 1));
    EXPECT_EQ(refusal(large.fileName()), ":0: expected a file that can be read, found: it is larger than 64 MB");
}

TEST_F(NetworkFileErrors, LinesAreCountedThroughEscapesBracesInTextsAndAByteOrderMark) {
    auto const file =
        write("\xEF\xBB\xBF{ \"title\": \"\\\"}],{\\\\\",\r\n \"pools\": [\"a\"],\r\n \"objects\": 7\r\n}");
    EXPECT_EQ(Talo::Network::load(file).error, file + ":3: expected the objects, a list, found the number 7");
}

TEST_F(NetworkFileErrors, ALongTextIsShortenedInTheMessage) {
    auto const file = write("{ \"pools\": [\"a\"], \"objects\": \"" + QByteArray(1000, 'x') + "\" }");
    EXPECT_EQ(Talo::Network::load(file).error,
              file + ":1: expected the objects, a list, found the text \"" + QString(60, 'x') + "...\"");
}

} // namespace
