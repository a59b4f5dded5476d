#pragma once

#include <fractal/engine/FractalRenderer.hpp>
#include <QCoreApplication>

namespace Fractal {

/// A whole picture: its points, what is drawn over them, and its texts. Any thread that may paint on images. Nothing is
/// printed.
class Picture {
    Q_DECLARE_TR_FUNCTIONS(Fractal::Picture)

public:
    /// What is to be computed.
    struct RenderRequest {
        FractalSettings settings; ///< numbers out of range are limited
        QSize size;               ///< in points
        /// Whether the texts stand on the picture, that of the legend included; otherwise they are left out.
        bool hasTexts = true;
        /// How many points of the picture, in each direction, share one that is computed; at least 1.
        int coarseness = 1;
    };

    /// Computes a picture; nothing when it was cancelled, has no points or is too large for the memory. The image has
    /// the size of the order, the counts have that of the computed points.
    static std::optional<FractalPoints> compute(RenderRequest request, FractalRenderer const& renderer,
                                                std::atomic<bool> const& cancelled,
                                                FractalRenderer::Progress const& progress = {});

    /// Writes an image as PNG and replaces the file in one step or leaves it as it was. Empty, or the reason why it
    /// cannot be written, "FILE: ...".
    static QString writePng(QImage const& image, QString const& file);
    /// Writes a page in A4 with a picture that was computed without texts, and the texts of the settings around it.
    /// As above.
    static QString writePdf(QImage const& image, FractalSettings const& settings, QString const& file);
};

} // namespace Fractal
