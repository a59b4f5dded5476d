#include <checker/LoadedPlugin.hpp>

#include <checker/UnknownEditor.hpp>
#include <QCoreApplication>
#include <QEvent>

namespace Checker {

LoadedPlugin::LoadedPlugin(std::string file, Findings& findings) : file_(std::move(file)), findings_(findings) {
    auto const outcome = loader_.load(file_);
    isLoaded_ = findings_.expect(outcome.ok, outcome.message);
}

LoadedPlugin::~LoadedPlugin() {
    unload();
}

void LoadedPlugin::unload() {
    if (!isLoaded_)
        return;
    isLoaded_ = false;
    if (QCoreApplication::instance())
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    findings_.setSubject({});
    auto const outcome = loader_.unload(file_);
    findings_.expect(outcome.ok, outcome.message);
}

void LoadedPlugin::forEachEditor(std::function<void(Kolt::InputRegistry::Entry const&)> const& function) {
    for (auto const& entry : creators()) {
        findings_.setSubject(editorName(entry));
        function(entry);
    }
    findings_.setSubject({});
}

std::vector<Kolt::InputRegistry::Entry> LoadedPlugin::creators() const {
    // Nothing else registers any in this process.
    return Kolt::InputRegistry::theRegistry().entries();
}

} // namespace Checker
