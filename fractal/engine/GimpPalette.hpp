#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QRgb>
#include <QString>
#include <vector>

namespace Fractal {

/// Reads GIMP palette files (*.gpl): a line "GIMP Palette", lines "Name: ..." and "Columns: ...", comments that start
/// with "#", and a line for each colour, "red green blue" with integers from 0 to 255 and an optional name.
class GimpPalette {
    Q_DECLARE_TR_FUNCTIONS(Fractal::GimpPalette)

public:
    /// Returns the colours in order, 1 to 4,096. On an error returns none, and the reason in `error`: "line 3: what was
    /// expected, what was found".
    static std::vector<QRgb> parse(QByteArray const& text, QString& error);
    /// Parses a file of at most one megabyte. The reason is then "FILE:3: ..."; the line is 0 if the file cannot be
    /// read.
    static std::vector<QRgb> read(QString const& file, QString& error);

private:
    static std::vector<QRgb> parse(QByteArray const& text, int& line, QString& problem);
};

} // namespace Fractal
