#include <fractal/engine/FractalRenderer.hpp>

#include <algorithm>
#include <cmath>
#include <fractal/engine/ColourScale.hpp>
#include <fractal/engine/FractalView.hpp>
#include <limits>
#include <new>
#include <system_error>
#include <thread>

namespace Fractal {

namespace {

/// Computes rows of one picture; different threads may compute different rows at the same time.
class RowRenderer {
public:
    RowRenderer(FractalSettings const& settings, FractalPoints& points, std::atomic<bool> const& cancelled)
        : formula_(settings),
          view_(settings, points.image.size()),
          colours_(settings),
          samples_(settings.quality),
          width_(points.image.width()),
          // Called once: each call of bits() checks whether the image's data is shared.
          bits_(points.image.bits()),
          bytesPerLine_(static_cast<std::size_t>(points.image.bytesPerLine())),
          counts_(points.counts),
          cancelled_(cancelled) {}

    /// False if it was cancelled.
    bool compute(int row) const {
        auto* const line = reinterpret_cast<QRgb*>(bits_ + bytesPerLine_ * static_cast<std::size_t>(row));
        auto* const counts = counts_.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(width_);
        for (int column = 0; column < width_; ++column) {
            if (cancelled_.load(std::memory_order_relaxed))
                return false;
            line[column] = point(column, row, counts[column]);
        }
        return true;
    }

private:
    QRgb point(int column, int row, float& count) const {
        ColourScale::Colour sum;
        for (int y = 0; y < samples_; ++y) {
            for (int x = 0; x < samples_; ++x) {
                auto const result =
                    formula_.escapeResultAt(view_.pointAt(column + (x + 0.5) / samples_, row + (y + 0.5) / samples_));
                if (x == 0 && y == 0)
                    count = result.stays ? std::numeric_limits<float>::infinity() : static_cast<float>(result.count);
                auto const& colour = colours_.colourOf(result);
                sum.red += colour.red;
                sum.green += colour.green;
                sum.blue += colour.blue;
                sum.alpha += colour.alpha;
            }
        }
        float const factor = 255.0F / static_cast<float>(samples_ * samples_);
        auto const channel = [&](float value) { return static_cast<int>(std::lround(value * factor)); };
        return qRgba(channel(sum.red), channel(sum.green), channel(sum.blue), channel(sum.alpha));
    }

    FractalFormula const formula_;
    FractalView const view_;
    ColourScale const colours_;
    int const samples_;
    int const width_;
    uchar* const bits_;
    std::size_t const bytesPerLine_;
    std::vector<float>& counts_;
    std::atomic<bool> const& cancelled_;
};

/// Threads that all run the same work; the destructor waits for them.
class Helpers {
public:
    /// Starts up to `count` threads. It is no error if the system has fewer, because the calling thread works in any
    /// case.
    Helpers(int count, std::function<void()> const& work) {
        try {
            threads_.reserve(static_cast<std::size_t>(std::max(0, count)));
            while (static_cast<int>(threads_.size()) < count)
                threads_.emplace_back(work);
        } catch (std::system_error const&) {
        } catch (std::bad_alloc const&) {
        }
    }
    ~Helpers() {
        for (auto& thread : threads_)
            thread.join();
    }
    Helpers(Helpers const&) = delete;
    Helpers& operator=(Helpers const&) = delete;

private:
    std::vector<std::thread> threads_;
};

} // namespace

FractalRenderer::FractalRenderer(int threads) : threads_(std::max(1, threads)) {}

std::optional<FractalPoints> FractalRenderer::render(FractalSettings const& settings, QSize const& size,
                                                     std::atomic<bool> const& cancelled,
                                                     Progress const& progress) const {
    FractalPoints points;
    points.image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    if (points.image.isNull())
        return std::nullopt;
    points.computed = size;
    points.counts.resize(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()));

    RowRenderer const rows(settings, points, cancelled);
    std::atomic<int> nextRow{0};
    std::atomic<int> doneRows{0};
    int reported = -1;
    auto const work = [&](Progress const& report) {
        for (int row = nextRow++; row < size.height() && rows.compute(row); row = nextRow++) {
            int const percent = ++doneRows * 100 / size.height();
            if (report && percent > reported)
                report(reported = percent);
        }
    };
    {
        Helpers const helpers(std::min(threads_, size.height()) - 1, [&] { work({}); });
        work(progress);
    }
    if (doneRows < size.height())
        return std::nullopt;
    // Only the calling thread reports progress, and another thread may have computed the last row.
    if (progress && reported < 100)
        progress(100);

    auto const staying =
        std::count_if(points.counts.begin(), points.counts.end(), [](float c) { return std::isinf(c); });
    points.staying = static_cast<double>(staying) / static_cast<double>(points.counts.size());
    return points;
}

} // namespace Fractal
