#include <algorithm>
#include <bramble/FlagList.hpp>
#include <bramble/StringSelection.hpp>
#include <fractal/engine/GimpPalette.hpp>
#include <fractal/objects/ColouringObject.hpp>
#include <fractal/objects/EnumNames.hpp>
#include <lattice/ActionNotifier.hpp>

namespace Fractal {

namespace {

constexpr auto fromFile = "From file";

} // namespace

ColouringObject::ColouringObject(std::string const& name) : ComputingObject(name) {}

ColouringObject::~ColouringObject() = default;

void ColouringObject::applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const {
    using Palette = FractalSettings::Palette;
    using Blend = FractalSettings::Blend;
    settings.inside = read("inside", pool, settings.inside);
    settings.outside = read("outside", pool, settings.outside);
    settings.palette = chosen(readText<Kolt::VStringList>("palette", pool), settings.palette,
                              {{"Embers", Palette::Embers},
                               {"Glacier", Palette::Glacier},
                               {"Meadow", Palette::Meadow},
                               {"Greyscale", Palette::Greyscale},
                               {fromFile, Palette::FromFile}});
    settings.blend = chosen(
        readText<Kolt::VStringList>("blend", pool), settings.blend,
        {{"Linear", Blend::Linear}, {"Cosine", Blend::Cosine}, {"Cubic", Blend::Cubic}, {"Steps", Blend::Steps}});
    auto const channels = read("channels", pool, Kolt::FlagList());
    std::pair<char const*, bool&> const flags[] = {
        {"red", settings.red}, {"green", settings.green}, {"blue", settings.blue}, {"alpha", settings.alpha}};
    for (auto const& [name, isUsed] : flags) {
        if (channels.contains(name))
            isUsed = channels.isSet(name);
    }
}

void ColouringObject::readFiles(FractalSettings& settings, Kolt::PoolPtr const& pool) {
    if (settings.palette != FractalSettings::Palette::FromFile)
        return;
    auto const file = paletteFile(pool);
    if (file != paletteFile_)
        readPalette(file);
    settings.fileColours = fileColours_;
    settings.problem = paletteProblem_;
}

void ColouringObject::run(Kolt::PoolPtr const& pool) {
    auto const file = paletteFile(pool);
    if (file.isEmpty())
        return;
    if (readPalette(file))
        chooseFilePalette(pool);
    else
        Kolt::VActionNotifier::Warning(paletteProblem_.toStdString());
}

QString ColouringObject::paletteFile(Kolt::PoolPtr const& pool) const {
    for (auto const& slot : slotList()) {
        if (slot->Name() == "palette file")
            return QString::fromStdString(Kolt::valueOr(effectiveValue(slot->parameter(), pool), std::string()));
    }
    return {};
}

bool ColouringObject::readPalette(QString const& file) {
    paletteFile_ = file;
    paletteProblem_.clear();
    fileColours_.clear();
    if (!file.isEmpty())
        fileColours_ = GimpPalette::read(file, paletteProblem_);
    return !fileColours_.empty();
}

void ColouringObject::chooseFilePalette(Kolt::PoolPtr const& pool) {
    auto const parameter = findParameter("palette");
    // A selection is changed in place, so the pool has to have one of its own first.
    auto const value = parameter ? parameter->getLocalValue(pool, std::string(), true) : nullptr;
    auto const selection = Kolt::valueOr(value, Kolt::VStringList());
    // Also where it is chosen already: the choice is the same, the colours are not.
    if (selection && selection->select(fromFile))
        writeValue(parameter, pool, selection);
}

} // namespace Fractal
