#include <fractal/objects/ObjectFactory.hpp>

#include <fractal/objects/ColouringObject.hpp>
#include <fractal/objects/ExporterObject.hpp>
#include <fractal/objects/FormulaObject.hpp>
#include <fractal/objects/LayersObject.hpp>
#include <fractal/objects/RenderObject.hpp>
#include <fractal/objects/TitlesObject.hpp>

namespace Fractal {

namespace {

template <typename T>
Kolt::ObjectPtr make(std::string const& name) {
    return Kolt::ObjectPtr(new T(name));
}

} // namespace

Kolt::ObjectPtr makeObject(QString const& kind, QString const& name) {
    std::pair<char const*, Kolt::ObjectPtr (*)(std::string const&)> const makers[] = {
        {"formula", make<FormulaObject>}, {"colouring", make<ColouringObject>}, {"layers", make<LayersObject>},
        {"titles", make<TitlesObject>},   {"exporter", make<ExporterObject>},   {"render", make<RenderObject>}};
    for (auto const& [known, maker] : makers) {
        if (kind == QLatin1String(known))
            return maker(name.toStdString());
    }
    return make<Kolt::VObject>(name.toStdString());
}

} // namespace Fractal
