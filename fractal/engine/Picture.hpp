#pragma once

#include <fractal/engine/FractalRenderer.hpp>
#include <QCoreApplication>

namespace Fractal {

/// A whole picture: its pixels, what is drawn over them, and its texts. Any thread that may paint on images. Prints
/// nothing.
class Picture {
    Q_DECLARE_TR_FUNCTIONS(Fractal::Picture)

public:
    /// What to compute.
    struct RenderRequest {
        FractalSettings settings; ///< numbers out of range are clamped
        QSize size;               ///< in pixels
        /// Whether the texts, the legend's included, are drawn on the picture.
        bool hasTexts = true;
        /// The side length, in pixels, of the blocks that share one computed pixel; at least 1.
        int coarseness = 1;
    };

    /// Computes a picture. Empty if it was cancelled, if the size is empty, or if an image cannot be allocated. May
    /// throw std::bad_alloc. The image has the size of the request; the counts have the size that was computed.
    static std::optional<FractalPoints> compute(RenderRequest request, FractalRenderer const& renderer,
                                                std::atomic<bool> const& cancelled,
                                                FractalRenderer::Progress const& progress = {});

    /// Writes an image as PNG. The file is replaced in one step, or left as it was on an error. Returns an empty text,
    /// or the reason why the file cannot be written, "FILE: ...".
    static QString writePng(QImage const& image, QString const& file);
    /// Writes an A4 page with a picture that was computed without texts, and the texts of the settings around it.
    /// Handles the file, and returns errors, as writePng() does.
    static QString writePdf(QImage const& image, FractalSettings const& settings, QString const& file);
};

} // namespace Fractal
