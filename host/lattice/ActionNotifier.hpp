#pragma once

#include <string>
#include <tessera/Export.hpp>
#include <tessera/Reference.hpp>
#include <vector>

namespace Kolt {

/// Receives the host's warnings. A host derives a class that shows them, in a message list for instance; every living
/// object of it is notified. Objects are made and destroyed on the user-interface thread.
class TALO_EXPORT VActionNotifier : public Tessera::ReferenceBase<VActionNotifier> {
public:
    VActionNotifier();
    ~VActionNotifier() override;
    VActionNotifier(VActionNotifier const&) = delete;
    VActionNotifier& operator=(VActionNotifier const&) = delete;

    /// A warning for the user: a sentence without a full stop, UTF-8. Called on the thread that warns.
    virtual void onWarning(std::string const& text) = 0;

    /// Notifies every living notifier, in the order in which they were made. Without a notifier the text is printed to
    /// standard error as one line, so that it is not lost. Loading thread or user-interface thread.
    static void Warning(std::string const& text);
    /// All living notifiers, in the order in which they were made.
    static std::vector<Tessera::StrongPtr<VActionNotifier>> living();
};

} // namespace Kolt
