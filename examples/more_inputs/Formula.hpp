#pragma once

#include <optional>
#include <QChar>
#include <QCoreApplication>
#include <QString>

namespace MoreInputs {

/// Computes what a person types into a field of numbers: numbers, pi, + - * / and parentheses, as in "2*(3+pi)". Any
/// thread.
class Formula {
    Q_DECLARE_TR_FUNCTIONS(MoreInputs::Formula)

public:
    /// The result, or the reason why there is none.
    struct Result {
        /// A finite number; empty when the text is no formula.
        std::optional<double> value;
        /// A sentence for people; empty when there is a value.
        QString error;
    };

    /// `decimalPoint` separates decimals besides the point, as a comma does in many languages.
    static Result compute(QString const& text, QChar decimalPoint = QLatin1Char('.'));

private:
    Formula(QString const& text, QChar decimalPoint);
    // Each reads what its name says from the place on. After an error they read no further, and give 0.
    double sum();
    double product();
    double factor();
    double inParentheses();
    double number();

    /// Takes a character if it is the next one after spaces.
    bool take(char wanted);
    void skipSpaces();
    double fail(QString const& reason);

    QString text_;
    int place_ = 0;
    int depth_ = 0;
    QString error_;
};

} // namespace MoreInputs
