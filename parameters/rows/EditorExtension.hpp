#pragma once

#include <lattice/Parameter.hpp>
#include <parameters/PoolSourceRef.hpp>
#include <QObject>
#include <sorrel/InputFrontEnd.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// What a row adds to editors of one kind. Owned by the editor. User-interface thread.
class TALO_EXPORT EditorExtension : public QObject {
    Q_OBJECT

public:
    /// What the row adds to this editor of a parameter; null for an editor that needs nothing. REQUIRES: the editor has
    /// a widget.
    static EditorExtension* makeFor(Kolt::Editor const& editor, Kolt::ParameterPtr const& parameter,
                                    PoolSourceRef const& pools);
    ~EditorExtension() override;

    /// Follows what the current pool holds. To be called after the editor was changed, too.
    virtual void refresh() = 0;

protected:
    using QObject::QObject;
};

} // namespace Talo
