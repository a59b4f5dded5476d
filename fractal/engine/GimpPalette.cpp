#include <fractal/engine/GimpPalette.hpp>

#include <QFile>
#include <QRegularExpression>
#include <tessera/FileContent.hpp>

namespace Fractal {

namespace {

constexpr std::uintmax_t longestFile = 1 << 20;
constexpr std::size_t mostColours = 4096;

} // namespace

std::vector<QRgb> GimpPalette::parse(QByteArray const& text, int& line, QString& problem) {
    auto const lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    auto const found = [&] { return lines.value(line - 1).trimmed().left(60); };
    auto const refuse = [&](QString const& reason) {
        problem = reason;
        return std::vector<QRgb>();
    };
    line = 1;
    if (lines.constFirst().trimmed() != QLatin1String("GIMP Palette"))
        return refuse(found().isEmpty() ? tr("expected the first line \"GIMP Palette\", found an empty line")
                                        : tr("expected the first line \"GIMP Palette\", found \"%1\"").arg(found()));

    static QRegularExpression const pattern(
        QStringLiteral("\\A\\s*([0-9]{1,3})\\s+([0-9]{1,3})\\s+([0-9]{1,3})(\\s.*)?\\z"));
    std::vector<QRgb> colours;
    for (line = 2; line <= lines.size(); ++line) {
        auto const content = lines[line - 1].trimmed();
        if (content.isEmpty() || content.startsWith(QLatin1Char('#')) || content.startsWith(QLatin1String("Name:")) ||
            content.startsWith(QLatin1String("Columns:")))
            continue;
        auto const match = pattern.match(content);
        int const red = match.captured(1).toInt();
        int const green = match.captured(2).toInt();
        int const blue = match.captured(3).toInt();
        if (!match.hasMatch() || red > 255 || green > 255 || blue > 255)
            return refuse(tr("expected red, green and blue from 0 to 255, found \"%1\"").arg(found()));
        if (colours.size() == mostColours)
            return refuse(tr("expected at most %1 colours, found \"%2\"").arg(QString::number(mostColours), found()));
        colours.push_back(qRgb(red, green, blue));
    }
    if (colours.empty()) {
        line = lines.size();
        return refuse(found().isEmpty() ? tr("expected at least one colour, found an empty line")
                                        : tr("expected at least one colour, found \"%1\"").arg(found()));
    }
    return colours;
}

std::vector<QRgb> GimpPalette::parse(QByteArray const& text, QString& error) {
    int line = 0;
    QString problem;
    auto const colours = parse(text, line, problem);
    if (colours.empty())
        error = tr("line %1: %2").arg(line).arg(problem);
    return colours;
}

std::vector<QRgb> GimpPalette::read(QString const& file, QString& error) {
    using Problem = Tessera::FileContent::Problem;
    auto const content = Tessera::FileContent::read(QFile::encodeName(file).toStdString(), longestFile);
    int line = 0;
    QString problem;
    std::vector<QRgb> colours;
    if (content)
        colours = parse(QByteArray::fromStdString(content.bytes()), line, problem);
    else if (content.problem() == Problem::Folder || content.problem() == Problem::NotRegular)
        problem = tr("expected a file, found something else");
    else if (content.problem() == Problem::TooLarge)
        problem = tr("expected a palette of at most one megabyte, found a longer file");
    else
        problem =
            tr("expected a file that can be read, found: %1").arg(QString::fromLocal8Bit(content.reason().c_str()));
    if (colours.empty())
        error = file + QLatin1Char(':') + QString::number(line) + QLatin1String(": ") + problem;
    return colours;
}

} // namespace Fractal
