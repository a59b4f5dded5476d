#pragma once

#include <lattice/ValueSnapshot.hpp>
#include <parameters/rows/EditorExtension.hpp>
#include <QColorDialog>
#include <QLabel>

namespace Talo {

/// What a row adds to the swatch of a colour. Its dialog names the parameter, is closed when the swatch is hidden or
/// another pool is chosen, keeps the choice on Return, and restores the colour on Escape. Without a choice the swatch
/// shows the value again. The right button opens the menu of the row alone. Where the text on the swatch cannot be
/// read, it is beside it as well.
class SwatchExtension : public EditorExtension {
    Q_OBJECT

public:
    /// Null for an editor that is no label with a colour dialog.
    static SwatchExtension* makeFor(Kolt::Editor const& editor, Kolt::ParameterPtr const& parameter,
                                    PoolSourceRef const& pools);
    ~SwatchExtension() override;

    void refresh() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SwatchExtension(QLabel& swatch, QColorDialog& dialog, Kolt::Editor editor, Kolt::ParameterPtr const& parameter,
                    PoolSourceRef const& pools);

    void beginChoice();
    void endChoice();
    void restoreColour();
    void showText();

    QLabel& swatch_;
    QColorDialog& dialog_;
    Kolt::Editor const editor_;
    Kolt::ParameterRef const parameter_;
    PoolSourceRef const pools_;
    // When the dialog was opened.
    Kolt::PoolPtr pool_;
    Kolt::EffectiveValue before_;
    // Made when it is first needed, in the row.
    QPointer<QLabel> text_;
};

} // namespace Talo
