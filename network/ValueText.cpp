#include <bramble/FlagList.hpp>
#include <network/ValueText.hpp>

namespace Talo {

Kolt::ValuePtr valueFromText(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool, QString const& text) {
    auto const value = Kolt::copyEffectiveValue(parameter, pool).value;
    auto const before = Kolt::valueIn<Kolt::FlagList>(value);
    if (!value->setValueFromText(text.toStdString()))
        return nullptr;
    auto const after = Kolt::valueIn<Kolt::FlagList>(value);
    return before && after && before->size() != after->size() ? nullptr : value;
}

} // namespace Talo
