#pragma once

#include <lattice/Parameter.hpp>
#include <panel/PoolSource.hpp>
#include <QToolButton>

namespace Panel {

/// A small dot beside the name of a parameter that differs from its default (VParameter::defaults) in the chosen pool.
/// A click, or the keyboard, asks for the default; the tool tip names it. Hidden while the value is the default, and
/// for parameters without one. User-interface thread; the parameter's changes are reported there, too.
class DefaultMarker : public QToolButton, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    /// The parameter is referred to weakly. `pools` must outlive the marker.
    DefaultMarker(Kolt::ParameterPtr const& parameter, PoolSource const& pools, QWidget* parent = nullptr);
    ~DefaultMarker() override;

    /// Looks again, as after another pool was chosen or other defaults were remembered.
    void refresh();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

    Tessera::WeakPtr<Kolt::VParameter, Kolt::ValueNotifierList> const parameter_;
    PoolSource const& pools_;
    // The default that the tool tip names.
    Tessera::StrongPtr<Kolt::VValueBase> named_;
};

} // namespace Panel
