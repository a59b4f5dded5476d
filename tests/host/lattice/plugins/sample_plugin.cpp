#include "host/lattice/plugins/sample_plugin.hpp"

#include <lattice/Initialization.hpp>
#include <lattice/InputCreator.hpp>

namespace Sample {

struct Editor : Kolt::ValueNotifier {
    void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
};

struct Step : Kolt::VUndoAction {
    Step() : VUndoAction("a step of the plug-in") {}
    bool undo() override { return true; }
};

struct RenderQueue : SampleWorkshop {
    std::unique_ptr<Kolt::ValueNotifier> makeEditor() override { return std::make_unique<Editor>(); }
    void recordStep(Kolt::VParameter& parameter) override {
        parameter.AddUndoAction(Tessera::StrongPtr<Kolt::VUndoAction>(new Step), 1);
    }
};

struct Creator : Kolt::VInputCreator<int, Kolt::VInputCreatorBase> {
    Creator() : VInputCreator("sample", 0, nullptr, "TALO_API_VERSION") {
        addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new RenderQueue));
    }
};

} // namespace Sample

static Sample::Creator const creator;

extern "C" __attribute__((visibility("default"))) bool TALO_SAMPLE_ENTRY(Kolt::VInitialization const* host) {
    return host->IsCompatible(TALO_KEY);
}
