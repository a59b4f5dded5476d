#include "support/TaloTest.hpp"

#include <panel/ProgramIcon.hpp>
#include <QImage>

class ProgramIcon : public TaloTest {};

TEST_F(ProgramIcon, HasThePicturesOfTheDesktop) {
    auto const icon = Panel::programIcon();
    for (int const size : {16, 24, 32, 48, 64, 128, 256}) {
        auto const format = QImage::Format_ARGB32_Premultiplied;
        auto const file = QImage(QStringLiteral(TALO_ICONS "/%1.png").arg(size)).convertToFormat(format);
        ASSERT_FALSE(file.isNull()) << size;
        EXPECT_EQ(icon.pixmap(size, size).toImage().convertToFormat(format), file) << size;
    }
}
