#include "FractalNetwork.hpp"
#include "support/MemoryLimit.hpp"

#include <fractal/ui/RenderQueue.hpp>
#include <mutex>
#include <QImage>
#include <QTranslator>
#include <thread>

using Fractal::ExporterObject;
using Fractal::RenderQueue;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

/// Collects the reported texts, and counts the reports that came from another thread.
class Reports : public Kolt::ValueNotifier {
public:
    explicit Reports(Kolt::ParameterPtr const& status) {
        status->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    }
    ~Reports() override { stopNotifications(); }

    std::vector<std::string> texts() const {
        std::lock_guard const lock(mutex_);
        return texts_;
    }
    int fromElsewhere() const { return fromElsewhere_; }

private:
    void onValueChange(Kolt::ValuePtr const& value, Kolt::VContext const&, Kolt::ValueMap const*) override {
        std::lock_guard const lock(mutex_);
        texts_.push_back(value->Text());
        fromElsewhere_ += std::this_thread::get_id() == home_ ? 0 : 1;
    }

    mutable std::mutex mutex_;
    std::vector<std::string> texts_;
    std::atomic<int> fromElsewhere_{0};
    std::thread::id const home_ = std::this_thread::get_id();
};

/// Shows the status as a label does: the event loop delivers reports of another thread later.
class StatusDisplay : public QObject, public Kolt::ValueNotifier {
public:
    explicit StatusDisplay(Kolt::ParameterPtr const& status) {
        status->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    }
    ~StatusDisplay() override { stopNotifications(); }

    std::string shown;

private:
    void onValueChange(Kolt::ValuePtr const& value, Kolt::VContext const&, Kolt::ValueMap const*) override {
        QMetaObject::invokeMethod(
            this, [this, text = value->Text()] { shown = text; }, Qt::AutoConnection);
    }
};

class RenderQueueTest : public FractalNetworkTest {
protected:
    void SetUp() override {
        FractalNetworkTest::SetUp();
        reports = std::make_unique<Reports>(parameter("render.status"));
        QObject::connect(&renderQueue, &RenderQueue::reported, &renderQueue,
                         [this](QString const& text) { messages.push_back(text.toStdString()); });
        QObject::connect(&renderQueue, &RenderQueue::computed, &renderQueue,
                         [this](QImage const& image, Kolt::PoolPtr const&) { computed.push_back(image); });
        renderQueue.setNetwork(network.get());
    }
    void TearDown() override {
        renderQueue.setNetwork(nullptr);
        FractalNetworkTest::TearDown();
    }

    bool ends() const {
        return waitUntil([this] { return !renderQueue.isComputing(); });
    }
    /// Makes the picture so slow that it only ends if it is cancelled.
    void makeEndless() const {
        set("formula.kind", "Julia");
        set("formula.quality", "16");
        set("formula.iterations", "20000");
        set("formula.zoom", "-8");
        set("exporter.width", "4096");
    }
    std::string status() const { return valueOf("render.status", draft); }

    RenderQueue renderQueue;
    std::unique_ptr<Reports> reports;
    std::vector<std::string> messages;
    std::vector<QImage> computed;
};

} // namespace

