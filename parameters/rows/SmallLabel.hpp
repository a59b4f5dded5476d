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

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Talo
