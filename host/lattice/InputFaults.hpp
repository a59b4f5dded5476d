#pragma once

#include <string>
#include <tessera/Export.hpp>
#include <typeinfo>

namespace Kolt {

class ValueNotifier;
class VInputBase;

/// Exceptions that leave the code of inputs. The host catches them where it calls that code, so that a plug-in does not
/// end the program, and warns (VActionNotifier::Warning). User-interface thread.
class TALO_EXPORT InputFaults {
public:
    /// Told of each fault: the input, which still lives, and the sentence of the warning.
    using Listener = void (*)(VInputBase& input, std::string const& sentence);

    /// Sets the one listener: the library that knows which widget an input belongs to. Null for none.
    static void setListener(Listener listener);
    /// The exception that is being handled, as the end of a sentence: "ended with an exception: no memory". REQUIRES:
    /// called in a catch block.
    static std::string describeCurrent();
    /// Warns that a notification of an input ended with the exception that is being handled, and tells the listener.
    /// The exception of any other notifier goes on. REQUIRES: called in a catch block.
    static void notificationEnded(ValueNotifier& notifier);
};

/// The base name of the file, a plug-in or the program, that defines a type; empty if that is unknown. Any thread.
TALO_EXPORT std::string fileDefining(std::type_info const& type);

} // namespace Kolt
