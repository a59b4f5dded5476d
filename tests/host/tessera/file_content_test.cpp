#include "support/TaloTest.hpp"

#include <fcntl.h>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <tessera/FileContent.hpp>
#include <unistd.h>

namespace {

using Tessera::FileContent;
using Problem = FileContent::Problem;

class FileContents : public TaloTest {
protected:
    std::string path(char const* name) const { return folder_.filePath(QString::fromUtf8(name)).toStdString(); }
    std::string written(std::string const& bytes) const {
        auto const file = path("file");
        int const descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        EXPECT_EQ(write(descriptor, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        close(descriptor);
        return file;
    }
    static void expectRefused(std::string const& file, Problem problem, std::string const& reason) {
        QElapsedTimer clock;
        clock.start();
        auto const read = FileContent::read(file, 100);
        EXPECT_FALSE(read);
        EXPECT_EQ(read.problem(), problem) << file;
        EXPECT_EQ(read.reason(), reason) << file;
        EXPECT_EQ(read.bytes(), "");
        auto const looked = FileContent::check(file, 100);
        EXPECT_EQ(looked.problem(), problem) << file;
        EXPECT_LT(clock.elapsed(), 1000);
    }

    QTemporaryDir const folder_;
};

TEST_F(FileContents, AreTheBytesOfARegularFile) {
    std::string const bytes("a\0\xff\n", 4);
    auto const read = FileContent::read(written(bytes), 4);
    EXPECT_TRUE(read);
    EXPECT_EQ(read.bytes(), bytes);
    EXPECT_EQ(read.reason(), "");
    auto const looked = FileContent::check(path("file"), 4);
    EXPECT_TRUE(looked);
    EXPECT_EQ(looked.bytes(), "");
}

TEST_F(FileContents, OfALongFileAreReadWhole) {
    std::string const bytes(200'000, 'x');
    EXPECT_EQ(FileContent::read(written(bytes), 1 << 20).bytes(), bytes);
}

TEST_F(FileContents, OfAFileBeyondTheLimitAreNotRead) {
    expectRefused(written(std::string(101, 'x')), Problem::TooLarge, "it is larger than 100 bytes");
    EXPECT_EQ(FileContent::read(written(std::string((1 << 20) + 1, 'x')), 1 << 20).reason(), "it is larger than 1 MB");
}

TEST_F(FileContents, OfAFileThatClaimsToBeEmptyHaveTheLimitToo) {
    EXPECT_EQ(FileContent::read("/proc/self/status", 10).problem(), Problem::TooLarge);
}

TEST_F(FileContents, OfWhatIsNoFileAreNeverWaitedFor) {
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    expectRefused(path("pipe"), Problem::NotRegular, "it is no regular file");
    expectRefused("/dev/zero", Problem::NotRegular, "it is no regular file");
    expectRefused(folder_.path().toStdString(), Problem::Folder, "it is a folder");
    ASSERT_EQ(symlink(path("pipe").c_str(), path("link").c_str()), 0);
    expectRefused(path("link"), Problem::NotRegular, "it is no regular file");
}

TEST_F(FileContents, OfAMissingFileCannotBeHad) {
    expectRefused(path("missing"), Problem::NotOpened, "No such file or directory");
    expectRefused("", Problem::NotOpened, "No such file or directory");
}

} // namespace
