#pragma once

#include <fractal/objects/ComputingObject.hpp>
#include <functional>
#include <map>

namespace Fractal {

/// Defines where pictures are written, and how large they are. Its parameter: `width` (int), in pixels. Its slots: the
/// parameter of "write picture" names a PNG file, that of "write document" a PDF file.
class ExporterObject : public ComputingObject {
public:
    enum class Format { Png, Pdf };
    /// Writes the picture of a pool to a file, whose name is not empty.
    using Writer = std::function<void(Format format, QString const& file, Kolt::PoolPtr const& pool)>;

    explicit ExporterObject(std::string const& name);
    ~ExporterObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
    bool shapesPicture() const override;
    /// Writes the file that was chosen last. run() is not told which slot it is for, but choosing a file, even the same
    /// one, renews its value's age stamp. So the slot is the one with the latest stamp that no earlier run served. Does
    /// nothing if there is none.
    void run(Kolt::PoolPtr const& pool) override;

    /// Sets the function that writes pictures; an empty one writes nothing.
    void setWriter(Writer writer) { writer_ = std::move(writer); }

private:
    Writer writer_;
    // The latest age stamp that a run served, for each slot.
    std::map<std::string, unsigned long> servedAges_;
};

} // namespace Fractal
