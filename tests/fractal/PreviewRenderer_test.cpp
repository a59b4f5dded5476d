#include "FractalNetwork.hpp"

#include <fractal/engine/Picture.hpp>
#include <fractal/ui/PreviewRenderer.hpp>
#include <QElapsedTimer>
#include <thread>

using Fractal::PreviewRenderer;

namespace {

class PreviewRendererTest : public FractalNetworkTest {
protected:
    void SetUp() override {
        FractalNetworkTest::SetUp();
        QObject::connect(&maker, &PreviewRenderer::pictureChanged, &maker, [this] {
            if (!maker.image().isNull())
                shown.push_back(maker.isFine());
        });
        maker.setPool(draft);
        maker.setNetwork(network.get());
        maker.setSize({120, 90});
    }
    void TearDown() override {
        maker.setNetwork(nullptr);
        FractalNetworkTest::TearDown();
    }

    bool rests() const {
        return waitUntil([this] { return maker.isAtRest(); });
    }
    /// The fine picture of a pool, computed on this thread.
    QImage expected(Kolt::PoolPtr const& pool, QSize const& size = {120, 90}) const {
        std::atomic<bool> const cancelled{false};
        return Fractal::Picture::compute({settings(pool), size, true, 1}, Fractal::FractalRenderer(1), cancelled)
            .value()
            .image;
    }

    PreviewRenderer maker;
    // For each picture that was shown, whether it was fine.
    std::vector<bool> shown;
};

} // namespace

TEST_F(PreviewRendererTest, TheCoarsePictureComesFirstAndThenTheFineOne) {
    EXPECT_FALSE(maker.isAtRest());
    ASSERT_TRUE(rests());
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
    EXPECT_EQ(maker.image(), expected(draft));
}

TEST_F(PreviewRendererTest, TheFirstFinePictureDoesNotWaitForAPause) {
    ASSERT_TRUE(waitUntil([this] { return !shown.empty(); }));
    EXPECT_TRUE(maker.isRefining() || maker.isFine());
    ASSERT_TRUE(rests());
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
}

TEST_F(PreviewRendererTest, TheFirstFinePictureDoesNotWaitWhileTheWindowFindsItsSize) {
    QObject const untilTheEnd;
    QObject::connect(&maker, &PreviewRenderer::pictureChanged, &untilTheEnd, [this, isResized = false]() mutable {
        if (!std::exchange(isResized, true))
            maker.setSize({100, 75});
    });
    ASSERT_TRUE(waitUntil([this] { return shown.size() >= 2; }));
    EXPECT_TRUE(maker.isRefining() || maker.isFine());
    ASSERT_TRUE(rests());
    EXPECT_EQ(maker.image(), expected(draft, {100, 75}));
}

TEST_F(PreviewRendererTest, TheNextFinePictureWaitsForAPause) {
    ASSERT_TRUE(rests());
    shown.clear();
    QElapsedTimer sinceChange;
    sinceChange.start();
    set("formula.rotation", "5");
    ASSERT_TRUE(rests());
    EXPECT_GT(sinceChange.elapsed(), 100);
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
}

TEST_F(PreviewRendererTest, EveryParameterThatShapesThePictureIsFollowed) {
    ASSERT_TRUE(rests());
    std::pair<char const*, char const*> const changes[] = {{"formula.kind", "Burning ship"},
                                                           {"formula.iterations", "55"},
                                                           {"formula.quality", "2"},
                                                           {"formula.symmetry", "60"},
                                                           {"formula.zoom", "-1"},
                                                           {"formula.contrast", "1.5"},
                                                           {"formula.rotation", "40"},
                                                           {"formula.smooth", "false"},
                                                           {"colouring.inside", "1 0 0 1"},
                                                           {"colouring.outside", "0 1 0 1"},
                                                           {"colouring.palette", "Glacier"},
                                                           {"colouring.blend", "Steps"},
                                                           {"colouring.channels", "red=false"},
                                                           {"layers.overlays", "Legend"},
                                                           {"layers.contours", "level 5"},
                                                           {"titles.heading", "Heading"},
                                                           {"titles.author", "Author"},
                                                           {"titles.caption", "Caption"},
                                                           {"titles.date", "Date"},
                                                           {"titles.legend", "A longer text."}};
    for (auto const& [name, text] : changes) {
        auto const before = maker.image();
        // In this order, because the legend must be shown before its text changes.
        set(name, text);
        EXPECT_FALSE(maker.isAtRest()) << name;
        ASSERT_TRUE(rests()) << name;
        EXPECT_TRUE(maker.image() != before) << name;
    }
    EXPECT_EQ(maker.image(), expected(draft));
}

TEST_F(PreviewRendererTest, WhatDoesNotShapeThePictureIsNotFollowed) {
    ASSERT_TRUE(rests());
    set("exporter.width", "200");
    set("render.status", "Busy.");
    set("exporter.picture", "a.png");
    EXPECT_TRUE(maker.isAtRest());
}

