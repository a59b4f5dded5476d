#include "SoakReport.hpp"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

namespace {

/// The memory of the process in kilobytes, as the system tells it.
int residentMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    auto const lines = status.readAll().split('\n');
    for (auto const& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).replace("kB", "").trimmed().toInt();
    }
    return 0;
}

int descriptors() {
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::Files).size();
}

} // namespace

SoakReport::SoakReport(Panel::MainWindow& window, Panel::Plugins& plugins) : window_(window), plugins_(plugins) {
    QObject::connect(&window_.views(), &Panel::ViewStack::editorOpened, &counter_, [this] { ++editors_; });
    QObject::connect(&plugins_, &Panel::Plugins::changed, &counter_, [this] { ++loads_; });
}

SoakReport::~SoakReport() = default;

void SoakReport::openAndUnload() {
    window_.views().closeEditors();
    window_.views().openEditors();
    QString error;
    EXPECT_TRUE(plugins_.unload(&error)) << qPrintable(error);
    EXPECT_TRUE(plugins_.reload(&error)) << qPrintable(error);
}

int SoakReport::minutes() const {
    return static_cast<int>(
        std::chrono::duration_cast<std::chrono::minutes>(std::chrono::system_clock::now() - start_).count());
}

std::string SoakReport::line() {
    return "walks " + std::to_string(++walks_) + ", editors opened " + std::to_string(editors_) +
           ", loads and unloads " + std::to_string(loads_) + ", memory " + std::to_string(residentMemory()) +
           " kB, descriptors " + std::to_string(descriptors());
}
