#include <panel/window/CountTexts.hpp>

#include <QCoreApplication>

namespace Panel {

namespace {

struct CountTexts {
    Q_DECLARE_TR_FUNCTIONS(CountTexts)
};

} // namespace

QString parameterCountText(int count) {
    return count == 1 ? CountTexts::tr("1 parameter") : CountTexts::tr("%n parameters", nullptr, count);
}

QString objectCountText(int count) {
    return count == 1 ? CountTexts::tr("1 object") : CountTexts::tr("%n objects", nullptr, count);
}

QString parametersFoundText(int count) {
    return count == 1 ? CountTexts::tr("1 parameter found") : CountTexts::tr("%n parameters found", nullptr, count);
}

} // namespace Panel
