#pragma once

#include <parameters/rows/ParentLook.hpp>
#include <QLabel>

namespace Panel {

/// A plain text in bold and larger letters, which follows the font of its parent. User-interface thread.
class TitleLabel : public QLabel {
    Q_OBJECT

public:
    /// `scale` is the factor by which the letters are larger than those of the parent.
    explicit TitleLabel(QString const& text, double scale = 1, QWidget* parent = nullptr);
    ~TitleLabel() override;
};

} // namespace Panel
