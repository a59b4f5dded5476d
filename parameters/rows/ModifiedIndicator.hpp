#pragma once

#include <QToolButton>
#include <tessera/Export.hpp>

namespace Talo {

/// A small dot beside the name of a parameter that differs from its default. A click, or the keyboard, asks for the
/// default; the tool tip names it. User-interface thread.
class TALO_EXPORT ModifiedIndicator : public QToolButton {
    Q_OBJECT

public:
    /// Says nothing before `setDefault`.
    explicit ModifiedIndicator(QWidget* parent = nullptr);
    ~ModifiedIndicator() override;

    /// Names the parameter and its default by its text, in the language of now.
    void setDefault(QString const& parameterName, QString const& text);

    /// How wide and high a marker is beside a name in the font of the widget, in pixels.
    static int side(QWidget const& widget);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Talo
