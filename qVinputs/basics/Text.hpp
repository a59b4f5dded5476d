#pragma once

#include <lattice/Parameter.hpp>
#include <optional>
#include <QFont>
#include <QString>
#include <string>

namespace Kolt {

// The cast name of a text editor's second base is "VInputValue<string>", and moc takes it as it is spelled.
using std::string;

/// The small bold font of a family: 8 points, weight 75. Empty if exactly this family is not available. Qt answers that
/// for the default size, so the answer depends on the resolution of the screen, too: a default size that is no integer
/// number of pixels is not matched exactly. User-interface thread, with an application object.
inline std::optional<QFont> smallBoldFont(char const* family) {
    QFont font(QString::fromUtf8(family));
    if (!font.exactMatch())
        return std::nullopt;
    font.setPointSize(8);
    font.setWeight(QFont::Bold);
    return font;
}

/// A text as the caption of a button that shows it as it is: an ampersand is a letter of it and marks no keyboard
/// shortcut. Any thread.
inline QString literalCaption(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// The text under a property's name; empty if there is no parameter, no property, or it is no text. User-interface
/// thread.
inline string textProperty(ParameterPtr const& parameter, string const& name) {
    auto const* const properties = parameter ? parameter->properties() : nullptr;
    return properties ? valueOr(properties->getValue(name), string()) : string();
}

} // namespace Kolt
