#include <network/PresetFile.hpp>

#include <algorithm>
#include <network/JsonNode.hpp>
#include <network/Network.hpp>
#include <network/SaveFile.hpp>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <tessera/FileContent.hpp>

namespace Talo {

namespace {

// In bytes, as for networks.
constexpr std::uintmax_t largestPresetFile = 64 << 20;

QString optionalText(JsonNode const& node, char const* key, QString const& what) {
    auto const* const found = node.find(key);
    return found ? found->nonEmptyText(what) : QString();
}

PresetFile::Preset readPreset(JsonNode const& node) {
    node.members("a preset", {"kind", "object", "name", "values"});
    PresetFile::Preset preset{{optionalText(node, "kind", QStringLiteral("a kind")),
                               optionalText(node, "object", QStringLiteral("an object"))},
                              node.required("name", "a preset").nonEmptyText("the name of a preset"),
                              {}};
    if (preset.scope.kind.isEmpty() == preset.scope.object.isEmpty())
        node.refuse(QStringLiteral("a preset of a kind or of an object"),
                    preset.scope.kind.isEmpty() ? QStringLiteral("neither") : QStringLiteral("both"));
    auto const& values = node.required("values", "a preset");
    values.members("the values of a preset");
    preset.values = values.value().toObject();
    return preset;
}

QJsonObject toJson(PresetFile::Preset const& preset) {
    auto const& scope = preset.scope;
    return {scope.kind.isEmpty() ? qMakePair(QStringLiteral("object"), QJsonValue(scope.object))
                                 : qMakePair(QStringLiteral("kind"), QJsonValue(scope.kind)),
            {QStringLiteral("name"), preset.name},
            {QStringLiteral("values"), preset.values}};
}

} // namespace

PresetScope PresetScope::of(Network const& network, Kolt::ObjectPtr const& object) {
    auto const kind = network.kind(object);
    return kind.isEmpty() ? PresetScope{{}, QString::fromStdString(object->Name())} : PresetScope{kind, {}};
}

QString PresetFile::fileFor(QString const& networkFile) {
    return networkFile.isEmpty() ? QString() : networkFile + QLatin1String(".presets");
}

PresetFile::PresetFile(QString file) : file_(std::move(file)) {}

PresetFile::~PresetFile() = default;

QString PresetFile::read() {
    presets_.clear();
    // A link that leads nowhere is no missing file: writing would replace it.
    if (file_.isEmpty() || (!QFileInfo::exists(file_) && !QFileInfo(file_).isSymLink()))
        return {};
    auto const content = Tessera::FileContent::read(QFile::encodeName(file_).toStdString(), largestPresetFile);
    if (!content)
        return file_ + QStringLiteral(":0: expected a file that can be read, found: ") +
               QString::fromLocal8Bit(content.reason().c_str());
    try {
        auto const root = JsonNode::parse(QByteArray::fromStdString(content.bytes()));
        root.members("a file with presets", {"presets"});
        std::vector<Preset> presets;
        for (auto const& node : root.required("presets", "a file with presets").elements("the presets")) {
            auto const preset = readPreset(node);
            if (std::any_of(presets.begin(), presets.end(), [&](auto const& other) {
                    return other.scope == preset.scope && other.name == preset.name;
                }))
                node.refuse(QStringLiteral("each preset once"), quoted(preset.name) + QStringLiteral(" again"));
            presets.push_back(preset);
        }
        presets_ = presets;
    } catch (FormatError const& error) {
        return file_ + QLatin1Char(':') + QString::number(error.line) + QStringLiteral(": ") + error.text;
    }
    return {};
}

std::vector<PresetFile::Preset>::const_iterator PresetFile::place(PresetScope const& scope, QString const& name) const {
    return std::find_if(presets_.begin(), presets_.end(),
                        [&](auto const& preset) { return preset.scope == scope && preset.name == name; });
}

QStringList PresetFile::names(PresetScope const& scope) const {
    QStringList names;
    for (auto const& preset : presets_)
        if (preset.scope == scope)
            names << preset.name;
    std::sort(names.begin(), names.end(),
              [](auto const& left, auto const& right) { return left.localeAwareCompare(right) < 0; });
    return names;
}

PresetFile::Preset const* PresetFile::find(PresetScope const& scope, QString const& name) const {
    auto const found = place(scope, name);
    return found == presets_.end() ? nullptr : &*found;
}

QString PresetFile::put(Preset const& preset) {
    auto const reason = read();
    if (!reason.isEmpty())
        return reason;
    auto const known = place(preset.scope, preset.name);
    if (known == presets_.end())
        presets_.push_back(preset);
    else
        presets_[static_cast<std::size_t>(known - presets_.begin())] = preset;
    return write();
}

QString PresetFile::remove(PresetScope const& scope, QString const& name) {
    auto const reason = read();
    if (!reason.isEmpty())
        return reason;
    auto const known = place(scope, name);
    if (known == presets_.end())
        return {};
    presets_.erase(known);
    return write();
}

QString PresetFile::write() const {
    QJsonArray presets;
    for (auto const& preset : presets_)
        presets.append(toJson(preset));
    auto const json = QJsonDocument(QJsonObject{{QStringLiteral("presets"), presets}}).toJson();
    QSaveFile target(file_);
    if (file_.isEmpty() || !target.open(QIODevice::WriteOnly) || target.write(json) != json.size())
        return file_.isEmpty() ? QStringLiteral("there is no file for presets") : target.errorString();
    return commitSaveFile(target);
}

} // namespace Talo
