#include "Preview_jobs.hpp"

#include <algorithm>
#include <fractal/objects/ObjectFactory.hpp>
#include <limits>
#include <memory>
#include <panel/window/MainWindow.hpp>
#include <panel/window/Plugins.hpp>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QTimer>

namespace {

double millisecondsOf(QElapsedTimer const& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

std::unique_ptr<Talo::Network> fractalNetwork() {
    auto loaded = Talo::Network::load(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), Fractal::makeObject);
    if (!loaded.network)
        qFatal("%s", qPrintable(loaded.error));
    return std::move(loaded.network);
}

void awaitPicture(Panel::MainWindow& window) {
    while (!window.fractalController().isAtRest())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

/// From the moment in which the window is to be shown until the preview is fine.
Measurement firstFinePicture() {
    return [] {
        Panel::Plugins plugins;
        Panel::MainWindow window(plugins);
        window.resize(1150, 900);
        window.showNetwork(fractalNetwork());
        QElapsedTimer timer;
        timer.start();
        window.show();
        awaitPicture(window);
        return millisecondsOf(timer);
    };
}

/// The window with the picture, and a slider that shapes it.
struct Dragging {
    Panel::Plugins plugins;
    Panel::MainWindow window{plugins};
    QSlider* slider = nullptr;

    Dragging() {
        window.resize(1150, 900);
        window.showNetwork(fractalNetwork());
        window.show();
        awaitPicture(window);
        slider = window.currentView()->row(QStringLiteral("zoom"))->findChild<QSlider*>();
        if (!slider)
            qFatal("There is no slider.");
    }
};

QPoint handleOf(QSlider const& slider) {
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.subControls = QStyle::SC_All;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
}

void waitUntilDue(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The longest time from the moment in which a step of a drag is due until it is painted.
double longestGapOf(QSlider& slider) {
    constexpr int frame = 16;
    auto const start = handleOf(slider);
    QTest::mousePress(&slider, Qt::LeftButton, {}, start);
    double longest = 0;
    for (int step = 1; step <= 40; ++step) {
        QElapsedTimer timer;
        timer.start();
        waitUntilDue(frame);
        QMouseEvent move(QEvent::MouseMove, start + QPoint(step, 0), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&slider, &move);
        QCoreApplication::processEvents();
        longest = std::max(longest, millisecondsOf(timer) - frame);
    }
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, start + QPoint(40, 0));
    return longest;
}

/// The mouse drags a slider that shapes the picture. Of some drags the best counts, as other programs make one worse.
Measurement longestGap() {
    auto const dragging = std::make_shared<Dragging>();
    return [dragging] {
        auto& slider = *dragging->slider;
        auto const before = slider.value();
        double least = std::numeric_limits<double>::infinity();
        for (int drag = 0; drag < 5; ++drag) {
            least = std::min(least, longestGapOf(slider));
            if (slider.value() == before)
                qFatal("The slider cannot be dragged.");
            slider.setValue(before);
            awaitPicture(dragging->window);
        }
        return least;
    };
}

} // namespace

void addPreviewJobs(std::vector<Job>& jobs) {
    jobs.push_back({"first fine preview", 60, firstFinePicture, {}, "ms"});
    jobs.push_back({"drag with preview, longest gap", 5, longestGap, {}, "ms", 1});
}
