#pragma once

#include <panel/window/MainWindow.hpp>
#include <string>
#include <vector>

/// Where the views of a panel and what their parameters hold are not the same: for each such row a line with the
/// object, the parameter, what is shown and what should be. Rows of a closed plug-in, and buttons that show no value,
/// are left out. What is being typed counts as shown, so the focus must have left the fields. `compared`, unless it is
/// null, gets the number of rows that were compared.
std::vector<std::string> disagreements(Panel::MainWindow& window, int* compared = nullptr);
