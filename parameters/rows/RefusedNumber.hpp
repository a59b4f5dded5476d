#pragma once

#include <QLineEdit>
#include <QString>

namespace Talo {

/// Why a number field did not take a typed text over, as a sentence for people. The field's validator says which
/// numbers it takes.
QString refusedNumberText(QString const& parameterName, QString const& text, QLineEdit const& field);

} // namespace Talo
