#include "PreviewCheck.hpp"

#include "WalkTime.hpp"

#include <fractal/ui/Preview.hpp>

namespace {

// In attempts, of some milliseconds each.
constexpr int longestWait = 60'000;

bool awaitPicture(Fractal::PreviewRenderer const& renderer) {
    for (int waited = 0; !renderer.isAtRest() && waited < longestWait; ++waited) {
        VirtualTime::waitForThreads(1);
        pass(1);
    }
    return renderer.isAtRest();
}

} // namespace

std::string previewFault(Panel::MainWindow& window) {
    auto const* const preview = window.findChild<Fractal::Preview*>();
    auto const& shown = window.fractalController().previewRenderer();
    if (!preview->isVisible() || !shown.computes())
        return {};
    Fractal::PreviewRenderer fresh;
    fresh.setPool(window.pools().pool());
    fresh.setNetwork(window.network());
    fresh.setSize(preview->pictureSize());
    if (!awaitPicture(fresh))
        return "the picture is never fine";
    if (preview->text() != fresh.problem())
        return "the preview says \"" + preview->text().toStdString() + "\", not \"" + fresh.problem().toStdString() +
               "\"";
    return preview->image() == fresh.image() ? std::string() : "the preview is not the picture of the values";
}
