#pragma once

#include <lattice/Parameter.hpp>
#include <QPointer>
#include <QWidget>

namespace Panel {

/// Holds an object's icon in its column, and enlarges it as far as the text of the list is large. It leaves the mouse
/// to the row.
class IconPlace : public QWidget {
    Q_OBJECT

public:
    explicit IconPlace(QWidget* parent = nullptr);
    ~IconPlace() override;

    /// The icon; null as long as none was put here.
    QWidget* icon() const { return icon_; }
    /// Takes the icon of a parameter over. Once only.
    void setIcon(QWidget* icon, Kolt::ParameterPtr const& parameter);
    /// "iterations = 100": what the icon shows, for people. `pool` may be null.
    QString valueText(Kolt::PoolPtr const& pool) const;

private:
    QPointer<QWidget> icon_;
    Kolt::ParameterRef parameter_;
};

} // namespace Panel
