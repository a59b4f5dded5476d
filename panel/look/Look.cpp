#include <panel/look/Look.hpp>

#include <cmath>
#include <memory>
#include <panel/look/PanelStyle.hpp>
#include <panel/QtVersion.hpp>
#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>
#include <utility>

namespace Panel {

namespace {

QPalette darkPalette() {
    QColor const text(230, 231, 233);
    QColor const muted(125, 127, 131);
    std::pair<QPalette::ColorRole, QColor> const colours[] = {{QPalette::Window, QColor(52, 55, 59)},
                                                              {QPalette::WindowText, text},
                                                              {QPalette::Base, QColor(32, 34, 37)},
                                                              {QPalette::AlternateBase, QColor(38, 40, 44)},
                                                              {QPalette::Text, text},
                                                              {QPalette::BrightText, Qt::white},
                                                              {QPalette::Button, QColor(68, 72, 77)},
                                                              {QPalette::ButtonText, text},
                                                              {QPalette::Light, QColor(92, 96, 101)},
                                                              {QPalette::Midlight, QColor(74, 78, 83)},
                                                              {QPalette::Mid, QColor(62, 65, 70)},
                                                              {QPalette::Dark, QColor(20, 21, 23)},
                                                              {QPalette::Shadow, Qt::black},
                                                              {QPalette::ToolTipBase, QColor(58, 61, 65)},
                                                              {QPalette::ToolTipText, text},
                                                              {QPalette::Highlight, QColor(52, 116, 190)},
                                                              {QPalette::HighlightedText, Qt::white},
                                                              {QPalette::Link, QColor(110, 176, 246)},
                                                              {QPalette::LinkVisited, QColor(190, 150, 240)}};

    QPalette palette;
    for (auto const& [role, colour] : colours)
        palette.setColor(role, colour);
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, muted);
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(80, 84, 89));
    return palette;
}

// What is chosen for the application, of which there is one.
struct Chosen {
    Theme theme = Theme::System;
    int textSize = 0;
    // That of the texts in their usual size.
    QFont usualFont;
};

Chosen& chosen() {
    static Chosen all{Theme::System, 0, QApplication::font()};
    return all;
}

// A step of the text size; eight of them double it.
constexpr double textStep = 1.09;

QPalette lightPalette() {
    // The style's own colours do not depend on the desktop.
    return std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("Fusion")))->standardPalette();
}

} // namespace

QPalette themePalette(Theme theme) {
    switch (theme) {
    case Theme::Light:
        return lightPalette();
    case Theme::Dark:
        return darkPalette();
    case Theme::System:
        break;
    }
    return QApplication::palette();
}

void applyLook(Theme theme) {
    // The application owns its style.
    auto style = std::make_unique<PanelStyle>();
    QApplication::setStyle(style.release());
    if (theme != Theme::System)
        setTheme(theme);
    auto const family = QStringLiteral("DejaVu Sans");
    if (QApplication::platformName() == QLatin1String("offscreen") && QFontDatabase().families().contains(family)) {
        QFont font(family, 9);
        font.setHintingPreference(QFont::PreferFullHinting);
        QApplication::setFont(font);
    }
    chosen().usualFont = QApplication::font();
}

void setTheme(Theme theme) {
    chosen().theme = theme;
    auto palette = theme == Theme::System ? QPalette() : themePalette(theme);
    // Of one that says nothing itself the platform says all.
    if (theme == Theme::System)
        QtVersion::forgetOwnColours(palette);
    QApplication::setPalette(palette);
    QToolTip::setPalette(QApplication::palette());
}

Theme theme() {
    return chosen().theme;
}

void setTextSize(int steps) {
    auto& all = chosen();
    all.textSize = qBound(SmallestText, steps, LargestText);
    auto font = all.usualFont;
    double const factor = std::pow(textStep, all.textSize);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(qRound(font.pixelSize() * factor));
    QApplication::setFont(font);
}

int textSize() {
    return chosen().textSize;
}

} // namespace Panel
