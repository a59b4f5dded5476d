#pragma once

#include <fractal/objects/ComputingObject.hpp>

namespace Fractal {

/// Says how a picture is coloured. Its parameters: `inside` and `outside` (colour), `palette` (selection: "Embers",
/// "Glacier", "Meadow", "Greyscale" or "From file"), `blend` (selection: "Linear", "Cosine", "Cubic" or "Steps") and
/// `channels` (flags "red", "green", "blue" and "alpha"). The parameter of its slot "palette file" names a GIMP
/// palette, the colours for "From file".
class ColouringObject : public ComputingObject {
public:
    explicit ColouringObject(std::string const& name);
    ~ColouringObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
    /// Reads the palette file if it is needed and was not read yet. A file that cannot be read leaves the palette
    /// without colours, and the settings say why.
    void readFiles(FractalSettings& settings, Kolt::PoolPtr const& pool) override;
    /// Reads the palette file, also once more, and chooses the palette "From file" in the pool; that is undone together
    /// with the choice of the file. Where it cannot be read
    /// the host is warned, and the choice stays as it is.
    void run(Kolt::PoolPtr const& pool) override;

private:
    /// The parameter that names the palette file; null for none.
    Kolt::ParameterPtr paletteFileParameter() const;
    QString paletteFile(Kolt::PoolPtr const& pool) const;
    /// Reads a file and remembers its colours, or why there are none. Whether there are.
    bool readPalette(QString const& file);
    void chooseFilePalette(Kolt::PoolPtr const& pool);

    // The file that the colours, or the problem, are of.
    QString paletteFile_;
    QString paletteProblem_;
    std::vector<QRgb> fileColours_;
};

} // namespace Fractal
