#include <fractal/engine/Picture.hpp>

#include <algorithm>
#include <fractal/engine/Overlays.hpp>
#include <fractal/engine/Titles.hpp>
#include <network/SaveFile.hpp>
#include <QImageWriter>
#include <QPdfWriter>

namespace Fractal {

namespace {

QString refusal(QString const& file, QString const& reason) {
    return QStringLiteral("%1: %2").arg(file, reason);
}

/// Returns an empty text, or the reason why the written file cannot replace the old one.
QString commit(QSaveFile& target, QString const& file) {
    auto const reason = Talo::commitSaveFile(target);
    return reason.isEmpty() ? QString() : refusal(file, reason);
}

} // namespace

std::optional<FractalPoints> Picture::compute(RenderRequest request, FractalRenderer const& renderer,
                                              std::atomic<bool> const& cancelled,
                                              FractalRenderer::Progress const& progress) {
    auto& settings = request.settings;
    settings.limit();
    if (!request.hasTexts)
        settings.legendText.clear();
    int const coarseness = std::max(1, request.coarseness);
    auto const shared = [&](int length) { return (length + coarseness - 1) / coarseness; };
    QSize const computed(shared(request.size.width()), shared(request.size.height()));
    auto points = renderer.render(settings, computed, cancelled, progress);
    if (!points)
        return std::nullopt;
    if (coarseness > 1)
        points->image = points->image.scaled(request.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (points->image.isNull())
        return std::nullopt;
    QPainter painter(&points->image);
    Overlays(settings, request.size).paint(painter, *points);
    if (request.hasTexts)
        Titles(settings).paintOver(painter, request.size);
    painter.end();
    return points;
}

QString Picture::writePng(QImage const& image, QString const& file) {
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly))
        return refusal(file, target.errorString());
    QImageWriter writer(&target, "png");
    if (!writer.write(image))
        return refusal(file, writer.errorString());
    return commit(target, file);
}

QString Picture::writePdf(QImage const& image, FractalSettings const& settings, QString const& file) {
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly))
        return refusal(file, target.errorString());
    {
        QPdfWriter writer(&target);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(15, 15, 15, 15),
                                         QPageLayout::Millimeter));
        writer.setResolution(300);
        writer.setTitle(settings.heading);
        QPainter painter;
        if (!painter.begin(&writer))
            return refusal(file, tr("the page cannot be drawn"));
        Titles(settings).paintPage(painter, QRectF(0, 0, writer.width(), writer.height()), image);
        if (!painter.end())
            return refusal(file, tr("the page cannot be drawn"));
    }
    return commit(target, file);
}

} // namespace Fractal
