#include "Formula.hpp"

#include <cmath>

namespace MoreInputs {

namespace {

// Nobody types more; a pasted text must not use up the stack.
constexpr int mostParentheses = 100;

constexpr double pi = 3.14159265358979323846;

} // namespace

Formula::Result Formula::compute(QString const& text, QChar decimalPoint) {
    Formula formula(text, decimalPoint);
    double const value = formula.sum();
    formula.skipSpaces();
    if (formula.error_.isEmpty() && formula.place_ < formula.text_.size())
        formula.fail(tr("\"%1\" was not expected.").arg(formula.text_.mid(formula.place_)));
    if (formula.error_.isEmpty() && !std::isfinite(value))
        formula.fail(tr("The result is too large."));
    if (!formula.error_.isEmpty())
        return {std::nullopt, formula.error_};
    return {value, QString()};
}

Formula::Formula(QString const& text, QChar decimalPoint) : text_(text) {
    if (decimalPoint == QLatin1Char(','))
        text_.replace(decimalPoint, QLatin1Char('.'));
}

double Formula::sum() {
    double value = product();
    while (error_.isEmpty()) {
        if (take('+'))
            value += product();
        else if (take('-'))
            value -= product();
        else
            break;
    }
    return value;
}

double Formula::product() {
    double value = factor();
    while (error_.isEmpty()) {
        if (take('*')) {
            value *= factor();
        } else if (take('/')) {
            double const divisor = factor();
            if (error_.isEmpty() && divisor == 0)
                return fail(tr("A division by zero has no result."));
            value /= divisor;
        } else {
            break;
        }
    }
    return value;
}

double Formula::factor() {
    bool isNegative = false;
    for (;;) {
        if (take('-'))
            isNegative = !isNegative;
        else if (!take('+'))
            break;
    }
    double const value = take('(') ? inParentheses() : number();
    return isNegative ? -value : value;
}

double Formula::inParentheses() {
    if (++depth_ > mostParentheses)
        return fail(tr("There are too many parentheses."));
    double const value = sum();
    --depth_;
    if (error_.isEmpty() && !take(')'))
        return fail(tr("A closing parenthesis is missing."));
    return value;
}

double Formula::number() {
    skipSpaces();
    if (QStringView(text_).mid(place_, 2).compare(QLatin1String("pi"), Qt::CaseInsensitive) == 0) {
        place_ += 2;
        return pi;
    }
    auto const isAt = [this](int place, char const* characters) {
        return place < text_.size() && QString::fromLatin1(characters).contains(text_.at(place));
    };
    constexpr char digits[] = "0123456789";
    int end = place_;
    while (isAt(end, "0123456789."))
        ++end;
    // An exponent, not the start of a name.
    if (end > place_ && isAt(end, "eE") && (isAt(end + 1, digits) || (isAt(end + 1, "+-") && isAt(end + 2, digits)))) {
        end += 2;
        while (isAt(end, digits))
            ++end;
    }
    auto const token = text_.mid(place_, end - place_);
    if (token.isEmpty())
        return fail(place_ < text_.size() ? tr("A number is missing before \"%1\".").arg(text_.mid(place_))
                                          : tr("A number is missing at the end."));
    bool isNumber = false;
    double const value = token.toDouble(&isNumber);
    if (!isNumber)
        return fail(tr("\"%1\" is no number.").arg(token));
    place_ = end;
    return value;
}

bool Formula::take(char wanted) {
    skipSpaces();
    bool const isNext = place_ < text_.size() && text_.at(place_) == QLatin1Char(wanted);
    if (isNext)
        ++place_;
    return isNext;
}

void Formula::skipSpaces() {
    while (place_ < text_.size() && text_.at(place_).isSpace())
        ++place_;
}

double Formula::fail(QString const& reason) {
    if (error_.isEmpty())
        error_ = reason;
    return 0;
}

} // namespace MoreInputs
