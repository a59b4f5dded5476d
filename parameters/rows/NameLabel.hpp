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

    /// That of the text that is shown.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showText(QString text);
    QSize wholeSize() const;
    /// Whether the label needs the room of the whole name.
    bool isPlain() const;

    QString name_;
    // What was given last, in pixels.
    int width_ = QWIDGETSIZE_MAX;
    // The form asks for it often. Invalid until it is asked for.
    mutable QSize wholeSize_;
};

} // namespace Talo
