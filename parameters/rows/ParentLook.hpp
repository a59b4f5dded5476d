#pragma once

#include <QFont>
#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// What a widget looks like by its parent: for one that derives its own colours or its own font from those. Qt tells a
/// widget of a new look before its parent has it, or not at all where the widget has set some of it itself.
/// User-interface thread.
class TALO_EXPORT ParentLook : public QObject {
    Q_OBJECT

public:
    /// The widget owns it.
    explicit ParentLook(QWidget& widget);
    ~ParentLook() override;

    /// The palette of the widget's parent; without a parent that of the application for such a widget.
    QPalette palette() const;
    /// The font of the widget's parent; without a parent that of the application for such a widget.
    QFont font() const;
    /// That font, larger by a factor.
    QFont scaledFont(double factor) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The palette or the font is another one, or the widget has another parent.
    void changed();

private:
    void watchParent();

    QWidget& widget_;
    QPointer<QWidget> parent_;
};

} // namespace Talo
