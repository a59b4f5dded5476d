#pragma once

#include <lattice/Value.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// The message in which an object reports its state to the user while it works. UTF-8; it may be rich text. A plain
/// value: one thread at a time, so a worker writes its messages through a value object, which has a lock.
class TALO_EXPORT VObjectStatus {
public:
    /// An empty message.
    VObjectStatus();
    /// A status with this text, UTF-8. Labels show it as it is, so only what is harmless is taken over (harmlessText).
    explicit VObjectStatus(std::string const& text);
    VObjectStatus(VObjectStatus const&);
    VObjectStatus& operator=(VObjectStatus const&);
    ~VObjectStatus();

    /// The message.
    std::string const& text() const { return text_; }
    /// Whether both have the same text, byte for byte.
    bool operator==(VObjectStatus const& other) const { return text_ == other.text_; }

private:
    std::string text_;
};

/// How a status is written: as the message itself.
template <>
struct TALO_EXPORT VValueTrait<VObjectStatus> : ValueTraitDefaults<VObjectStatus> {
    /// People do not edit values of the type.
    static constexpr bool IsEdited = false;
    /// The message.
    static std::string Text(VObjectStatus const& value) { return value.text(); }
    /// Replaces the message; every text is accepted, as by the constructor.
    static bool setValueFromText(VObjectStatus& value, std::string const& text);
};

extern template class TALO_EXPORT VTypedValueBase<VObjectStatus>;
extern template class TALO_EXPORT VValue<VObjectStatus>;

} // namespace Kolt
