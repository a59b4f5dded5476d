#include <panel/objects/ColouringObject.hpp>
#include <panel/objects/ExporterObject.hpp>
#include <panel/objects/FormulaObject.hpp>
#include <panel/objects/LayersObject.hpp>
#include <panel/objects/ObjectFactory.hpp>
#include <panel/objects/RenderObject.hpp>
#include <panel/objects/TitlesObject.hpp>

namespace Panel {

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

} // namespace Panel
