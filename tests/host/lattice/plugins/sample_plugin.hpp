#pragma once

#include <lattice/Parameter.hpp>
#include <memory>

/// What the sample plug-in offers to the test that loads it: its creator carries this interface.
struct SampleWorkshop : Tessera::Interface<SampleWorkshop> {
    /// An editor, or an icon, as far as the loader is concerned: a notifier whose type the plug-in defines.
    virtual std::unique_ptr<Kolt::ValueNotifier> makeEditor() = 0;
    /// Records an undo step whose code the plug-in holds.
    virtual void recordStep(Kolt::VParameter& parameter) = 0;
};
