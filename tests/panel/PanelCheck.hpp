#pragma once

#include <panel/window/MainWindow.hpp>
#include <string>
#include <vector>

/// Compares the views of a panel with the values of their parameters. Returns a line for each row that differs, with
/// the object, the parameter, what is shown and what is expected. Skips rows of an unloaded plug-in and buttons that
/// show no value. A text that is being typed counts as shown, so no field may have the focus. If `compared` is not
/// null, it receives the number of compared rows.
std::vector<std::string> disagreements(Panel::MainWindow& window, int* compared = nullptr);
