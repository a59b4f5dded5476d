#pragma once

#include <panel/window/MainWindow.hpp>
#include <string>
#include <vector>

/// Compares what the window says with what it is about: the title, undo and redo, the rows of the history, the list of
/// objects, and the messages. Returns a line for each fault. Expects a panel at rest; in any language.
std::vector<std::string> windowFaults(Panel::MainWindow& window);

/// Compares the focus with what the commands for a value act on. Returns a line for each fault. Between two events.
std::vector<std::string> focusFaults(Panel::MainWindow& window);
