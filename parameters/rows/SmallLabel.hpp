#pragma once

#include <parameters/rows/MutedLabel.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// A muted label for a plain text in a smaller font, which begins where lines begin. Where the text does not fit, its
/// end is left out. User-interface thread.
class TALO_EXPORT SmallLabel : public MutedLabel {
    Q_OBJECT

public:
    /// Without a text.
    explicit SmallLabel(QWidget* parent = nullptr);
    ~SmallLabel() override;

    /// That of the whole text.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    mutable QString measured_;
    // Of the measured text; invalid after another font was set.
    mutable QSize textSize_;
};

} // namespace Talo
