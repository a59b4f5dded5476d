#pragma once

#include <fractal/engine/GimpPalette.hpp>
#include <string>

/// Reads the bytes as a palette. What is wrong, a sentence; empty where they are refused with a reason that names a
/// line, or the colours are read again from a palette that lists them.
inline std::string problemOfPalette(QByteArray const& bytes) {
    QString error;
    auto const colours = Fractal::GimpPalette::parse(bytes, error);
    if (colours.empty())
        return error.startsWith(QStringLiteral("line ")) ? "" : "it is refused without a reason that names a line";
    if (!error.isEmpty())
        return "colours are read and refused at once";
    if (colours.size() > 4096)
        return "more colours are read than a palette may have";
    QByteArray plain("GIMP Palette\n");
    for (auto const colour : colours)
        plain += QByteArray::number(qRed(colour)) + ' ' + QByteArray::number(qGreen(colour)) + ' ' +
                 QByteArray::number(qBlue(colour)) + '\n';
    return Fractal::GimpPalette::parse(plain, error) == colours ? "" : "other colours are read than were listed";
}
