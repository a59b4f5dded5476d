#pragma once

#include <QLabel>
#include <tessera/Export.hpp>

namespace Talo {

/// The name of a parameter in its row, shortened in its middle where it has less room than it needs.
/// User-interface thread.
class TALO_EXPORT NameLabel : public QLabel {
    Q_OBJECT

public:
    /// Has no name before `setName`.
    explicit NameLabel(QWidget* parent = nullptr);
    ~NameLabel() override;

    /// Shows another name, shortened as the one before.
    void setName(QString const& name);
    /// The width that the whole name needs, in pixels.
    int wholeWidth() const;
    /// Shortens the name to a width in pixels, or shows all of it if that suffices.
    void shortenTo(int width);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showText(QString text);

    QString name_;
    // What was given last, in pixels.
    int width_ = QWIDGETSIZE_MAX;
    // The form asks for it often. Negative until it is asked for.
    mutable int wholeWidth_ = -1;
};

} // namespace Talo
