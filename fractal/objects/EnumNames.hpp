#pragma once

#include <initializer_list>
#include <QString>
#include <utility>

namespace Fractal {

/// The value that `names` lists for a text; `otherwise` if the text is not listed.
template <typename T>
T chosen(QString const& text, T otherwise, std::initializer_list<std::pair<char const*, T>> names) {
    for (auto const& [name, meaning] : names) {
        if (text == QLatin1String(name))
            return meaning;
    }
    return otherwise;
}

} // namespace Fractal
