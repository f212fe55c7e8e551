#include "app/TextPictures.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace {

struct Picture {
    qsizetype leastWhole = 0; // digits always written before the point
    qsizetype leastDecimals = 0;
    qsizetype decimals = 0;
    bool point = false;
    bool grouped = false;
};

Picture ReadPicture(QStringView text)
{
    Picture picture;
    for (const QChar ch : text) {
        if (ch == u'.') {
            picture.point = true;
        } else if (ch == u',') {
            picture.grouped = true;
        } else if (picture.point) {
            ++picture.decimals;
            if (ch == u'0') {
                picture.leastDecimals = picture.decimals;
            }
        } else if (ch == u'0' || picture.leastWhole > 0) {
            ++picture.leastWhole;
        }
    }
    return picture;
}

/// The digits of a rounded decimal number: digits[0] has the weight 10^(wholeDigits - 1).
struct Digits {
    QByteArray digits;
    qsizetype wholeDigits = 0;
};

constexpr int kCertainDigits = 15;

/// The fifteen digits that a double holds for certain, so that 2.675 is a half although its binary neighbour
/// lies below it.
Digits DigitsOf(double magnitude)
{
    constexpr double kBeyondCertain = 1e15;
    if (magnitude < kBeyondCertain && magnitude == std::floor(magnitude)) { // nearly everything that is shown
        const QByteArray whole = QByteArray::number(static_cast<qint64>(magnitude));
        return {whole, whole.size()};
    }
    const QByteArray scientific = QByteArray::number(magnitude, 'e', kCertainDigits - 1);
    const qsizetype mark = scientific.indexOf('e');
    Digits result;
    result.digits = scientific.left(mark);
    result.digits.remove(1, 1); // the point behind the first digit
    result.wholeDigits = scientific.mid(mark + 1).toInt() + 1;

    if (result.wholeDigits <= 0) {
        result.digits.prepend(QByteArray(1 - result.wholeDigits, '0'));
        result.wholeDigits = 1;
    }
    return result;
}

Digits DigitsOf(Currency amount)
{
    constexpr qsizetype kPlaces = 4;
    const auto count = static_cast<quint64>(amount.TenThousandths());
    Digits result;
    result.digits =
        QByteArray::number(amount < Currency() ? 0 - count : count).rightJustified(kPlaces + 1, '0');
    result.wholeDigits = result.digits.size() - kPlaces;
    return result;
}

/// Rounds to @p decimals places on the decimal digits.
Digits RoundHalfAway(Digits result, qsizetype decimals)
{
    const qsizetype kept = result.wholeDigits + decimals;
    if (kept >= result.digits.size()) {
        result.digits.append(QByteArray(kept - result.digits.size(), '0'));
        return result;
    }
    const bool up = result.digits.at(kept) >= '5';
    result.digits.truncate(kept);
    if (up) {
        qsizetype place = kept - 1;
        while (place >= 0 && result.digits.at(place) == '9') {
            result.digits[place--] = '0';
        }
        if (place >= 0) {
            ++result.digits[place];
        } else {
            result.digits.prepend('1');
            ++result.wholeDigits;
        }
    }
    return result;
}

QString Write(const Digits& exact, bool negative, QStringView picture)
{
    const Picture wanted = ReadPicture(picture);
    const Digits rounded = RoundHalfAway(exact, wanted.decimals);

    QByteArray whole = rounded.digits.left(rounded.wholeDigits);
    const qsizetype leading = std::distance(
        whole.cbegin(), std::find_if(whole.cbegin(), whole.cend(), [](char digit) { return digit != '0'; }));
    whole.remove(0, leading);
    if (whole.size() < wanted.leastWhole) {
        whole.prepend(QByteArray(wanted.leastWhole - whole.size(), '0'));
    }
    if (wanted.grouped) {
        for (qsizetype place = whole.size() - 3; place > 0; place -= 3) {
            whole.insert(place, ',');
        }
    }
    QByteArray decimals = rounded.digits.mid(rounded.wholeDigits);
    while (decimals.size() > wanted.leastDecimals && decimals.endsWith('0')) {
        decimals.chop(1);
    }

    const bool zero =
        std::all_of(rounded.digits.cbegin(), rounded.digits.cend(), [](char d) { return d == '0'; });
    QByteArray result = (negative && !zero) ? QByteArray("-") : QByteArray();
    result += whole;
    if (wanted.point) {
        result += '.' + decimals;
    }
    return QString::fromLatin1(result);
}

