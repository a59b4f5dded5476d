#pragma once

#include <lattice/Parameter.hpp>
#include <memory>

/// The interface through which a test uses the sample plug-in; its creator carries it.
struct SampleWorkshop : Tessera::Interface<SampleWorkshop> {
    /// A notifier whose type the plug-in defines. To the loader it is the same as an editor or an icon.
    virtual std::unique_ptr<Kolt::ValueNotifier> makeEditor() = 0;
    /// Records an undo step whose code the plug-in holds.
    virtual void recordStep(Kolt::VParameter& parameter) = 0;
};
