#pragma once

#include <panel/window/MainWindow.hpp>
#include <string>
#include <vector>

/// Compares what the rows of all views say beside their editors with their parameters: the mark of a changed value, the
/// note about the pool, the raw value, tool tips, and what a screen reader says; and where the rows stand: below
/// each other, with none missing where the view shows some. Returns a line for each fault, with the object, the
/// parameter, what is and what should be. Expects a panel at rest; in any language.
std::vector<std::string> rowFaults(Panel::MainWindow& window);