bool IsDigit(QChar ch)
{
    return ch >= u'0' && ch <= u'9';
}

/// The value of a text of nothing but figures, so few that a double holds it; empty for other texts.
std::optional<qint64> PlainWholeNumber(QStringView text)
{
    if (text.isEmpty() || text.size() > kCertainDigits || !std::all_of(text.begin(), text.end(), IsDigit)) {
        return std::nullopt;
    }
    qint64 value = 0;
    for (const QChar digit : text) {
        value = value * 10 + (digit.unicode() - u'0');
    }
    return value;
}

/// The double nearest to a decimal number, the largest one for all beyond it.
double NearestDouble(const QByteArray& number)
{
    bool inRange = false;
    const double value = number.toDouble(&inRange);
    if (inRange && std::isfinite(value)) {
        return value;
    }
    // toDouble gives 0 or infinity here, by the version of Qt; a stream tells too large from too small.
    std::istringstream stream(number.toStdString());
    stream.imbue(std::locale::classic());
    double nearest = 0;
    stream >> nearest;
    return std::clamp(nearest, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
}

} // namespace

QString Format(double value, QStringView picture)
{
    if (!std::isfinite(value)) {
        return {};
    }
    return Write(DigitsOf(std::abs(value)), std::signbit(value), picture);
}

QString Format(Currency amount, QStringView picture)
{
    return Write(DigitsOf(amount), amount < Currency(), picture);
}

QString Format(const QString& text, QStringView picture)
{
    return text.trimmed().isEmpty() ? QString() : Format(Val(text), picture);
}

QString Str(double value)
{
    const QString digits = QString::number(value, 'g', kCertainDigits);
    return value < 0 ? digits : u' ' + digits;
}

QByteArray LeadingNumber(QStringView text)
{
    QByteArray number;
    bool point = false;
    bool digit = false;
    qsizetype lastGood = 0; // the number up to here is complete
    enum class Place { Mantissa, ExponentSign, Exponent } place = Place::Mantissa;
    for (const QChar ch : text) {
        if (ch.isSpace()) {
            continue;
        }
        const bool isDigit = IsDigit(ch);
        const bool sign = ch == u'+' || ch == u'-';
        if (isDigit) {
            digit = true;
            if (place == Place::ExponentSign) {
                place = Place::Exponent;
            }
        } else if (place == Place::Mantissa && ch == u'.' && !point) {
            point = true;
        } else if (place == Place::Mantissa && digit && (ch == u'e' || ch == u'E')) {
            place = Place::ExponentSign;
        } else if (sign && (number.isEmpty() || number.endsWith('e') || number.endsWith('E'))) {
            // a sign stands only before the number or its exponent
        } else {
            break;
        }
        number.append(ch.toLatin1());
        if (isDigit) {
            lastGood = number.size();
        }
    }
    number.truncate(lastGood);
    return number;
}

double Val(QStringView text)
{
    if (const std::optional<qint64> whole = PlainWholeNumber(text)) {
        return static_cast<double>(*whole);
    }
    const QByteArray number = LeadingNumber(text);
    return number.isEmpty() ? 0 : NearestDouble(number);
}

QString RightJustify(const QString& text, int width)
{
    return text.rightJustified(std::max(width, 0), u' ', true);
}

std::optional<qint16> ToInt16(double value)
{
    // The comparisons come first: they also turn away what is not a number.
    if (!(value >= -32769.0 && value <= 32768.0)) {
        return std::nullopt;
    }
    const double lower = std::floor(value);
    const double above = value - lower;
    double rounded = above > 0.5 ? lower + 1 : lower;
    if (above == 0.5 && std::fmod(lower, 2.0) != 0.0) {
        rounded = lower + 1; // halves go to the even neighbour, as everywhere a 16-bit value is made
    }
    if (rounded < std::numeric_limits<qint16>::min() || rounded > std::numeric_limits<qint16>::max()) {
        return std::nullopt;
    }
    return static_cast<qint16>(rounded);
}
