#include <fractal/objects/PictureJob.hpp>

#include <QElapsedTimer>
#include <QLocale>

namespace Fractal {

using Format = ExporterObject::Format;

namespace {

/// One sentence: of a file, of the picture of a pool, and of a picture without a pool.
struct JobTexts {
    char const* ofFile;
    char const* ofPool;
    char const* ofPicture;
};

// In the order of PictureJob::Sentence.
constexpr JobTexts jobTexts[] = {
    {QT_TRANSLATE_NOOP("Fractal::PictureJob", "Computing %1"),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Computing the picture of %1"),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Computing the picture")},
    {QT_TRANSLATE_NOOP("Fractal::PictureJob", "There is not enough memory for %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "There is not enough memory for the picture of %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "There is not enough memory for the picture.")},
    {QT_TRANSLATE_NOOP("Fractal::PictureJob", "Given up: %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Given up: the picture of %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Given up: the picture.")},
    {QT_TRANSLATE_NOOP("Fractal::PictureJob", "Cancelled: %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Cancelled: the picture of %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Cancelled: the picture.")},
    {QT_TRANSLATE_NOOP("Fractal::PictureJob", "Wrote %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Computed the picture of %1."),
     QT_TRANSLATE_NOOP("Fractal::PictureJob", "Computed the picture.")},
};

} // namespace

PictureJob::PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool)
    : PictureJob(network, pool, QString(), Format::Png) {}

PictureJob::PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool, QString file, Format format)
    : pool_(pool), file_(std::move(file)), format_(format) {
    request_.settings = network.settings(pool);
    request_.size = {request_.settings.width, request_.settings.height()};
    // In a PDF the texts are around the picture, not on it.
    request_.hasTexts = format == Format::Png;
    for (auto const* const object : network.all<RenderObject>())
        reports_.emplace_back(object, pool);
}

PictureJob::~PictureJob() = default;

void PictureJob::run(Worker& worker) {
    QElapsedTimer clock;
    clock.start();
    auto const reportProgress = [&](int percent) {
        percent_ = percent;
        writeStatus(progressText(percent));
        worker.reportProgress();
    };
    reportProgress(0);
    FractalRenderer const renderer(static_cast<int>(std::thread::hardware_concurrency()));
    auto const points = Picture::compute(request_, renderer, cancelled, reportProgress);
    if (cancelled)
        return;
    if (!points) {
        problem_ = say(Sentence::NoMemory);
        return;
    }
    image_ = points->image;
    if (isToBeWritten())
        problem_ = format_ == Format::Png ? Picture::writePng(image_, file_)
                                          : Picture::writePdf(image_, request_.settings, file_);
    summary_ = summaryOf(*points, static_cast<double>(clock.elapsed()) / 1000);
}

QString PictureJob::say(Sentence sentence) const {
    auto const& texts = jobTexts[static_cast<int>(sentence)];
    if (isToBeWritten())
        return tr(texts.ofFile).arg(file_);
    return pool_ ? tr(texts.ofPool).arg(QString::fromStdString(pool_->Name())) : tr(texts.ofPicture);
}

QString PictureJob::progressText(int percent) const {
    //: What is computed, and how much of it is done.
    auto const text = tr("%1: %2 %.").arg(say(Sentence::Computing).toHtmlEscaped(), QString::number(percent));
    return QStringLiteral("%1 <a href=\"%2\">%3</a>").arg(text, QLatin1String(CancelLink), tr("Cancel"));
}

QString PictureJob::problem() const {
    return failure().isEmpty() ? problem_ : failure() + QLatin1Char(' ') + say(Sentence::GivenUp);
}

void PictureJob::writeStatus(QString const& text) const {
    for (auto const& report : reports_)
        report.write(text);
}

QString PictureJob::summaryOf(FractalPoints const& points, double seconds) const {
    auto const& settings = request_.settings;
    QLocale const locale;
    return tr("%1 × %2 points, %3 steps at most, %4 × %4 samples: %5 s. %6 % of the points stay.")
        .arg(settings.width)
        .arg(settings.height())
        .arg(settings.iterations)
        .arg(settings.quality)
        .arg(locale.toString(seconds, 'f', 1), locale.toString(points.staying * 100, 'f', 0));
}

} // namespace Fractal
