#pragma once

#include <panel/window/MainWindow.hpp>
#include <string>

/// Compares the preview, if it is shown, with the picture that a new renderer makes of the values of now. Returns the
/// fault, or an empty text. Expects the preview at rest, and no picture of the render action in its place.
std::string previewFault(Panel::MainWindow& window);
