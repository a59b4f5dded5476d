#pragma once

#include <string>
#include <tessera/Reference.hpp>

namespace Kolt {

/// Hears of what the user should see. A host derives a class; every living object of it is told.
class VActionNotifier : public Tessera::ReferenceBase<VActionNotifier> {
public:
    VActionNotifier();
    ~VActionNotifier() override;
    VActionNotifier(VActionNotifier const&) = delete;
    VActionNotifier& operator=(VActionNotifier const&) = delete;

    /// A warning for the user, UTF-8. Called on the thread that warns.
    virtual void onWarning(std::string const& text) = 0;

    /// Tells every living notifier, in the order in which they were made. Where there is none, the text goes to
    /// standard error as one line, so that it is not lost. Loading thread or user-interface thread.
    static void Warning(std::string const& text);
};

} // namespace Kolt
