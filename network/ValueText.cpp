#include <bramble/FlagList.hpp>
#include <network/ValueText.hpp>

namespace Talo {

Kolt::ValuePtr valueFromText(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool, QString const& text) {
    auto const value = Kolt::copyEffectiveValue(parameter, pool).value;
    Kolt::FlagList const none;
    auto const flags = Kolt::valueOr(value, none).size();
    bool const isValue = value->setValueFromText(text.toStdString());
    return isValue && Kolt::valueOr(value, none).size() == flags ? value : nullptr;
}

} // namespace Talo
