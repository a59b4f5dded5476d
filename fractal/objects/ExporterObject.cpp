#include <fractal/objects/ExporterObject.hpp>

namespace Fractal {

ExporterObject::ExporterObject(std::string const& name) : ComputingObject(name) {}

ExporterObject::~ExporterObject() = default;

void ExporterObject::applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const {
    settings.width = read("width", pool, settings.width);
}

bool ExporterObject::shapesPicture() const {
    return false;
}

void ExporterObject::run(Kolt::PoolPtr const& pool) {
    Tessera::StrongPtr<Kolt::VSlot> latest;
    unsigned long latestAge = 0;
    for (auto const& slot : slotList()) {
        auto const value = effectiveValue(slot->parameter(), pool);
        unsigned long const age = value ? value->age() : 0;
        if (age > latestAge && age > servedAges_[slot->Name()]) {
            latest = slot;
            latestAge = age;
        }
    }
    if (!latest)
        return;
    servedAges_[latest->Name()] = latestAge;
    auto const file = QString::fromStdString(Kolt::valueOr(effectiveValue(latest->parameter(), pool), std::string()));
    if (file.isEmpty() || !writer_)
        return;
    if (latest->Name() == "write picture")
        writer_(Format::Png, file, pool);
    else if (latest->Name() == "write document")
        writer_(Format::Pdf, file, pool);
}

} // namespace Fractal
