#pragma once

#include <lattice/Parameter.hpp>
#include <memory>
#include <QMimeData>
#include <QString>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Values on their way over the clipboard: as plain text for everybody, and typed for the panel, in the way of network
/// files, so that every value arrives exactly. User-interface thread.
class TALO_EXPORT ValueClipboard {
public:
    /// The format of typed values, a JSON object: {"type": "int", "value": 400}, or {"values": [...]} with such
    /// objects.
    static QString mimeType();

    /// What the parameter holds in the pool.
    static std::unique_ptr<QMimeData> copy(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool);

    /// What came of a paste: a value object to hold, or null and the reason.
    struct Pasted {
        /// The value; null when nothing can be pasted.
        Kolt::ValuePtr value;
        /// Why nothing can be pasted; empty otherwise.
        QString error;
    };
    /// The value for a parameter in a pool. A typed value of the parameter's type is taken as it is; of anything else
    /// the plain text is read (valueFromText), without the blanks around it where that is no text of the parameter's
    /// type. What the parameter does not know (another entry, another flag) is refused. Nothing is changed.
    static Pasted paste(QMimeData const& data, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool);

    /// What the parameters hold in the pool; as plain text with blanks between the values.
    static std::unique_ptr<QMimeData> copyAll(std::vector<Kolt::ParameterPtr> const& parameters,
                                              Kolt::PoolPtr const& pool);
    /// Whether this many values are there: typed ones, or words.
    static bool hasValues(QMimeData const& data, std::size_t count);
    /// What came of a paste of several values.
    struct PastedValues {
        /// The values in the order of the parameters; none when nothing can be pasted.
        std::vector<Kolt::ValuePtr> values;
        /// Why nothing can be pasted; empty otherwise.
        QString error;
    };
    /// Like `paste`, for as many values as there are parameters.
    static PastedValues pasteAll(QMimeData const& data, std::vector<Kolt::ParameterPtr> const& parameters,
                                 Kolt::PoolPtr const& pool);
};

} // namespace Talo
