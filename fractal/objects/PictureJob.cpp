#include <fractal/objects/PictureJob.hpp>

#include <QElapsedTimer>
#include <QLocale>

namespace Fractal {

using Format = ExporterObject::Format;

PictureJob::PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool)
    : PictureJob(network, pool, QString(), Format::Png) {}

PictureJob::PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool, QString file, Format format)
    : pool_(pool),
      file_(std::move(file)),
      format_(format),
      title_(isToBeWritten() ? file_
             : pool          ? tr("the picture of %1").arg(QString::fromStdString(pool->Name()))
                             : tr("the picture")) {
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
        writeStatus(QStringLiteral("%1 <a href=\"%2\">%3</a>")
                        .arg(tr("Computing %1: %2 %.").arg(title_.toHtmlEscaped(), QString::number(percent)),
                             QLatin1String(CancelLink), tr("Cancel")));
        worker.reportProgress();
    };
    reportProgress(0);
    FractalRenderer const renderer(static_cast<int>(std::thread::hardware_concurrency()));
    auto const points = Picture::compute(request_, renderer, cancelled, reportProgress);
    if (cancelled)
        return;
    if (!points) {
        problem_ = tr("There is not enough memory for %1.").arg(title_);
        return;
    }
    image_ = points->image;
    if (isToBeWritten())
        problem_ = format_ == Format::Png ? Picture::writePng(image_, file_)
                                          : Picture::writePdf(image_, request_.settings, file_);
    summary_ = summaryOf(*points, static_cast<double>(clock.elapsed()) / 1000);
}

QString PictureJob::problem() const {
    return failure().isEmpty() ? problem_ : tr("%1 Given up: %2.").arg(failure(), title_);
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
