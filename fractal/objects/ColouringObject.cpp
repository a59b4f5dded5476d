#include <fractal/objects/ColouringObject.hpp>

#include <algorithm>
#include <bramble/FlagList.hpp>
#include <bramble/StringSelection.hpp>
#include <fractal/engine/GimpPalette.hpp>
#include <fractal/objects/EnumNames.hpp>
#include <lattice/ActionNotifier.hpp>
#include <lattice/UndoHistory.hpp>

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

Kolt::ParameterPtr ColouringObject::paletteFileParameter() const {
    auto const& all = slotList();
    auto const found =
        std::find_if(all.begin(), all.end(), [](auto const& slot) { return slot->Name() == "palette file"; });
    return found == all.end() ? nullptr : (*found)->parameter();
}

QString ColouringObject::paletteFile(Kolt::PoolPtr const& pool) const {
    return QString::fromStdString(Kolt::valueOr(effectiveValue(paletteFileParameter(), pool), std::string()));
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
    if (!parameter)
        return;
    auto const choice = Kolt::copyEffectiveValue(*parameter, pool).value;
    auto const selection = Kolt::valueOr(choice, Kolt::VStringList());
    if (!selection || !selection->select(fromFile))
        return;
    if (!choice->equals(*parameter->effectiveValue(pool))) {
        // Undone together with the choice of the file.
        static_cast<void>(parameter->history().store(parameter, pool, {choice, false}, paletteFileParameter()));
        return;
    }
    // The selection is unchanged but the colours are new, so notify.
    Kolt::markValueChanged(*parameter, pool);
    parameter->notifyValueChange(parameter->effectiveValue(pool), pool, std::string(), nullptr, nullptr, nullptr);
}

} // namespace Fractal
