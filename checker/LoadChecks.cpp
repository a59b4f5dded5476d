#include <checker/Check.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/ProcessCounts.hpp>
#include <dlfcn.h>
#include <filesystem>
#include <lattice/HostObserver.hpp>
#include <lattice/Initialization.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/ValueFormat.hpp>
#include <sorrel/QInputCreator.hpp>

namespace Checker {

namespace {

bool isMapped(std::string const& file) {
    std::error_code ignored;
    auto const path = std::filesystem::canonical(file, ignored);
    void* const handle = dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

void loads(Subject const& subject, Findings& findings) {
    LoadedPlugin const plugin(subject.file, findings);
}

/// Records what the plug-in tells its host when it is loaded and unloaded.
class Reports : public Kolt::HostObserver {
public:
    Reports() { setObserver(this); }
    ~Reports() override { setObserver(nullptr); }
    void pluginCalled(Kolt::VInitialization::InitPluginReason reason, std::string const&,
                      std::string const& key) override {
        isAttached = isAttached || reason == Kolt::VInitialization::Attach;
        isDetached = isDetached || reason == Kolt::VInitialization::Detach;
        hasRightKey = hasRightKey && key == Kolt::VInitialization::apiKey();
    }

    bool isAttached = false;
    bool isDetached = false;
    bool hasRightKey = true;
};

void reportsAttachAndDetach(Subject const& subject, Findings& findings) {
    Reports const reports;
    LoadedPlugin plugin(subject.file, findings);
    if (!plugin.isLoaded())
        return;
    findings.expect(reports.isAttached, "it does not report attach while it is loaded");
    findings.expect(!reports.isDetached, "it reports detach before it is unloaded");
    plugin.unload();
    findings.expect(reports.isDetached, "it does not report detach while it is unloaded");
    findings.expect(reports.hasRightKey, "it reports with another key than the host's");
}

void isUnmappedAfterwards(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    if (!plugin.isLoaded())
        return;
    plugin.unload();
    findings.expect(!isMapped(subject.file), "the file is still in memory after it was unloaded");
}

void loadsAThousandTimes(Subject const& subject, Findings& findings) {
    constexpr int times = 1000;
    auto const once = [&] {
        LoadedPlugin plugin(subject.file, findings);
        plugin.unload();
        return findings.faults().empty();
    };
    // The first times fill what the system keeps for good.
    for (int time = 0; time < times / 10; ++time)
        if (!once())
            return;
    auto const descriptors = openFileCount();
    auto const threads = threadCount();
    auto const memory = heapInUse();
    for (int time = times / 10; time < times; ++time)
        if (!once())
            return;
    findings.expectEqual(openFileCount(), descriptors, "the number of open files after a thousand loads");
    findings.expectEqual(threadCount(), threads, "the number of threads after a thousand loads");
    // A kilobyte for each load.
    auto const now = heapInUse();
    auto const kilobytes = now > memory ? (now - memory) / 1024 : 0;
    findings.expect(kilobytes < times, "a thousand loads leave " + std::to_string(kilobytes) + " KB behind");
}

void creatorsAreComplete(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    for (auto const& entry : plugin.creators()) {
        auto const creator = entry.creator.strong();
        findings.setSubject("the creator \"" + creator->Name() + "\" for " + entry.valueType + ": ");
        findings.expect(!creator->Name().empty(), "it has no name");
        findings.expectEqual(creator->apiKey(), Kolt::VInitialization::apiKey(), "its key of the host's interface");
        findings.expect(creator->preferences()->contains("QT"), "its preferences lack \"QT\", so no host chooses it");
        findings.expect(bool(creator->getInterface<Kolt::QInputCreator>()), "it makes no Qt widgets");
    }
    findings.setSubject({});
    if (plugin.isLoaded() && plugin.creators().empty())
        findings.note("it registers no editor");
}

void registrationsAreAccepted(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    for (auto const& warning : plugin.warnings().texts)
        findings.fault("the host warns while it loads: " + warning);
}

void unregistersEverything(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    plugin.warnings().texts.clear();
    plugin.unload();
    for (auto const& warning : plugin.warnings().texts)
        findings.fault("the host warns while it unloads: " + warning);
    findings.expectEqual(plugin.creators().size(), 0, "the number of creators after unloading");
    findings.expectEqual(Kolt::VValueFormat::all().size(), 0, "the number of formats after unloading");
}

} // namespace

void addLoadChecks(std::vector<Check>& checks) {
    checks.push_back({2, "load", "It loads, attaches, and unloads.", loads});
    checks.push_back(
        {2, "reports", "It reports attach when it is loaded, and detach when it is unloaded.", reportsAttachAndDetach});
    checks.push_back({2, "unmapped", "The file is no longer in memory after it was unloaded.", isUnmappedAfterwards});
    checks.push_back(
        {3, "creators", "Each creator has a name, the host's key, \"QT\", and makes Qt widgets.", creatorsAreComplete});
    checks.push_back({3, "registered", "The host accepts all that is registered.", registrationsAreAccepted});
    checks.push_back(
        {3, "unregistered", "All that was registered is unregistered at unloading.", unregistersEverything});
    checks.push_back(
        {4, "thousand", "It loads and unloads a thousand times, and leaves nothing behind.", loadsAThousandTimes});
}

} // namespace Checker
