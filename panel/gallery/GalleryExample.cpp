#include <panel/gallery/GalleryExample.hpp>

#include <algorithm>
#include <lattice/ValueCreator.hpp>
#include <network/JsonFormat.hpp>
#include <network/PropertyFormat.hpp>
#include <QDir>

namespace Panel {

namespace {

using Pools = std::vector<Kolt::PoolPtr>;

/// The example for a type, written like a parameter of a network file; "values" has one for each pool, in their order.
struct Example {
    char const* typeKey;
    /// Only for creators that have this preference; empty: for all others.
    char const* preference;
    char const* json;
};

// Examples for a preference precede those for all others.
constexpr Example examples[] = {
    {"bool", "", R"({"value": true, "values": [false, true]})"},
    {"int", "", R"({"value": 42, "values": [10, 90], "properties": {"min": 0, "max": 100}})"},
    {"double", "",
     R"({"value": 2.5, "values": [0.5, 7.25],
         "properties": {"min": 0, "max": 10, "increment": 1001, "precision": 2}})"},
    {"action", "", R"({"value": "Run", "values": ["Run draft", "Run final"], "properties": {"tooltip": "Runs"}})"},
    {"colour", "", R"({"value": [0.2, 0.5, 0.8, 1], "values": [[0.9, 0.6, 0.1, 1], [0.3, 0.6, 0.2, 0.5]]})"},
    {"enum", "",
     R"({"entries": ["North", "East", "South", "West"], "value": "East", "values": ["North", "South"],
         "properties": {"wrap": 2}})"},
    {"selection", "",
     R"({"entries": ["Linear", "Cosine", "Cubic", "Steps"], "value": "Cosine", "values": ["Steps", "Cubic"]})"},
    {"multiselection", "",
     R"({"entries": ["level 1", "level 2", "level 5", "level 10", "level 20", "level 50"],
         "value": ["level 2", "level 10"], "values": [["level 1"], ["level 5", "level 50"]]})"},
    {"flags", "",
     R"({"value": {"red": true, "green": true, "blue": false},
         "values": [{"red": true, "green": false, "blue": false}, {"red": true, "green": true, "blue": true}]})"},
    {"info", "", R"({"value": "12 of 40 rows read", "values": ["A rough result", "The final result"]})"},
    {"status", "", R"({"value": "<b>Ready</b>, nothing to do", "values": ["<b>Draft</b> done", "<b>Final</b> done"]})"},
    {"string", "MultiLine",
     R"({"value": "First line\nSecond line", "values": ["A draft\nof two lines", "The final\ntwo lines"]})"},
    {"string", "Save as", R"({"value": "picture.png", "values": ["draft.png", "final.png"]})"},
    {"string", "Save as PDF", R"({"value": "document.pdf", "values": ["draft.pdf", "final.pdf"]})"},
    {"string", "FileInput",
     R"json({"value": "colours.gpl", "values": ["draft.gpl", "final.gpl"],
         "properties": {"Extension": "GIMP palettes (*.gpl);;All files (*)"}})json"},
    {"string", "", R"({"value": "A line of text", "values": ["A draft", "The final text"]})"},
    {"stringarray", "", R"({"value": ["A line of text"], "values": [["A draft"], ["The final text"]]})"},
};

Example const* findExample(std::string const& typeKey, Kolt::VCreationPreferences const& preferences) {
    auto const* const found = std::find_if(std::begin(examples), std::end(examples), [&](auto const& example) {
        return example.typeKey == typeKey && (*example.preference == '\0' || preferences.contains(example.preference));
    });
    return found == std::end(examples) ? nullptr : found;
}

/// A value that no editor of the type can read.
Kolt::ValuePtr valueOfOtherType(std::string const& valueType) {
    auto const key = Talo::shortTypeName(valueType);
    bool const isText = key == QLatin1String("string") || key == QLatin1String("stringarray");
    return isText ? Kolt::makeValue(7) : Kolt::makeValue(std::string("a text"));
}

/// The parameter as the example says; the own value and those of the pools are of the right type.
Kolt::ParameterPtr readExample(std::string const& name, Example const& example, Kolt::VValueFormat const& format,
                               Kolt::VParameter::Values values, Pools const& pools) {
    auto const root = Talo::JsonNode::parse(example.json);
    std::vector<std::string> entries;
    if (auto const* const entryList = root.find("entries"))
        for (auto const& entry : entryList->elements(QStringLiteral("the entries")))
            entries.push_back(entry.text(QStringLiteral("an entry")).toStdString());
    Kolt::ParameterPtr const parameter(new Kolt::VParameter(
        name, Talo::readValue(format, root.required("value", QStringLiteral("an example")), entries), values,
        format.typeName()));
    if (values == Kolt::VParameter::Values::PerPool) {
        auto const& poolValues =
            root.required("values", QStringLiteral("an example")).elements(QStringLiteral("the values of pools"));
        for (std::size_t index = 0; index < std::min(pools.size(), poolValues.size()); ++index)
            parameter->getLocalValue(pools[index], std::string(), true)
                ->assign(*Talo::readValue(format, poolValues[index], entries));
    }
    if (auto const* const properties = root.find("properties"))
        for (auto const& [key, value] :
             Talo::PropertyFormat(QString::fromLatin1(example.typeKey), QDir::currentPath()).read(*properties))
            parameter->setProperty(key, value, nullptr, nullptr, nullptr);
    return parameter;
}

Kolt::ParameterPtr makeParameter(std::string const& name, std::string const& valueType,
                                 Kolt::VCreationPreferences const& preferences, GalleryState state,
                                 Pools const& pools) {
    using Values = Kolt::VParameter::Values;
    if (state == GalleryState::WrongType)
        return Kolt::ParameterPtr(new Kolt::VParameter(name, valueOfOtherType(valueType), Values::Shared, valueType));
    auto const values = state == GalleryState::PerPool ? Values::PerPool : Values::Shared;
    auto const* const format = Kolt::VValueFormat::ofType(valueType);
    if (auto const* const example = format ? findExample(format->key(), preferences) : nullptr)
        return readExample(name, *example, *format, values, pools);
    // A type that a plug-in brings.
    auto const value = Kolt::VValueCreator::create(valueType);
    return value ? Kolt::ParameterPtr(new Kolt::VParameter(name, value, values, valueType)) : nullptr;
}

} // namespace

QString valueTypeTitle(std::string const& valueType) {
    auto const type = QString::fromStdString(valueType);
    auto const key = Talo::shortTypeName(valueType);
    return key == type ? type : QStringLiteral("%1 – %2").arg(key, type);
}

Kolt::ParameterPtr makeGalleryExample(Kolt::InputRegistry::Entry const& entry, GalleryState state, Pools const& pools) {
    auto const creator = entry.creator.strong();
    if (!creator)
        return nullptr;
    auto const& preferences = *creator->preferences();
    auto const parameter = makeParameter(creator->Name(), entry.valueType, preferences, state, pools);
    if (parameter)
        parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(preferences.names())));
    return parameter;
}

} // namespace Panel
