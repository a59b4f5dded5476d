#include "support/TaloTest.hpp"

#include <fractal/engine/GimpPalette.hpp>
#include <QTemporaryDir>
#include <sys/stat.h>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class GimpPaletteTest : public TaloTest {
protected:
    static std::vector<QRgb> parse(QByteArray const& text) {
        QString error;
        auto const colours = Fractal::GimpPalette::parse(text, error);
        EXPECT_EQ(error, QString());
        return colours;
    }
    static std::string refusal(QByteArray const& text) {
        QString error;
        EXPECT_TRUE(Fractal::GimpPalette::parse(text, error).empty());
        return error.toStdString();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(GimpPaletteTest, ReadsTheColoursInTheirOrder) {
    EXPECT_THAT(parse("GIMP Palette\nName: Sunset\nColumns: 4\n# a comment\n\n255   0 12\tRed\n  0 128 255\n"),
                ElementsAre(qRgb(255, 0, 12), qRgb(0, 128, 255)));
    EXPECT_THAT(parse("GIMP Palette\r\n#\r\n1 2 3 a long name\r\n"), ElementsAre(qRgb(1, 2, 3)));
    EXPECT_THAT(parse("GIMP Palette\n7 8 9"), ElementsAre(qRgb(7, 8, 9)));
}

TEST_F(GimpPaletteTest, SaysWhatIsWrongInWhichLine) {
    EXPECT_THAT(refusal("Palette\n1 2 3\n"),
                AllOf(StartsWith("line 1:"), HasSubstr("GIMP Palette"), HasSubstr("\"Palette\"")));
    EXPECT_THAT(refusal(""), AllOf(StartsWith("line 1:"), HasSubstr("an empty line")));
    EXPECT_THAT(refusal("GIMP Palette\n1 2 3\n1 2\n"), AllOf(StartsWith("line 3:"), HasSubstr("found \"1 2\"")));
    EXPECT_THAT(refusal("GIMP Palette\n1 2 256\n"), AllOf(StartsWith("line 2:"), HasSubstr("0 to 255")));
    EXPECT_THAT(refusal("GIMP Palette\n-1 2 3\n"), StartsWith("line 2:"));
    EXPECT_THAT(refusal("GIMP Palette\n1 2 3name\n"), StartsWith("line 2:"));
    EXPECT_THAT(refusal("GIMP Palette\nname\n"), StartsWith("line 2:"));
    EXPECT_THAT(refusal("GIMP Palette\n# nothing\n"), HasSubstr("at least one colour"));
    EXPECT_THAT(refusal(QByteArray("GIMP Palette\n") + QByteArray("1 2 3\n").repeated(4097)),
                AllOf(StartsWith("line 4098:"), HasSubstr("4096")));
}

TEST_F(GimpPaletteTest, NamesTheFileThatItCannotRead) {
    auto const name = folder.filePath(QStringLiteral("colours.gpl"));
    QString error;
    EXPECT_TRUE(Fractal::GimpPalette::read(name, error).empty());
    EXPECT_THAT(error.toStdString(), StartsWith(name.toStdString() + ":0: "));

    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("GIMP Palette\nrot\n");
    file.close();
    EXPECT_TRUE(Fractal::GimpPalette::read(name, error).empty());
    EXPECT_THAT(error.toStdString(), StartsWith(name.toStdString() + ":2: "));

    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("GIMP Palette\n9 8 7\n");
    file.close();
    error.clear();
    EXPECT_THAT(Fractal::GimpPalette::read(name, error), ElementsAre(qRgb(9, 8, 7)));
    EXPECT_EQ(error, QString());

    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(2 << 20, '\n'));
    file.close();
    EXPECT_TRUE(Fractal::GimpPalette::read(name, error).empty());
    EXPECT_THAT(error.toStdString(), HasSubstr("one megabyte"));
    EXPECT_TRUE(Fractal::GimpPalette::read(folder.path(), error).empty());
    EXPECT_THAT(error.toStdString(), StartsWith(folder.path().toStdString() + ":0: "));
}

TEST_F(GimpPaletteTest, DoesNotWaitForAPipe) {
    auto const name = folder.filePath(QStringLiteral("pipe.gpl"));
    ASSERT_EQ(mkfifo(name.toLocal8Bit().constData(), 0600), 0);
    QString error;
    EXPECT_TRUE(Fractal::GimpPalette::read(name, error).empty());
    EXPECT_THAT(error.toStdString(), HasSubstr("expected a file, found something else"));
}
