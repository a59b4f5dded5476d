#include <fractal/objects/RenderObject.hpp>

#include <bramble/Info.hpp>

namespace Fractal {

RenderObject::RenderObject(std::string const& name) : ComputingObject(name) {}

RenderObject::~RenderObject() = default;

void RenderObject::applyParameters(FractalSettings&, Kolt::PoolPtr const&) const {}

bool RenderObject::shapesPicture() const {
    return false;
}

bool RenderObject::isStart(Kolt::ParameterPtr const& parameter) const {
    return parameter && parameter == findParameter("start");
}

void RenderObject::showProgress(QString const& text, Kolt::PoolPtr const& pool) const {
    writeValue(findParameter("progress"), pool, Kolt::info{text.toStdString()});
}

} // namespace Fractal
