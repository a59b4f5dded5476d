// The corpora of the fuzzers, read as the fuzzers read them.

#include "GimpPaletteCheck.hpp"
#include "NetworkFileCheck.hpp"
#include "PastedValueCheck.hpp"
#include "support/TaloTest.hpp"

#include <QDirIterator>

namespace {

/// Holds each file of a corpus against a check, which gives what is wrong with it.
template <typename Check>
void holdAgainst(char const* corpus, Check&& problemOf) {
    int count = 0;
    QDirIterator files(QStringLiteral(TALO_FUZZ_CORPUS "/") + corpus, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(problemOf(file.readAll()), "") << file.fileName().toStdString();
        ++count;
    }
    EXPECT_GT(count, 5) << corpus;
}

class FuzzCorpora : public TaloTest {};

} // namespace

TEST_F(FuzzCorpora, NetworkFilesSurviveWritingAndReading) {
    holdAgainst("NetworkFile", problemOfNetworkFile);
}

TEST_F(FuzzCorpora, PastedValuesSurviveCopyingAndPasting) {
    holdAgainst("PastedValue", problemOfPastedValue);
}

TEST_F(FuzzCorpora, PalettesAreReadOrRefusedWithALine) {
    holdAgainst("GimpPalette", problemOfPalette);
}
