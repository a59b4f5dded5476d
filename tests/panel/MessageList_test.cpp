#include "support/TaloTest.hpp"

#include <array>
#include <lattice/ActionNotifier.hpp>
#include <panel/window/MessageList.hpp>
#include <panel/window/StandardOutputTap.hpp>
#include <panel/window/WarningListener.hpp>
#include <QProcess>
#include <QSignalSpy>
#include <thread>
#include <unistd.h>

using testing::ElementsAre;
using Source = Panel::MessageList::Source;

using MessageListTest = TaloTest;
using WarningListenerTest = TaloTest;

namespace {

class StandardOutputTapTest : public TaloTest {
protected:
    void listenTo(Panel::StandardOutputTap& tap) {
        QObject::connect(&tap, &Panel::StandardOutputTap::linePrinted, &receiver,
                         [this](QString const& line) { lines << line; });
    }

    QObject receiver;
    QStringList lines;
};

} // namespace

TEST_F(MessageListTest, KeepsTheMessagesInOrderWithTimeAndSource) {
    Panel::MessageList list;
    list.add(Source::Output, QStringLiteral("printed"));
    list.add(Source::Warning, QStringLiteral("warned <b>of</b>"));
    EXPECT_EQ(list.texts(), (QStringList{QStringLiteral("printed"), QStringLiteral("warned <b>of</b>")}));
    EXPECT_EQ(list.texts(Source::Warning), QStringList{QStringLiteral("warned <b>of</b>")});
    auto const* const item = list.topLevelItem(1);
    EXPECT_TRUE(QTime::fromString(item->text(0), QStringLiteral("HH:mm:ss")).isValid());
    EXPECT_EQ(item->text(1), QStringLiteral("warning"));
}

TEST_F(MessageListTest, ForgetsTheOldestBeyondItsCapacity) {
    Panel::MessageList list;
    for (int number = 0; number <= Panel::MessageList::Capacity; ++number)
        list.add(Source::Output, QString::number(number));
    ASSERT_EQ(list.topLevelItemCount(), Panel::MessageList::Capacity);
    EXPECT_EQ(list.texts().constFirst(), QStringLiteral("1"));
    EXPECT_EQ(list.texts().constLast(), QString::number(Panel::MessageList::Capacity));
}

TEST_F(StandardOutputTapTest, ReportsLinesAndPassesThemOn) {
    {
        Panel::StandardOutputTap tap;
        listenTo(tap);
        std::puts("first");
        std::puts("zweite Ü");
        std::fflush(stdout);
        EXPECT_TRUE(waitUntil([&] { return lines.size() == 2; }));
        EXPECT_EQ(lines, (QStringList{QStringLiteral("first"), QString::fromUtf8("zweite Ü")}));
        std::fputs("unfinished", stdout);
    }
    EXPECT_TRUE(waitUntil([&] { return lines.size() == 3; }));
    EXPECT_EQ(lines.constLast(), QStringLiteral("unfinished"));
    std::puts("after");
    EXPECT_THAT(takeOutput(), ElementsAre("first", "zweite Ü", "unfinishedafter"));
    QCoreApplication::processEvents();
    EXPECT_EQ(lines.size(), 3);
}

TEST_F(StandardOutputTapTest, ALongTextPrintedAtOnceBlocksNobody) {
    std::string const line(999, 'x');
    Panel::StandardOutputTap tap;
    listenTo(tap);
    // Far more than a pipe can hold, without processing events.
    for (int count = 0; count < 2000; ++count)
        std::puts(line.c_str());
    std::fflush(stdout);
    EXPECT_TRUE(waitUntil([&] { return lines.size() == 2000; }));
    EXPECT_EQ(takeOutput().size(), 2000U);
}

TEST_F(StandardOutputTapTest, OfALongLineTheStartIsTold) {
    constexpr int longest = Panel::StandardOutputTap::LongestLine;
    Panel::StandardOutputTap tap;
    listenTo(tap);
    // One byte and then characters of two, so that one is cut.
    std::string line = "x";
    while (line.size() < (std::size_t{4} << 20))
        line += "\xC3\xA4";
    std::puts(line.c_str());
    std::puts(std::string(longest, 'y').c_str());
    std::puts("short");
    std::fflush(stdout);
    EXPECT_TRUE(waitUntil([&] { return lines.size() == 3; }));
    EXPECT_EQ(lines[0], 'x' + QString((longest - 1) / 2, QChar(0xE4)) + QChar(0x2026));
    EXPECT_EQ(lines[1], QString(longest, 'y'));
    EXPECT_EQ(lines[2], QStringLiteral("short"));
    // A reader of the real output gets all of it.
    EXPECT_EQ(takeOutput(), (std::vector<std::string>{line, std::string(longest, 'y'), "short"}));
}

