#pragma once

#include <atomic>
#include <lattice/Parameter.hpp>
#include <parameters/PoolSourceRef.hpp>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// Shows what a parameter holds in the chosen pool as the value's own text, live, and below it the value's age stamp
/// and whose value it is. A text that does not fit is shortened; the tool tip has more of it, and what else is to be
/// said about the value. Of a text of more than 2,000 characters they have the start. Its size does not depend on the
/// value, so that a change lays nothing out anew.
///
/// Made on the user-interface thread; changes may be reported on any thread.
class TALO_EXPORT RawValueLabel : public QWidget, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    /// The parameter is referred to weakly.
    RawValueLabel(Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools, QWidget* parent = nullptr);
    ~RawValueLabel() override;

    /// The text of the value, or the start of a long one and "…"; empty when the parameter is gone.
    QString const& text() const { return text_; }
    /// The shown line about the value: "age 7, pool preview".
    QString const& stamp() const { return stamp_; }
    /// What the tool tip says below the value, as rich text; nothing at first.
    void setExplanation(QString const& richText);
    /// Reads the value again, as after another pool was chosen.
    void refresh();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showName();
    void showToolTip();
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

    Kolt::ParameterRef const parameter_;
    PoolSourceRef const pools_;
    QString text_;
    QString stamp_;
    QString explanation_;
    std::atomic<bool> refreshWaits_{false};
};

} // namespace Talo