TEST_F(RenderQueueTest, ComputesThePictureOfThePool) {
    EXPECT_FALSE(renderQueue.isComputing());
    renderQueue.start(draft);
    EXPECT_TRUE(renderQueue.isComputing());
    EXPECT_EQ(renderQueue.description(), QStringLiteral("Computing the picture of draft"));
    ASSERT_TRUE(ends());
    ASSERT_EQ(computed.size(), 1U);
    EXPECT_EQ(computed[0].size(), QSize(96, 72));
    EXPECT_THAT(messages, ElementsAre("Computed the picture of draft."));
    EXPECT_EQ(status(), "Computed the picture of draft.");
    EXPECT_THAT(valueOf("render.progress", draft), StartsWith("96 × 72 points, 50 steps at most, 1 × 1 samples: "));
    EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(RenderQueueTest, WhatItSaysIsTranslatedAsWholeSentences) {
    struct Marks : QTranslator {
        bool isEmpty() const override { return false; }
        QString translate(char const* context, char const* text, char const*, int) const override {
            return QByteArray(context).startsWith("Fractal") ? QLatin1Char('[') + QLatin1String(text) + QLatin1Char(']')
                                                             : QString();
        }
    } marks;
    QCoreApplication::installTranslator(&marks);
    renderQueue.start(draft);
    EXPECT_EQ(renderQueue.description(), QStringLiteral("[Computing the picture of draft]"));
    ASSERT_TRUE(ends());
    EXPECT_THAT(messages, ElementsAre("[Computed the picture of draft.]"));
    QCoreApplication::removeTranslator(&marks);
}

TEST_F(RenderQueueTest, TheWorkerItselfReportsItsStatus) {
    auto const age = parameter("render.status")->ownValue()->age();
    renderQueue.start(draft);
    ASSERT_TRUE(ends());
    EXPECT_THAT(reports->texts(), Contains(HasSubstr("0 %. <a href=\"cancel\">Cancel</a>")));
    EXPECT_THAT(reports->texts(), Contains(HasSubstr("Computing the picture of draft: 100 %")));
    EXPECT_EQ(reports->fromElsewhere(), static_cast<int>(reports->texts().size()) - 1);
    EXPECT_GT(parameter("render.status")->ownValue()->age(), age);
}

TEST_F(RenderQueueTest, TheFinalStatusIsShownLastHoweverFastTheWorkerIs) {
    StatusDisplay const display(parameter("render.status"));
    for (int round = 0; round < 10; ++round) {
        auto const first = folder.filePath(QStringLiteral("%1 first.png").arg(round));
        auto const second = folder.filePath(QStringLiteral("%1 second.png").arg(round));
        renderQueue.write(ExporterObject::Format::Png, first, draft);
        renderQueue.write(ExporterObject::Format::Png, second, draft);
        // Both are done before the event loop handles the signal of the first one.
        while (!QFile::exists(second))
            std::this_thread::yield();
        ASSERT_TRUE(ends());
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(display.shown, status());
        EXPECT_EQ(status(), "Wrote " + second.toStdString() + ".");
    }
}

TEST_F(RenderQueueTest, TheInformationIsNotifiedOnlyOnTheUserInterfaceThread) {
    Reports const progress(parameter("render.progress"));
    renderQueue.start(draft);
    ASSERT_TRUE(ends());
    EXPECT_EQ(progress.texts().size(), 1U);
    EXPECT_EQ(progress.fromElsewhere(), 0);
}

#ifdef TALO_LIMITS_MEMORY
TEST_F(RenderQueueTest, WithoutMemoryItSaysSoAndGoesOn) {
    // Starts the worker's thread before the memory is limited.
    renderQueue.start(draft);
    ASSERT_TRUE(ends());
    set("exporter.width", "4096");
    {
        // The image takes 50 MB and the counts of steps take as much; the thread has 64 MB in reserve.
        MemoryLimit const limit(20 << 20);
        renderQueue.start(draft);
        ASSERT_TRUE(ends());
    }
    EXPECT_EQ(computed.size(), 1U);
    EXPECT_THAT(warnings.texts, ElementsAre(HasSubstr("There is not enough memory")));
    EXPECT_THAT(status(), HasSubstr("There is not enough memory"));
    set("exporter.width", "96");
    renderQueue.start(draft);
    ASSERT_TRUE(ends());
    EXPECT_EQ(computed.size(), 2U);
}
#endif

TEST_F(RenderQueueTest, IsCancelled) {
    makeEndless();
    renderQueue.start(draft);
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    renderQueue.cancel();
    ASSERT_TRUE(ends());
    EXPECT_THAT(messages, ElementsAre("Cancelled: the picture of draft."));
    EXPECT_EQ(status(), "Cancelled: the picture of draft.");
    EXPECT_EQ(valueOf("render.progress", draft), "Nothing.");
    EXPECT_THAT(computed, IsEmpty());
    renderQueue.cancel();
}

TEST_F(RenderQueueTest, ANewStartTakesThePlaceOfTheOldOne) {
    makeEndless();
    renderQueue.start(draft);
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    set("formula.iterations", "10");
    set("formula.quality", "1");
    set("exporter.width", "32");
    renderQueue.start(draft);
    ASSERT_TRUE(ends());
    ASSERT_EQ(computed.size(), 1U);
    EXPECT_EQ(computed[0].width(), 32);
    EXPECT_THAT(messages, ElementsAre("Computed the picture of draft."));
}

TEST_F(RenderQueueTest, WritesTheChosenFilesOneAfterTheOther) {
    chooseFile("exporter.picture", path("a.png"));
    chooseFile("exporter.document", path("b.pdf"));
    EXPECT_TRUE(renderQueue.isComputing());
    ASSERT_TRUE(ends());
    EXPECT_EQ(QImage(path("a.png")).size(), QSize(96, 72));
    QFile document(path("b.pdf"));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_TRUE(document.readAll().startsWith("%PDF-"));
    EXPECT_THAT(messages, ElementsAre("Wrote " + path("a.png").toStdString() + ".",
                                      "Wrote " + path("b.pdf").toStdString() + "."));
    EXPECT_THAT(computed, IsEmpty());
}

TEST_F(RenderQueueTest, ACancelledPictureIsNotWritten) {
    makeEndless();
    write(path("a.png"), "precious");
    chooseFile("exporter.picture", path("a.png"));
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    renderQueue.cancel();
    ASSERT_TRUE(ends());
    QFile file(path("a.png"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "precious");
}

TEST_F(RenderQueueTest, AFileThatCannotBeWrittenIsWarnedOf) {
    chooseFile("exporter.picture", path("missing/a.png"));
    ASSERT_TRUE(ends());
    ASSERT_EQ(warnings.texts.size(), 1U);
    EXPECT_THAT(warnings.texts[0], StartsWith(path("missing/a.png").toStdString() + ": "));
    EXPECT_EQ(status(), warnings.texts[0]);
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(RenderQueueTest, ANameThatLooksLikeRichTextIsShownAsItIs) {
    auto const file = path("<b>a&b.png");
    chooseFile("exporter.picture", file);
    ASSERT_TRUE(ends());
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_THAT(messages, ElementsAre("Wrote " + file.toStdString() + "."));
    EXPECT_THAT(status(), HasSubstr("&lt;b&gt;a&amp;b.png"));
    EXPECT_THAT(reports->texts(), testing::Each(testing::Not(HasSubstr("<b>"))));
}

TEST_F(RenderQueueTest, ANameWithAPercentSignIsShownAsItIs) {
    chooseFile("exporter.picture", path("50%2.png"));
    ASSERT_TRUE(ends());
    EXPECT_THAT(reports->texts(), testing::Contains(testing::AllOf(HasSubstr("Computing"), HasSubstr("50%2.png"))));
    EXPECT_THAT(messages, ElementsAre("Wrote " + path("50%2.png").toStdString() + "."));
}

TEST_F(RenderQueueTest, TheNetworkMayGoWhileItIsComputed) {
    makeEndless();
    renderQueue.start(draft);
    chooseFile("exporter.picture", path("a.png"));
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    renderQueue.setNetwork(nullptr);
    EXPECT_FALSE(renderQueue.isComputing());
    network.reset();
    QCoreApplication::processEvents();
    EXPECT_THAT(messages, IsEmpty());
    EXPECT_FALSE(QFile::exists(path("a.png")));
    renderQueue.start(nullptr);
    renderQueue.cancel();
    EXPECT_FALSE(renderQueue.isComputing());
}

TEST_F(RenderQueueTest, AListenerMayBeDestroyedWhileItIsNotifiedOfTheStatus) {
    makeEndless();
    set("exporter.width", "64");
    set("formula.quality", "2");
    renderQueue.start(draft);
    for (int count = 0; count < 50; ++count)
        reports = std::make_unique<Reports>(parameter("render.status"));
    reports.reset();
    renderQueue.cancel();
    EXPECT_TRUE(ends());
}

TEST_F(RenderQueueTest, ANetworkWithoutAFormulaWritesNothing) {
    renderQueue.setNetwork(nullptr);
    reports.reset();
    network = load(R"({ "pools": ["draft"], "objects": [ { "name": "exporter", "kind": "exporter", "parameters": [
        { "name": "picture", "type": "string", "value": "" } ],
        "slots": [ { "name": "write picture", "parameter": "exporter.picture" } ] } ] })");
    draft = network->pools().front();
    renderQueue.setNetwork(network.get());
    renderQueue.start(draft);
    EXPECT_FALSE(renderQueue.isComputing());
    chooseFile("exporter.picture", path("a.png"));
    EXPECT_FALSE(renderQueue.isComputing());
    ASSERT_EQ(warnings.texts.size(), 1U);
    EXPECT_THAT(warnings.texts[0], HasSubstr("no formula"));
    renderQueue.setNetwork(nullptr);
}
