#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QRgb>
#include <QString>
#include <vector>

namespace Fractal {

/// The colours of a GIMP palette file (*.gpl): a line "GIMP Palette", lines "Name: ..." and "Columns: ...", comments
/// that start with "#", and a line for each colour, "red green blue" with whole numbers from 0 to 255 and a name that
/// may be left out.
class GimpPalette {
    Q_DECLARE_TR_FUNCTIONS(Fractal::GimpPalette)

public:
    /// The colours in their order, at least one, at most 4,096; or none and the reason in `error`, "line 3: what was
    /// expected, what was found".
    static std::vector<QRgb> parse(QByteArray const& text, QString& error);
    /// The same of a file of at most one megabyte; the reason is "FILE:3: ..." then, with line 0 for a file that
    /// cannot be read.
    static std::vector<QRgb> read(QString const& file, QString& error);

private:
    static std::vector<QRgb> parse(QByteArray const& text, int& line, QString& problem);
};

} // namespace Fractal
