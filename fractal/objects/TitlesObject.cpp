#include <fractal/objects/TitlesObject.hpp>

#include <array>

namespace Fractal {

TitlesObject::TitlesObject(std::string const& name) : ComputingObject(name) {}

TitlesObject::~TitlesObject() = default;

void TitlesObject::applyParameters(FractalSettings& settings, Kolt::PoolPtr const& pool) const {
    auto const text = [&](char const* parameter) {
        return QString::fromStdString(read(parameter, pool, std::string()));
    };
    settings.heading = text("heading");
    settings.author = text("author");
    settings.date = text("date");
    settings.legendText = text("legend");
    // A parameter that is declared as an array of one text may hold a plain text, which its editor writes.
    settings.caption = QString::fromStdString(
        read("caption", pool, std::array<std::string, 1>{read("caption", pool, std::string())})[0]);
}

} // namespace Fractal
