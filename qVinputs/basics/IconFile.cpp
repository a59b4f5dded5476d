#include <qVinputs/basics/IconFile.hpp>

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPixmapCache>
#include <QXmlStreamReader>
#include <tessera/FileContent.hpp>

namespace Kolt {

namespace {

// In bytes.
constexpr std::uintmax_t largestFile = 16 << 20;
// In points, in each direction. A picture of few bytes can have any number of points, and some formats need all of them
// in memory before they are scaled.
constexpr int largestPicture = 4096;
constexpr int largestIcon = 256;

/// Whether it is the XML of a drawing that names another file, which a reader of drawings would open.
bool namesOtherFiles(QByteArray const& bytes) {
    QXmlStreamReader drawing(bytes);
    while (!drawing.atEnd()) {
        drawing.readNext();
        if (drawing.isProcessingInstruction())
            return true;
        auto const attributes = drawing.attributes();
        for (auto const& attribute : attributes) {
            auto const value = attribute.value();
            if (attribute.name() == QLatin1String("href") && !value.startsWith(QLatin1Char('#')) &&
                !value.startsWith(QLatin1String("data:")))
                return true;
        }
    }
    return false;
}

bool isCompressedDrawing(QByteArray const& bytes) {
    return bytes.startsWith("\x1f\x8b");
}

QPixmap readPicture(QString const& file) {
    auto const content = Tessera::FileContent::read(QFile::encodeName(file).toStdString(), largestFile);
    if (!content)
        return {};
    auto bytes = QByteArray::fromStdString(content.bytes());
    if (namesOtherFiles(bytes) || isCompressedDrawing(bytes))
        return {};
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    auto const size = reader.size();
    if (size.isEmpty() || size.width() > largestPicture || size.height() > largestPicture)
        return {};
    if (size.width() > largestIcon || size.height() > largestIcon)
        reader.setScaledSize(size.scaled(largestIcon, largestIcon, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return QPixmap::fromImageReader(&reader);
}

} // namespace

QPixmap readIconFile(QString const& file) {
    QFileInfo const info(file);
    auto const key =
        QStringLiteral("icon:%1:%2:%3").arg(info.lastModified().toMSecsSinceEpoch()).arg(info.size()).arg(file);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = readPicture(file);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace Kolt
