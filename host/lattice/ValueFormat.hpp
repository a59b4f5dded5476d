#pragma once

#include <lattice/ValueCreator.hpp>
#include <optional>
#include <string>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// How files write the values of one type, and the key that names the type in them: "vector3" in
/// {"type": "vector3", "value": "1 2 3"}. The constructor registers the format, the destructor unregisters it; usually
/// it is a static object of the program or plug-in that defines the type. It is not copied.
///
/// A format is refused, with a warning (VActionNotifier::Warning), if its key is empty or taken, or if the type has a
/// format already: what a file means must not depend on the order of loading. Loading thread or user-interface thread.
class TALO_EXPORT VValueFormat {
public:
    /// What `write` makes and `read` expects.
    enum class Notation {
        Text, ///< a plain text, which a file holds as a JSON string
        Json  ///< JSON: any value, as "[1,2,3]"
    };

    /// `typeName` is the readable name of the type (Tessera::Typename).
    VValueFormat(std::string key, std::string typeName, Notation notation);
    virtual ~VValueFormat();
    VValueFormat(VValueFormat const&) = delete;
    VValueFormat& operator=(VValueFormat const&) = delete;

    /// The type's key in files.
    std::string const& key() const { return key_; }
    /// The readable name of the type, by which editors are chosen.
    std::string const& typeName() const { return typeName_; }
    /// What `write` makes and `read` expects.
    Notation notation() const { return notation_; }

    /// What a value of the type looks like, for a message about one that is none: "a list of three numbers".
    virtual std::string description() const = 0;
    /// Whether values of the type show how something stands. People do not edit them, and a file keeps the value that
    /// it had when it was opened.
    virtual bool showsState() const = 0;
    /// The value in the format's notation, UTF-8; empty if the object is of another type or its value cannot be
    /// written.
    [[nodiscard]] virtual std::optional<std::string> write(ValuePtr const& value) const = 0;
    /// A new value object; null if the text, UTF-8, is no value of the type.
    [[nodiscard]] virtual ValuePtr read(std::string const& text) const = 0;

    /// The registered format of a key; null for an unknown one. It may go when a plug-in is unloaded: do not keep it.
    static VValueFormat const* ofKey(std::string const& key);
    /// The same for a readable type name.
    static VValueFormat const* ofType(std::string const& typeName);
    /// All registered formats, in order of registration.
    static std::vector<VValueFormat const*> all();
    /// Unregisters a format that was not destroyed, as one that a plug-in left behind; the object is not used and may
    /// be gone by then. Whether it was registered.
    static bool unregister(VValueFormat const* format);

private:
    std::string const key_;
    std::string const typeName_;
    Notation const notation_;
};

/// The format of VValue<T> objects; also registers a value creator of T (VValueCreator). A T needs no more than its
/// VValueTrait: it is then written as its text. With two functions it is written as JSON. T is default constructible.
///
///     TALO_STATIC_CREATOR TypedValueFormat<Vector3> const vectorFormat("vector3");
template <typename T>
class TypedValueFormat : public VValueFormat {
    static_assert(HasText<T>, "The type needs a text: specialise VValueTrait for it.");

public:
    /// Makes JSON; empty for a value that cannot be written.
    using Write = std::string (*)(T const& value);
    /// Reads JSON; empty for what is no value of the type.
    using Read = std::optional<T> (*)(std::string const& json);

    /// Writes values as their texts.
    explicit TypedValueFormat(std::string key)
        : VValueFormat(std::move(key), Tessera::Typename(typeid(T)), Notation::Text),
          description_("written as its text") {
        registerValueCreator();
    }
    /// Writes values as JSON. `description` says what they look like there.
    TypedValueFormat(std::string key, std::string description, Write writeJson, Read readJson)
        : VValueFormat(std::move(key), Tessera::Typename(typeid(T)), Notation::Json),
          description_(std::move(description)),
          write_(writeJson),
          read_(readJson) {
        registerValueCreator();
    }

    std::string description() const override { return description_; }
    bool showsState() const override { return !IsEditedType<T>; }
    std::optional<std::string> write(ValuePtr const& value) const override {
        auto const content = valueIn<T>(value);
        if (!content)
            return std::nullopt;
        auto text = write_ ? write_(*content) : VValueTrait<T>::Text(*content);
        return write_ && text.empty() ? std::nullopt : std::make_optional(std::move(text));
    }
    ValuePtr read(std::string const& text) const override {
        if (read_) {
            auto const content = read_(text);
            return content ? makeValue<T>(*content) : nullptr;
        }
        T content{};
        return VValueTrait<T>::setValueFromText(content, text) ? makeValue<T>(content) : nullptr;
    }

private:
    void registerValueCreator() {
        VValueCreator::registerCreator(Tessera::watch<VValueCreator>(&creator_), typeName());
    }

    TypedValueCreator<T> creator_;
    std::string const description_;
    Write const write_ = nullptr;
    Read const read_ = nullptr;
};

} // namespace Kolt