TEST_F(PreviewRendererTest, ManyChangesInOneRoundAreOneRequest) {
    ASSERT_TRUE(rests());
    shown.clear();
    auto const changes = maker.changes();
    for (int iterations = 20; iterations < 50; ++iterations)
        set("formula.iterations", std::to_string(iterations).c_str());
    ASSERT_TRUE(rests());
    EXPECT_EQ(maker.changes(), changes + 1);
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
    EXPECT_EQ(maker.image(), expected(draft));
}

TEST_F(PreviewRendererTest, WhileChangesGoOnThePictureIsCoarseAndFollows) {
    ASSERT_TRUE(rests());
    shown.clear();
    for (int angle = 1; angle <= 5; ++angle) {
        set("formula.rotation", std::to_string(angle).c_str());
        auto const before = shown.size();
        ASSERT_TRUE(waitUntil([&] { return shown.size() > before; }));
        EXPECT_FALSE(shown.back());
    }
    ASSERT_TRUE(rests());
    EXPECT_EQ(maker.image(), expected(draft));
}

TEST_F(PreviewRendererTest, AnotherPoolHasAnotherPicture) {
    ASSERT_TRUE(rests());
    auto const before = maker.image();
    maker.setPool(final);
    EXPECT_FALSE(maker.isAtRest());
    ASSERT_TRUE(rests());
    EXPECT_NE(maker.image(), before);
    EXPECT_EQ(maker.image(), expected(final));
}

TEST_F(PreviewRendererTest, AnotherSizeHasAnotherPicture) {
    maker.setSize({60, 45});
    ASSERT_TRUE(rests());
    EXPECT_EQ(maker.image(), expected(draft, {60, 45}));
    maker.setSize({});
    EXPECT_TRUE(maker.isAtRest());
    EXPECT_TRUE(maker.image().isNull());
}

TEST_F(PreviewRendererTest, AnOutdatedFinePictureIsCancelled) {
    ASSERT_TRUE(rests());
    // The fine picture takes half a minute if it is not cancelled, the coarse one less than a second.
    maker.setSize({400, 300});
    set("formula.kind", "Burning ship");
    set("formula.iterations", "10000");
    set("formula.quality", "3");
    ASSERT_TRUE(waitUntil([&] { return maker.isRefining(); }));
    EXPECT_FALSE(maker.isFine());
    set("formula.iterations", "10");
    ASSERT_TRUE(waitUntil([&] { return !maker.isRefining(); }));
    set("formula.quality", "1");
    maker.setSize({40, 30});
    EXPECT_TRUE(rests());
    EXPECT_EQ(maker.image(), expected(draft, {40, 30}));
}

TEST_F(PreviewRendererTest, TheNetworkMayGoWhileItsPictureIsComputed) {
    maker.setNetwork(nullptr);
    EXPECT_TRUE(maker.isAtRest());
    EXPECT_FALSE(maker.computes());
    network.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(maker.image().isNull());
    network = load(json);
    draft = network->pools().front();
    maker.setPool(draft);
    maker.setNetwork(network.get());
    ASSERT_TRUE(rests());
    EXPECT_EQ(maker.image(), expected(draft));
}

TEST_F(PreviewRendererTest, ANetworkWithoutAFormulaHasNoPicture) {
    maker.setNetwork(nullptr);
    network = load(R"({ "pools": ["only"], "objects": [ { "name": "t", "kind": "titles", "parameters": [
        { "name": "heading", "type": "string", "value": "" } ] } ] })");
    maker.setNetwork(network.get());
    EXPECT_FALSE(maker.computes());
    EXPECT_TRUE(maker.isAtRest());
    maker.setNetwork(nullptr);
}

TEST_F(PreviewRendererTest, AFinishedPictureIsShownUntilTheNextChange) {
    ASSERT_TRUE(rests());
    QImage finished(10, 10, QImage::Format_RGB32);
    finished.fill(Qt::red);
    maker.showFinished(finished);
    EXPECT_TRUE(maker.isAtRest());
    EXPECT_EQ(maker.image(), finished);
    set("formula.rotation", "3");
    ASSERT_TRUE(rests());
    EXPECT_EQ(maker.image(), expected(draft));
}

TEST_F(PreviewRendererTest, ChangesMayComeFromAnotherThread) {
    ASSERT_TRUE(rests());
    auto const heading = parameter("titles.heading");
    auto const value = heading->ownValue();
    auto const changes = maker.changes();
    std::thread elsewhere(
        [&] { heading->notifyValueChange(value, nullptr, std::string(), nullptr, nullptr, nullptr); });
    elsewhere.join();
    EXPECT_TRUE(waitUntil([&] { return maker.changes() > changes; }));
    EXPECT_TRUE(rests());
}
