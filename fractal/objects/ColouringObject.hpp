#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Defines how a picture is coloured. Its parameters: `inside` and `outside` (colour), `palette` (selection: "Embers",
/// "Glacier", "Meadow", "Greyscale" or "From file"), `blend` (selection: "Linear", "Cosine", "Cubic" or "Steps") and
/// `channels` (flags "red", "green", "blue" and "alpha"). The parameter of its slot "palette file" names a GIMP palette
/// with the colours for "From file".
class ColouringObject : public ComputingObject {
public:
    explicit ColouringObject(std::string const& name);
    ~ColouringObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
    /// Reads the palette file if the palette is "From file" and this file is not the one read last. If it cannot be
    /// read, the palette has no colours and the settings say why.
    void readFiles(FractalSettings& settings, Kolt::PoolPtr const& pool) override;
    /// Reads the palette file, even if it was read before, and selects the palette "From file" in the pool. Undo
    /// reverts this together with the choice of the file. If the file cannot be read, warns and leaves the palette
    /// selection unchanged.
    void run(Kolt::PoolPtr const& pool) override;

private:
    /// The parameter that names the palette file; null for none.
    Kolt::ParameterPtr paletteFileParameter() const;
    QString paletteFile(Kolt::PoolPtr const& pool) const;
    /// Reads a file and stores its colours, or why there are none. Returns whether there are colours.
    bool readPalette(QString const& file);
    void chooseFilePalette(Kolt::PoolPtr const& pool);

    // The file that was read last; its colours or problem follow.
    QString paletteFile_;
    QString paletteProblem_;
    std::vector<QRgb> fileColours_;
};

} // namespace Fractal
