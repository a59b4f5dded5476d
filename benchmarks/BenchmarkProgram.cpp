#include "BenchmarkProgram.hpp"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <iostream>
#include <lattice/Initialization.hpp>
#include <lattice/PluginLoader.hpp>
#include <QApplication>

int runBenchmarkProgram(int argc, char** argv, std::function<int()> const& body, std::vector<std::string> defaults) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    stdout = std::fopen("/dev/null", "w");
    // The offscreen platform warns of every window.
    qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});
    QApplication const application(argc, argv);

    std::vector<char*> arguments{argv[0]};
    for (auto& option : defaults)
        arguments.push_back(option.data());
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    Kolt::VInitialization host;
    Kolt::PluginLoader loader(host);
    auto const outcome = loader.load(TALO_PLUGIN_FILE);
    if (!outcome.ok) {
        std::cerr << outcome.message << "\n";
        return 2;
    }
    int const status = body();
    benchmark::Shutdown();
    return status;
}
