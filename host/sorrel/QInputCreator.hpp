#pragma once

#include <lattice/Input.hpp>
#include <lattice/InputCreator.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <utility>

namespace Kolt {

using InputRef = Tessera::WeakPtr<VInputBase, ValueNotifier>;

/// The interface that an input creator carries when it makes Qt widgets. The creator owns it. User-interface thread.
class QInputCreator : public Tessera::Interface<QInputCreator> {
public:
    QInputCreator();
    ~QInputCreator() override;

    /// Makes an editor for the parameter, which may be gone. `parent` owns the widget; null leaves it to the caller.
    /// The editor asks `poolSource` for its pool at every edit; it may be null, which counts as no pool, and must
    /// outlive the editor. Gives the widget and its input, which lives as long as the widget.
    virtual std::pair<QPointer<QWidget>, InputRef> create(ParameterRef const& parameter, QWidget* parent,
                                                          ValuePoolSource* poolSource) = 0;

    /// A hint on how to use the editor, for people; empty unless a creator has one.
    virtual QString hint() const;
};

} // namespace Kolt
