#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <lattice/ActionNotifier.hpp>
#include <lattice/HostObserver.hpp>
#include <lattice/InputRegistry.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/ValueCreator.hpp>
#include <memory>
#include <QCoreApplication>
#include <sorrel/QInputCreator.hpp>

// plugin_process FILE MODE
// Loads a plug-in file without an application object and prints what the host sees, one item per line.
//   close    loads it, lists the creators, unloads it
//   exit     loads it and leaves it loaded until the process ends
//   refused  like close, but an existing creator makes the host refuse the first one
//   cycles   loads and unloads it 1,000 times
// Status 0 if each step worked, 1 with a line that says which one did not.

namespace {

void print(std::string const& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

struct PrintingObserver : Kolt::HostObserver {
    void creatorRegistered(std::string const& type, Kolt::VInputCreatorBase const& creator) override {
        print("registered\t" + row(type, creator));
    }
    void creatorRefused(std::string const& type) override { print("refused\t" + type); }
    void creatorUnregistered(std::string const& type, Kolt::VInputCreatorBase const& creator) override {
        print("unregistered\t" + type + "\t" + creator.Name());
    }
    void valueCreatorRegistered(std::string const& type) override { print("value creator\t" + type); }
    void pluginCalled(Kolt::VInitialization::InitPluginReason reason, std::string const& plugin,
                      std::string const& key) override {
        print("called\t" + std::to_string(reason) + "\t" + plugin + "\t" + key);
    }
    static std::string row(std::string const& type, Kolt::VInputCreatorBase const& creator) {
        return type + "\t" + creator.Name() + "\t" + Kolt::preferenceText(creator.preferences()->names());
    }
};

struct PrintingNotifier : Kolt::VActionNotifier {
    void onWarning(std::string const& text) override { print("host warning\t" + text); }
};

int fail(std::string const& message) {
    print("failed\t" + message);
    return 1;
}

void printCreators() {
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        print("stands\t" + PrintingObserver::row(entry.valueType, *creator) + "\t" +
              std::to_string(creator->priority()) + "\t" + creator->apiKey() + "\t" +
              (creator->getInterface<Kolt::QInputCreator>() ? "Qt widgets" : "no Qt widgets"));
    }
}

std::string valueCreators() {
    std::string counts;
    for (auto const* const type : {"double", "int", "Tessera::StrongPtr<Kolt::VAction>"})
        counts += " " + std::to_string(Kolt::VValueCreator::registered(type));
    return counts;
}

int loadAndClose(Kolt::PluginLoader& loader, std::string const& file) {
    auto const loaded = loader.load(file);
    if (!loaded.ok)
        return fail(loaded.message);
    printCreators();
    print("closing");
    auto const unloaded = loader.unload(file);
    if (!unloaded.ok)
        return fail(unloaded.message);
    print("closed");
    printCreators();
    return 0;
}

int cycles(Kolt::PluginLoader& loader, std::string const& file) {
    auto const before = valueCreators();
    for (int cycle = 1; cycle <= 1000; ++cycle) {
        auto const loaded = loader.load(file);
        if (!loaded.ok)
            return fail(loaded.message);
        if (Kolt::InputRegistry::theRegistry().entries().empty() || valueCreators() == before)
            return fail("nothing was registered in cycle " + std::to_string(cycle));
        auto const unloaded = loader.unload(file);
        if (!unloaded.ok)
            return fail(unloaded.message);
        if (!Kolt::InputRegistry::theRegistry().entries().empty() || valueCreators() != before)
            return fail("something stays in the registry in cycle " + std::to_string(cycle));
        if (dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD))
            return fail("the file stays mapped in cycle " + std::to_string(cycle));
    }
    print("1000 cycles");
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3)
        return fail("two arguments are wanted");
    std::string const file = argv[1];
    std::string const mode = argv[2];

    // Never destroyed, because the plug-in still reports at the end of the process.
    static auto* const observer = new PrintingObserver;
    static auto* const notifier = new PrintingNotifier;
    static_cast<void>(notifier);
    Kolt::VInitialization host;

    if (mode == "exit") {
        Kolt::HostObserver::setObserver(observer);
        if (!dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL))
            return fail(dlerror());
        if (QCoreApplication::instance())
            return fail("there is an application object");
        print("leaving main");
        return 0;
    }

    Kolt::PluginLoader loader(host);
    if (mode == "cycles")
        return cycles(loader, file);
    std::unique_ptr<Kolt::VInputCreatorBase> decoy;
    if (mode == "refused")
        decoy = std::make_unique<Kolt::VInputCreator<bool, Kolt::VInputCreatorBase>>("boolean", 0, nullptr,
                                                                                     "TALO_API_VERSION");
    Kolt::HostObserver::setObserver(observer);
    int const status = loadAndClose(loader, file);
    Kolt::HostObserver::setObserver(nullptr);
    if (QCoreApplication::instance())
        return fail("there is an application object");
    return status;
}
