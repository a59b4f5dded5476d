#include <fractal/ui/PreviewRenderer.hpp>

#include <algorithm>
#include <fractal/engine/Picture.hpp>
#include <new>
#include <QGuiApplication>

namespace Fractal {

namespace {

// In milliseconds: longer than the pauses of a hand that drags a handle.
constexpr int restInterval = 150;
// A sixteenth of the pixels is computed quickly enough to follow a handle.
constexpr int coarseness = 4;
// More samples show no difference on a screen.
constexpr int bestQuality = 3;

} // namespace

class PreviewRenderer::Drawing : public Worker::Task {
public:
    Drawing(Picture::RenderRequest request, bool fine) : request_(std::move(request)), fine_(fine) {
        auto& settings = request_.settings;
        settings.quality = fine ? std::min(settings.quality, bestQuality) : 1;
        request_.coarseness = fine ? 1 : coarseness;
    }

    void run(Worker&) override {
        // Leave one processor to the user interface if there are more than two.
        int const processors = static_cast<int>(std::thread::hardware_concurrency());
        auto points = Picture::compute(request_, FractalRenderer(std::max(2, processors - 1)), cancelled);
        if (points)
            image = points->image;
        else if (!cancelled)
            throw std::bad_alloc();
    }

    bool isFine() const { return fine_; }
    QString const& problem() const { return failure().isEmpty() ? request_.settings.problem : failure(); }

    QImage image;

private:
    Picture::RenderRequest request_;
    bool const fine_;
};

PreviewRenderer::PreviewRenderer(QObject* parent) : QObject(parent) {
    restTimer_.setSingleShot(true);
    restTimer_.setInterval(restInterval);
    connect(&restTimer_, &QTimer::timeout, this, &PreviewRenderer::rest);
    connect(&worker_, &Worker::done, this, &PreviewRenderer::take);
}

PreviewRenderer::~PreviewRenderer() = default;

void PreviewRenderer::setNetwork(Talo::Network const* network) {
    clear();
    network_ = network ? std::make_unique<ComputingNetwork>(*network) : nullptr;
    watch_.reset();
    if (!computes())
        return;
    watch_ = std::make_unique<ParameterWatch>();
    connect(watch_.get(), &ParameterWatch::changed, this, &PreviewRenderer::change);
    for (auto const* const object : network_->all<ComputingObject>()) {
        if (!object->shapesPicture())
            continue;
        for (auto const& parameter : object->parameters())
            watch_->watch(parameter);
        // The parameter of a slot, such as the palette file's name, may belong to another object.
        for (auto const& slot : object->slotList())
            watch_->watch(slot->parameter());
    }
    change();
}

void PreviewRenderer::setPool(Kolt::PoolPtr const& pool) {
    pool_ = pool;
    change();
}

void PreviewRenderer::setSize(QSize const& size) {
    if (size == size_)
        return;
    size_ = size;
    change();
}

bool PreviewRenderer::isRefining() const {
    return drawing_ && drawing_->isFine();
}

bool PreviewRenderer::isAtRest() const {
    if (!computes() || size_.isEmpty())
        return true;
    return isFine_ && posted_ == changes_ && !drawing_ && !watch_->isWaiting();
}

void PreviewRenderer::showFinished(QImage const& image) {
    image_ = image;
    isFine_ = true;
    emit pictureChanged();
}

void PreviewRenderer::clear() {
    worker_.cancel();
    drawing_ = nullptr;
    restTimer_.stop();
    image_ = {};
    problem_.clear();
    isFine_ = false;
    wasFine_ = false;
    emit pictureChanged();
}

void PreviewRenderer::change() {
    ++changes_;
    if (!computes() || size_.isEmpty()) {
        clear();
        return;
    }
    restTimer_.start();
    if (isRefining()) {
        worker_.cancel();
        drawing_ = nullptr;
    }
    if (!drawing_)
        post(false);
}

void PreviewRenderer::rest() {
    // Wait for the coarse picture, even if it is slow: the fine one takes longer still.
    if (drawing_ || QGuiApplication::mouseButtons() != Qt::NoButton) {
        restTimer_.start();
        return;
    }
    post(true);
}

void PreviewRenderer::post(bool fine) {
    posted_ = changes_;
    Picture::RenderRequest request;
    request.settings = network_->settings(pool_);
    request.size = size_;
    drawing_ = std::make_shared<Drawing>(std::move(request), fine);
    worker_.post(drawing_);
}

void PreviewRenderer::take() {
    while (auto const task = worker_.takeDone()) {
        // The results of all other tasks are outdated.
        if (task != drawing_)
            continue;
        auto const drawing = std::exchange(drawing_, nullptr);
        image_ = drawing->image;
        isFine_ = drawing->isFine();
        wasFine_ = wasFine_ || isFine_;
        problem_ = drawing->problem();
        emit pictureChanged();
        if (drawing_)
            continue;
        if (posted_ != changes_) {
            post(false);
        } else if (!wasFine_ && !image_.isNull()) {
            // No hand has moved a handle yet, so there is no pause to wait for. The size changes as a window opens.
            restTimer_.stop();
            rest();
        }
    }
}

} // namespace Fractal
