#pragma once

#include <lattice/Value.hpp>
#include <map>

namespace Ferro {

/// A colour as four channels, red, green, blue and alpha (0 transparent, 1 opaque), each nominally 0 to 1. Opaque
/// black by default.
struct rgba_float_t {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 1.0F;
};

} // namespace Ferro

namespace Kolt {

/// Named switches, ordered by name. A plain value: copies are apart. One thread at a time.
class FlagList {
public:
    using Map = std::map<std::string, bool>;

    FlagList();
    FlagList(std::initializer_list<Map::value_type> flags);
    FlagList(FlagList const&);
    FlagList& operator=(FlagList const&);
    ~FlagList();

    /// The switch of a name, made and off if the name is new.
    bool& operator[](std::string const& name) { return flags_[name]; }
    /// Whether the name is in the list and its switch is on.
    bool isSet(std::string const& name) const;
    bool contains(std::string const& name) const { return flags_.count(name) > 0; }
    std::size_t size() const { return flags_.size(); }
    Map::const_iterator begin() const { return flags_.begin(); }
    Map::const_iterator end() const { return flags_.end(); }
    bool operator==(FlagList const& other) const { return flags_ == other.flags_; }

private:
    Map flags_;
};

using Options = FlagList;

/// A text that informs the user. UTF-8.
struct info {
    std::string text;
    bool operator==(info const& other) const { return text == other.text; }
};

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

/// The text is the four channels with blanks between them.
template <>
struct VValueTrait<Ferro::rgba_float_t> : ValueTraitDefaults<Ferro::rgba_float_t> {
    static std::string Text(Ferro::rgba_float_t const& value);
    static bool setValueFromText(Ferro::rgba_float_t& value, std::string const& text);
    /// Channel by channel; two that are not a number count as equal.
    static bool Equal(Ferro::rgba_float_t const& left, Ferro::rgba_float_t const& right);
};

/// The text has a line "name=true" or "name=false" for each flag, in order of the names. A text with any other line is
/// refused. A name that is new is added, flags that the text leaves out stay as they are.
template <>
struct VValueTrait<FlagList> : ValueTraitDefaults<FlagList> {
    static std::string Text(FlagList const& value);
    static bool setValueFromText(FlagList& value, std::string const& text);
};

/// The text itself.
template <>
struct VValueTrait<info> : ValueTraitDefaults<info> {
    static constexpr bool IsEdited = false;
    static std::string Text(info const& value) { return value.text; }
    static bool setValueFromText(info& value, std::string const& text);
};

/// The text itself.
template <>
struct VValueTrait<VObjectStatus> : ValueTraitDefaults<VObjectStatus> {
    static constexpr bool IsEdited = false;
    static std::string Text(VObjectStatus const& value) { return value.text(); }
    static bool setValueFromText(VObjectStatus& value, std::string const& text);
};

extern template class VTypedValueBase<Ferro::rgba_float_t>;
extern template class VTypedValueBase<FlagList>;
extern template class VTypedValueBase<info>;
extern template class VTypedValueBase<VObjectStatus>;
extern template class VValue<Ferro::rgba_float_t>;
extern template class VValue<FlagList>;
extern template class VValue<info>;
extern template class VValue<VObjectStatus>;

} // namespace Kolt
