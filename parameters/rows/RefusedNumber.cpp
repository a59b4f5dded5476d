#include <parameters/rows/RefusedNumber.hpp>

#include <QCoreApplication>
#include <QIntValidator>

namespace Talo {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RefusedNumber)
};

QString adviceFor(QString const& text, bool isWhole) {
    bool isNumber = false;
    text.toDouble(&isNumber);
    int const points = text.count(QLatin1Char('.'));
    if (text.contains(QLatin1Char(',')) || points > 1 || (isWhole && points > 0))
        return isWhole ? Texts::tr("Write a whole number without separators.")
                       : Texts::tr("Write the number without group separators and with a point before the decimals.");
    return isNumber ? Texts::tr("The number is too large.") : Texts::tr("This is no number.");
}

} // namespace

QString refusedNumberText(QString const& parameterName, QString const& text, QLineEdit const& field) {
    bool const isWhole = qobject_cast<QIntValidator const*>(field.validator());
    return Texts::tr("%1 does not take \"%2\". %3").arg(parameterName, text, adviceFor(text, isWhole));
}

} // namespace Talo
