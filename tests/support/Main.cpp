#include "support/FreshHome.hpp"
#include "support/RunTests.hpp"
#include <gmock/gmock.h>
#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QStyleFactory>

namespace {

// Makes drawing independent of the machine, so that grabs of widgets can be compared bit by bit.
void fixLook() {
    auto* const style = QStyleFactory::create(QStringLiteral("Fusion"));
    QApplication::setStyle(style);
    QApplication::setPalette(style->standardPalette());

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    QApplication::setFont(font);

    QApplication::setCursorFlashTime(0);
    for (auto const effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
                              Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox}) {
        QApplication::setEffectEnabled(effect, false);
    }
    // Tests close the last window many times; the application must not quit.
    QApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    FreshHome const home;
    // The default for a test that is started by hand.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication::setDesktopSettingsAware(false);
    QApplication const application(argc, argv);
    fixLook();
    return runTests();
}
