#pragma once

#include <QString>

namespace Talo {

/// A caption as it is shown: one ampersand marks a key and is not shown, two are one. Any thread.
inline QString shownCaption(QString caption) {
    for (int place = 0; (place = caption.indexOf(QLatin1Char('&'), place)) >= 0; ++place)
        caption.remove(place, 1);
    return caption;
}

} // namespace Talo
