#pragma once

#include <fractal/objects/ComputingObject.hpp>
#include <functional>
#include <map>

namespace Fractal {

/// Says where pictures are written, and how large they are. Its parameter: `width` (int), in points. Its slots: the
/// parameter of "write picture" names a PNG file, that of "write document" a PDF file.
class ExporterObject : public ComputingObject {
public:
    enum class Format { Png, Pdf };
    /// Called to write a picture of a pool to a file whose name is not empty.
    using Writer = std::function<void(Format format, QString const& file, Kolt::PoolPtr const& pool)>;

    explicit ExporterObject(std::string const& name);
    ~ExporterObject() override;

    void applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const override;
    bool shapesPicture() const override;
    /// Writes the file that was chosen last. A run does not tell which slot it is for, but choosing a file, the same
    /// one included, renews its age stamp; so it is the slot with the latest one that no run was for yet. Nothing
    /// happens when there is none.
    void run(Kolt::PoolPtr const& pool) override;

    /// Who writes; an empty function writes nothing.
    void setWriter(Writer writer) { writer_ = std::move(writer); }

private:
    Writer writer_;
    // The latest age stamp that a run was for, by slot.
    std::map<std::string, unsigned long> servedAges_;
};

} // namespace Fractal
