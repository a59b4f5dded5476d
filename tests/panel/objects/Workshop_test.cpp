#include "FractalNetwork.hpp"

#include <mutex>
#include <panel/objects/Workshop.hpp>
#include <QImage>
#include <thread>

using Panel::ExporterObject;
using Panel::Workshop;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

/// Collects the states that are reported, and on how many of the reports came from another thread.
class Reports : public Kolt::ValueNotifier {
public:
    explicit Reports(Kolt::ParameterPtr const& status) {
        status->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    }
    ~Reports() override { leaveDelivery(); }

    std::vector<std::string> texts() const {
        std::lock_guard const lock(mutex_);
        return texts_;
    }
    int fromElsewhere() const { return fromElsewhere_; }

private:
    void onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const& value, Kolt::VContext const&,
                       Kolt::ValueMap const*) override {
        std::lock_guard const lock(mutex_);
        texts_.push_back(value->Text());
        fromElsewhere_ += std::this_thread::get_id() == home_ ? 0 : 1;
    }

    mutable std::mutex mutex_;
    std::vector<std::string> texts_;
    std::atomic<int> fromElsewhere_{0};
    std::thread::id const home_ = std::this_thread::get_id();
};

/// Shows the status as a label does: what another thread tells is shown when its turn comes.
class Display : public QObject, public Kolt::ValueNotifier {
public:
    explicit Display(Kolt::ParameterPtr const& status) {
        status->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    }
    ~Display() override { leaveDelivery(); }

    std::string shown;

private:
    void onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const& value, Kolt::VContext const&,
                       Kolt::ValueMap const*) override {
        QMetaObject::invokeMethod(
            this, [this, text = value->Text()] { shown = text; }, Qt::AutoConnection);
    }
};

class WorkshopTest : public FractalNetworkTest {
protected:
    void SetUp() override {
        FractalNetworkTest::SetUp();
        reports = std::make_unique<Reports>(parameter("render.status"));
        QObject::connect(&workshop, &Workshop::told, &workshop,
                         [this](QString const& text) { told.push_back(text.toStdString()); });
        QObject::connect(&workshop, &Workshop::computed, &workshop,
                         [this](QImage const& image, Panel::PoolPtr const&) { computed.push_back(image); });
        workshop.setNetwork(network.get());
    }
    void TearDown() override {
        workshop.setNetwork(nullptr);
        FractalNetworkTest::TearDown();
    }

    bool ends() const {
        return waitUntil([this] { return !workshop.isComputing(); });
    }
    /// Makes the picture so slow that it ends only when it is cancelled.
    void makeEndless() const {
        set("formula.kind", "Julia");
        set("formula.quality", "16");
        set("formula.iterations", "20000");
        set("formula.zoom", "-8");
        set("exporter.width", "4096");
    }
    std::string status() const { return valueOf("render.status", draft); }

    Workshop workshop;
    std::unique_ptr<Reports> reports;
    std::vector<std::string> told;
    std::vector<QImage> computed;
};

} // namespace

TEST_F(WorkshopTest, ComputesThePictureOfThePool) {
    EXPECT_FALSE(workshop.isComputing());
    workshop.start(draft);
    EXPECT_TRUE(workshop.isComputing());
    EXPECT_EQ(workshop.description(), QStringLiteral("Computing the picture of draft"));
    ASSERT_TRUE(ends());
    ASSERT_EQ(computed.size(), 1U);
    EXPECT_EQ(computed[0].size(), QSize(96, 72));
    EXPECT_THAT(told, ElementsAre("Computed the picture of draft."));
    EXPECT_EQ(status(), "Computed the picture of draft.");
    EXPECT_THAT(valueOf("render.progress", draft), StartsWith("96 × 72 points, 50 steps at most, 1 × 1 samples: "));
    EXPECT_THAT(warnings.texts, IsEmpty());
}

TEST_F(WorkshopTest, TheWorkerItselfReportsItsStatus) {
    auto const age = parameter("render.status")->ownValue()->age();
    workshop.start(draft);
    ASSERT_TRUE(ends());
    EXPECT_THAT(reports->texts(), Contains(HasSubstr("0 %. <a href=\"cancel\">Cancel</a>")));
    EXPECT_THAT(reports->texts(), Contains(HasSubstr("Computing the picture of draft: 100 %")));
    EXPECT_EQ(reports->fromElsewhere(), static_cast<int>(reports->texts().size()) - 1);
    EXPECT_GT(parameter("render.status")->ownValue()->age(), age);
}

TEST_F(WorkshopTest, WhatIsToldLastIsShownLastHoweverFastTheWorkerIs) {
    Display const display(parameter("render.status"));
    for (int round = 0; round < 10; ++round) {
        auto const first = folder.filePath(QStringLiteral("%1 first.png").arg(round));
        auto const second = folder.filePath(QStringLiteral("%1 second.png").arg(round));
        workshop.write(ExporterObject::Format::Png, first, draft);
        workshop.write(ExporterObject::Format::Png, second, draft);
        // Both are done before anybody hears of the first one.
        while (!QFile::exists(second))
            std::this_thread::yield();
        ASSERT_TRUE(ends());
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(display.shown, status());
        EXPECT_EQ(status(), "Wrote " + second.toStdString() + ".");
    }
}

