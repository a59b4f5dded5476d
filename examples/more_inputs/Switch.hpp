#pragma once

#include <QCheckBox>

namespace MoreInputs {

/// A check box that looks like a switch: a knob in a track, at the end of the reading direction when it is on. It is
/// drawn in the colours of the palette, and with an outline, so that it can be seen in all of them. User-interface
/// thread.
class Switch : public QCheckBox {
    Q_OBJECT

public:
    /// `parent` owns the switch.
    explicit Switch(QWidget* parent);
    ~Switch() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(QPoint const& place) const override { return rect().contains(place); }
    void paintEvent(QPaintEvent* event) override;
};

} // namespace MoreInputs
