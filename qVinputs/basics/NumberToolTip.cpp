#include <qVinputs/basics/NumberToolTip.hpp>

#include <QCoreApplication>
#include <QStringList>
#include <QToolTip>

namespace Kolt {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(NumberToolTip)
};

QString rangeText(NumberFacts const& facts) {
    if (facts.maximum.isEmpty())
        return {};
    return facts.isOutside ? Texts::tr("outside %1 to %2").arg(facts.minimum, facts.maximum)
                           : Texts::tr("%1 to %2").arg(facts.minimum, facts.maximum);
}

} // namespace

QString sliderKeys() {
    return Texts::tr("Arrow keys: one step\nPage Up, Page Down: a page\nHome, End: to the ends");
}

QString floatSliderKeys() {
    return Texts::tr("Right: one step up\nLeft, Home, End: one step down\nUp, Down: coarser and finer steps\n"
                     "+, -: wider and narrower around the value\n1, 2, 3, 4: to 10, 33, 66, 90 per cent");
}

QString numberToolTip(NumberFacts const& facts, QString const& controlKeys) {
    QStringList lines{facts.value, rangeText(facts), Texts::tr("Return: enter\nEscape: restore"), controlKeys};
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

bool showNumberToolTip(QWidget& editor, QHelpEvent const& event, QString const& text) {
    if (!editor.toolTip().isEmpty())
        return false;
    QToolTip::showText(event.globalPos(), text, &editor);
    return true;
}

} // namespace Kolt