TEST_F(WorkshopTest, TheInformationIsToldOnTheUserInterfaceThreadAlone) {
    Reports const progress(parameter("render.progress"));
    workshop.start(draft);
    ASSERT_TRUE(ends());
    EXPECT_EQ(progress.texts().size(), 1U);
    EXPECT_EQ(progress.fromElsewhere(), 0);
}

TEST_F(WorkshopTest, IsCancelled) {
    makeEndless();
    workshop.start(draft);
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    workshop.cancel();
    ASSERT_TRUE(ends());
    EXPECT_THAT(told, ElementsAre("Cancelled: the picture of draft."));
    EXPECT_EQ(status(), "Cancelled: the picture of draft.");
    EXPECT_EQ(valueOf("render.progress", draft), "Nothing.");
    EXPECT_THAT(computed, IsEmpty());
    workshop.cancel();
}

TEST_F(WorkshopTest, ANewStartTakesThePlaceOfTheOldOne) {
    makeEndless();
    workshop.start(draft);
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    set("formula.iterations", "10");
    set("formula.quality", "1");
    set("exporter.width", "32");
    workshop.start(draft);
    ASSERT_TRUE(ends());
    ASSERT_EQ(computed.size(), 1U);
    EXPECT_EQ(computed[0].width(), 32);
    EXPECT_THAT(told, ElementsAre("Computed the picture of draft."));
}

TEST_F(WorkshopTest, WritesTheChosenFilesOneAfterTheOther) {
    chooseFile("exporter.picture", path("a.png"));
    chooseFile("exporter.document", path("b.pdf"));
    EXPECT_TRUE(workshop.isComputing());
    ASSERT_TRUE(ends());
    EXPECT_EQ(QImage(path("a.png")).size(), QSize(96, 72));
    QFile document(path("b.pdf"));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly));
    EXPECT_TRUE(document.readAll().startsWith("%PDF-"));
    EXPECT_THAT(
        told, ElementsAre("Wrote " + path("a.png").toStdString() + ".", "Wrote " + path("b.pdf").toStdString() + "."));
    EXPECT_THAT(computed, IsEmpty());
}

TEST_F(WorkshopTest, ACancelledPictureIsNotWritten) {
    makeEndless();
    write(path("a.png"), "precious");
    chooseFile("exporter.picture", path("a.png"));
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    workshop.cancel();
    ASSERT_TRUE(ends());
    QFile file(path("a.png"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "precious");
}

TEST_F(WorkshopTest, AFileThatCannotBeWrittenIsWarnedOf) {
    chooseFile("exporter.picture", path("missing/a.png"));
    ASSERT_TRUE(ends());
    ASSERT_EQ(warnings.texts.size(), 1U);
    EXPECT_THAT(warnings.texts[0], StartsWith(path("missing/a.png").toStdString() + ": "));
    EXPECT_EQ(status(), warnings.texts[0]);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(WorkshopTest, ANameThatLooksLikeRichTextIsShownAsItIs) {
    auto const file = path("<b>a&b.png");
    chooseFile("exporter.picture", file);
    ASSERT_TRUE(ends());
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_THAT(told, ElementsAre("Wrote " + file.toStdString() + "."));
    EXPECT_THAT(status(), HasSubstr("&lt;b&gt;a&amp;b.png"));
    EXPECT_THAT(reports->texts(), testing::Each(testing::Not(HasSubstr("<b>"))));
}

TEST_F(WorkshopTest, TheNetworkMayGoWhileItIsComputed) {
    makeEndless();
    workshop.start(draft);
    chooseFile("exporter.picture", path("a.png"));
    ASSERT_TRUE(waitUntil([&] { return reports->fromElsewhere() > 0; }));
    workshop.setNetwork(nullptr);
    EXPECT_FALSE(workshop.isComputing());
    network.reset();
    QCoreApplication::processEvents();
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(QFile::exists(path("a.png")));
    workshop.start(nullptr);
    workshop.cancel();
    EXPECT_FALSE(workshop.isComputing());
}

TEST_F(WorkshopTest, AWatcherMayGoWhileItIsToldOfTheStatus) {
    makeEndless();
    set("exporter.width", "64");
    set("formula.quality", "2");
    workshop.start(draft);
    for (int count = 0; count < 50; ++count)
        reports = std::make_unique<Reports>(parameter("render.status"));
    reports.reset();
    workshop.cancel();
    EXPECT_TRUE(ends());
}

TEST_F(WorkshopTest, ANetworkWithoutAFormulaWritesNothing) {
    workshop.setNetwork(nullptr);
    reports.reset();
    network = load(R"({ "pools": ["draft"], "objects": [ { "name": "exporter", "kind": "exporter", "parameters": [
        { "name": "picture", "type": "string", "value": "" } ],
        "slots": [ { "name": "write picture", "parameter": "exporter.picture" } ] } ] })");
    draft = network->pools().front();
    workshop.setNetwork(network.get());
    workshop.start(draft);
    EXPECT_FALSE(workshop.isComputing());
    chooseFile("exporter.picture", path("a.png"));
    EXPECT_FALSE(workshop.isComputing());
    ASSERT_EQ(warnings.texts.size(), 1U);
    EXPECT_THAT(warnings.texts[0], HasSubstr("no formula"));
    workshop.setNetwork(nullptr);
}
