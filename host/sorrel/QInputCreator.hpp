#pragma once

#include <lattice/Input.hpp>
#include <lattice/InputCreator.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <tessera/Export.hpp>
#include <utility>

namespace Kolt {

using InputRef = Tessera::WeakPtr<VInputBase, ValueNotifier>;

/// The interface that an input creator carries (Intercube::addInterface) if it makes Qt widgets. Owned by the creator.
/// Hosts call makeEditor, which finds and uses it. User-interface thread.
class TALO_EXPORT QInputCreator : public Tessera::Interface<QInputCreator> {
public:
    QInputCreator();
    ~QInputCreator() override;

    /// Makes an editor for the parameter, which may be destroyed. `parent` owns the widget; null leaves it to the
    /// caller. The editor asks `poolSource` for its pool at every edit; null counts as no pool. Returns the widget and
    /// its input, which lives as long as the widget. REQUIRES: the source outlives the editor.
    virtual std::pair<QPointer<QWidget>, InputRef> create(ParameterRef const& parameter, QWidget* parent,
                                                          ValuePoolSource* poolSource) = 0;

    /// A hint on how to use the editor, for people; empty unless a creator has one.
    virtual QString hint() const;
};

} // namespace Kolt
