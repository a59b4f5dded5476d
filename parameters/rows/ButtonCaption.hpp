#pragma once

#include <QAbstractButton>

namespace Talo {

/// The caption of a button as it is shown: one ampersand marks a key and is not shown, two are one. User-interface
/// thread.
inline QString shownCaption(QAbstractButton const& button) {
    auto caption = button.text();
    for (int place = 0; (place = caption.indexOf(QLatin1Char('&'), place)) >= 0; ++place)
        caption.remove(place, 1);
    return caption;
}

} // namespace Talo
