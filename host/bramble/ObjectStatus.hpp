#pragma once

#include <lattice/Value.hpp>

namespace Kolt {

/// What an object says of itself while it works: a message for the user, UTF-8, which may be rich text.
class VObjectStatus {
public:
    VObjectStatus();
    explicit VObjectStatus(std::string text);
    VObjectStatus(VObjectStatus const&);
    VObjectStatus& operator=(VObjectStatus const&);
    ~VObjectStatus();

    std::string const& text() const { return text_; }
    bool operator==(VObjectStatus const& other) const { return text_ == other.text_; }

private:
    std::string text_;
};

/// The text itself.
template <>
struct VValueTrait<VObjectStatus> : ValueTraitDefaults<VObjectStatus> {
    static std::string Text(VObjectStatus const& value) { return value.text(); }
    static bool setValueFromText(VObjectStatus& value, std::string const& text);
};

extern template class VTypedValueBase<VObjectStatus>;
extern template class VValue<VObjectStatus>;

} // namespace Kolt
