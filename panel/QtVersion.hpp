#pragma once

#include <QApplication>
#include <QPalette>

/// What takes other calls in Qt 5 and in Qt 6. Nothing else in the sources asks for the version.
namespace Panel::QtVersion {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/// Lets the platform say everything of a palette.
inline void forgetOwnColours(QPalette& palette) {
    palette.setResolveMask(0);
}

/// Has icons drawn sharply on screens with many pixels; Qt 6 always does. Before the application object is made.
inline void useSharpIcons() {}

#else

/// Lets the platform say everything of a palette.
inline void forgetOwnColours(QPalette& palette) {
    palette.resolve(0);
}

/// Has icons drawn sharply on screens with many pixels. Before the application object is made.
inline void useSharpIcons() {
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

#endif

} // namespace Panel::QtVersion
