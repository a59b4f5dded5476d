#pragma once

#include <chrono>
#include <panel/window/MainWindow.hpp>
#include <string>

/// What a long walk did and what it costs: editors that were opened, loads of plug-ins, memory and descriptors of the
/// process.
class SoakReport {
public:
    /// Begins to count. Both must outlive the report.
    SoakReport(Panel::MainWindow& window, Panel::Plugins& plugins);
    ~SoakReport();

    /// Closes and opens all editors, and unloads and reloads the plug-ins. The panel must be at rest.
    void openAndUnload();
    /// How long it counts, in minutes of real time.
    int minutes() const;
    /// One line with all counts, one more walk included.
    std::string line();

private:
    Panel::MainWindow& window_;
    Panel::Plugins& plugins_;
    std::chrono::system_clock::time_point const start_ = std::chrono::system_clock::now();
    QObject counter_;
    int walks_ = 0;
    int editors_ = 0;
    int loads_ = 0;
};
