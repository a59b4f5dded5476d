#include "qVinputs/TextEditorTest.hpp"

#include <map>
#include <QDataStream>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPushButton>
#include <QRawFont>
#include <QScreen>
#include <QTextDocument>
#include <QTextEdit>

namespace {

using namespace Kolt;

QByteArray nameTable(QString const& family) {
    std::map<quint16, QString> const names{{1, family}, {2, QStringLiteral("Regular")}, {4, family}};
    QByteArray table;
    QByteArray texts;
    QDataStream stream(&table, QIODevice::WriteOnly);
    stream << quint16(0) << quint16(names.size()) << quint16(6 + 12 * names.size());
    for (auto const& [number, name] : names) {
        stream << quint16(3) << quint16(1) << quint16(0x409) << number << quint16(2 * name.size())
               << quint16(texts.size());
        for (auto const character : name)
            texts.append(char(character.row())).append(char(character.cell()));
    }
    return table + texts;
}

/// A font file with the shapes of the test's font under another family name.
QByteArray fontFile(QString const& family) {
    auto const shapes = QRawFont::fromFont(QApplication::font());
    std::map<QByteArray, QByteArray> tables{{"name", nameTable(family)}};
    for (auto const* const tag : {"OS/2", "cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "post"})
        tables[tag] = shapes.fontTable(tag);
    QByteArray header;
    QByteArray contents;
    QDataStream stream(&header, QIODevice::WriteOnly);
    stream << quint32(0x00010000) << quint16(tables.size()) << quint16(0) << quint16(0) << quint16(0);
    for (auto& [tag, table] : tables) {
        stream.writeRawData(tag.constData(), 4);
        stream << quint32(0) << quint32(12 + 16 * tables.size() + std::size_t(contents.size()))
               << quint32(table.size());
        contents += table + QByteArray(3 - (table.size() + 3) % 4, '\0');
    }
    return header + contents;
}

class TextFonts : public TextEditorTest {
protected:
    static int resolution() { return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchY()); }
    // A family is matched exactly if the default size, 12 points, is an integer number of pixels.
    static bool areExact() {
        EXPECT_TRUE(resolution() == 96 || resolution() == 100) << resolution();
        return resolution() == 96;
    }
    static void expectSmallBold(QFont const& font, char const* family) {
        EXPECT_EQ(font.family(), QLatin1String(family));
        EXPECT_EQ(font.pointSize(), 8);
        EXPECT_EQ(font.weight(), QFont::Bold);
        EXPECT_FALSE(font.italic());
    }
};

// Must run before any other use of the family: Qt remembers that it did not find one.
TEST_F(TextFonts, AreSmallAndBoldOnAButtonWhereArialIsExact) {
    auto const arial = QFontDatabase::addApplicationFontFromData(fontFile(QStringLiteral("Arial")));
    ASSERT_NE(arial, -1);
    ASSERT_EQ(QFontDatabase::applicationFontFamilies(arial), QStringList(QStringLiteral("Arial")));
    auto const parameter = makeText("");
    auto* const button = create<QPushButton>("OpenFileCreator", parameter);
    if (areExact())
        expectSmallBold(button->font(), "Arial");
    else
        EXPECT_EQ(button->font(), QPushButton(parent).font());
    delete parent;
    EXPECT_TRUE(QFontDatabase::removeApplicationFont(arial));
}

TEST_F(TextFonts, AreShownAtTheResolutionAskedFor) {
    // The offscreen platform's default is 100.
    auto const asked = qEnvironmentVariableIsSet("QT_FONT_DPI") ? qEnvironmentVariableIntValue("QT_FONT_DPI") : 100;
    EXPECT_EQ(resolution(), asked);
    EXPECT_EQ(QFont(QStringLiteral("DejaVu Sans Mono")).exactMatch(), areExact());
}

TEST_F(TextFonts, AreSmallAndBoldInALineWhereTheFamilyIsExact) {
    auto const parameter = makeText("text");
    auto* const editor = create<QLineEdit>("simplestring", parameter);
    if (areExact())
        expectSmallBold(editor->font(), "DejaVu Sans Mono");
    else
        EXPECT_EQ(editor->font(), parent->font());
}

TEST_F(TextFonts, AreSmallAndBoldInTheDocumentAloneWhereTheFamilyIsExact) {
    auto const parameter = makeText("text");
    auto* const editor = create<QTextEdit>("string", parameter);
    EXPECT_EQ(editor->font().family(), parent->font().family());
    EXPECT_EQ(editor->font().pixelSize(), parent->font().pixelSize());
    EXPECT_FALSE(editor->font().bold());
    if (areExact())
        expectSmallBold(editor->document()->defaultFont(), "DejaVu Sans Mono");
    else
        EXPECT_EQ(editor->document()->defaultFont().family(), QTextEdit().document()->defaultFont().family());
}

TEST_F(TextFonts, AreThoseOfThePanelOnAButtonWithoutArial) {
    bool const installed = QFontDatabase().families().contains(QStringLiteral("Arial"));
    auto const parameter = makeText("");
    auto* const button = create<QPushButton>("OpenFileCreator", parameter);
    if (installed && areExact())
        expectSmallBold(button->font(), "Arial");
    else
        EXPECT_EQ(button->font(), QPushButton(parent).font());
}

} // namespace