TEST_F(StandardOutputTapTest, LinesThatNobodyHearsAreLeftOutAndCounted) {
    std::string const line(9999, 'x');
    constexpr int count = 2000;
    int missed = 0;
    Panel::StandardOutputTap tap;
    listenTo(tap);
    QObject::connect(&tap, &Panel::StandardOutputTap::linesMissed, &receiver, [&](int leftOut) { missed += leftOut; });
    for (int number = 0; number < count; ++number)
        std::puts(line.c_str());
    std::fflush(stdout);
    // Also if no line follows.
    EXPECT_TRUE(waitUntil([&] { return missed + lines.size() == count; })) << missed << " and " << lines.size();
    EXPECT_GT(missed, 0);
    std::puts("again");
    std::fflush(stdout);
    EXPECT_TRUE(waitUntil([&] { return lines.contains(QStringLiteral("again")); }));
    // What was in the pipe when the lines were received is emitted, too.
    EXPECT_LT(lines.count(QString::fromStdString(line)) * 10'000, Panel::StandardOutputTap::MostUnreceived + 200'000);
    takeOutput();
}

namespace {

/// Replaces standard output by a pipe whose reader does not read.
class UnreadPipe {
public:
    UnreadPipe() : old_(dup(STDOUT_FILENO)) {
        std::fflush(stdout);
        EXPECT_EQ(pipe(ends_.data()), 0);
        dup2(ends_[1], STDOUT_FILENO);
        close(ends_[1]);
    }
    ~UnreadPipe() {
        restore();
        close(ends_[0]);
    }
    /// Restores standard output. Returns how much the reader then reads.
    int restore() {
        std::fflush(stdout);
        if (old_ < 0)
            return 0;
        dup2(old_, STDOUT_FILENO);
        close(std::exchange(old_, -1));
        std::array<char, 4096> buffer{};
        ssize_t count = 0;
        int all = 0;
        while ((count = read(ends_[0], buffer.data(), buffer.size())) > 0)
            all += static_cast<int>(count);
        return all;
    }

private:
    int old_;
    std::array<int, 2> ends_{};
};

} // namespace

TEST_F(StandardOutputTapTest, AReaderThatStopsToReadBlocksNobody) {
    std::string const line(999, 'x');
    UnreadPipe output;
    {
        Panel::StandardOutputTap tap;
        listenTo(tap);
        // More than the pipe can hold and than is buffered for the reader.
        for (int count = 0; count < 2000; ++count)
            std::puts(line.c_str());
        std::fflush(stdout);
        EXPECT_TRUE(waitUntil([&] { return lines.size() == 2000; }));
    }
    int const received = output.restore();
    EXPECT_GE(received, 4096);
    EXPECT_LT(received, 2000 * 1000);
}

TEST_F(StandardOutputTapTest, HearsChildProcessesAndEndsBeforeThem) {
    QProcess child;
    {
        Panel::StandardOutputTap tap;
        listenTo(tap);
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        child.start(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("echo from a child; read line")});
        EXPECT_TRUE(waitUntil([&] { return lines == QStringList{QStringLiteral("from a child")}; }));
    }
    EXPECT_EQ(child.state(), QProcess::Running);
    child.closeWriteChannel();
    EXPECT_TRUE(child.waitForFinished());
    EXPECT_THAT(takeOutput(), ElementsAre("from a child"));
}

TEST_F(WarningListenerTest, PassesWarningsOnAlsoFromAnotherThread) {
    Panel::WarningListener listener;
    QStringList heard;
    QObject receiver;
    QObject::connect(&listener, &Panel::WarningListener::warned, &receiver,
                     [&](QString const& text) { heard << text; });
    testing::internal::CaptureStderr();
    Kolt::VActionNotifier::Warning("here");
    std::thread([] { Kolt::VActionNotifier::Warning("there"); }).join();
    EXPECT_TRUE(waitUntil([&] { return heard.size() == 2; }));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "here\nthere\n");
    EXPECT_EQ(heard, (QStringList{QStringLiteral("here"), QStringLiteral("there")}));
}
