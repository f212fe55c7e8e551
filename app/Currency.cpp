#include "app/Currency.h"

#include "app/TextPictures.h"

#include <QByteArray>

#include <algorithm>
#include <limits>

namespace {

constexpr int kDecimals = 4;
constexpr quint64 kLargestMagnitude = quint64(std::numeric_limits<qint64>::max());

/// A decimal number taken apart: 0.digits times 10 to the power of wholeDigits.
struct Decimal {
    bool negative = false;
    QByteArray digits;
    qint64 wholeDigits = 0;
};

/// An exponent beyond all amounts is as good as any other such.
qint64 Exponent(const QByteArray& text)
{
    constexpr int kFar = 1'000'000'000;
    bool fits = false;
    const int exponent = text.toInt(&fits);
    if (fits) {
        return std::clamp(exponent, -kFar, kFar);
    }
    return text.startsWith('-') ? -kFar : kFar;
}

/// @param number  as LeadingNumber gives it, not empty
Decimal TakeApart(const QByteArray& number)
{
    Decimal decimal;
    const qsizetype mark = number.toLower().indexOf('e');
    QByteArray mantissa = mark < 0 ? number : number.first(mark);
    decimal.negative = mantissa.startsWith('-');
    if (mantissa.startsWith('-') || mantissa.startsWith('+')) {
        mantissa.remove(0, 1);
    }
    const qsizetype point = mantissa.indexOf('.');
    decimal.wholeDigits = point < 0 ? mantissa.size() : point;
    if (point >= 0) {
        mantissa.remove(point, 1);
    }
    const auto first =
        std::find_if(mantissa.cbegin(), mantissa.cend(), [](char digit) { return digit != '0'; });
    const qsizetype zeros = std::distance(mantissa.cbegin(), first);
    decimal.digits = mantissa.sliced(zeros);
    decimal.wholeDigits += (mark < 0 ? 0 : Exponent(number.sliced(mark + 1))) - zeros;
    return decimal;
}

/// Whether what is left out rounds @p kept up: more than half, or half beside an odd number.
bool RoundsUp(quint64 kept, const QByteArray& leftOut)
{
    if (leftOut.isEmpty() || leftOut.front() != '5') {
        return !leftOut.isEmpty() && leftOut.front() > '5';
    }
    const bool justHalf =
        std::all_of(leftOut.cbegin() + 1, leftOut.cend(), [](char digit) { return digit == '0'; });
    return !justHalf || kept % 2 != 0;
}

} // namespace

std::optional<Currency> Currency::FromText(QStringView text)
{
    const QByteArray number = LeadingNumber(text);
    if (number.isEmpty()) {
        return Currency();
    }
    const Decimal decimal = TakeApart(number);
    const qint64 places = decimal.wholeDigits + kDecimals; // digits that count ten-thousandths
    constexpr qint64 kMostPlaces = std::numeric_limits<quint64>::digits10;
    if (decimal.digits.isEmpty() || places < 0) {
        return Currency();
    }
    if (places > kMostPlaces) {
        return std::nullopt;
    }
    const QByteArray kept = decimal.digits.left(places).leftJustified(places, '0');
    quint64 magnitude = kept.isEmpty() ? 0 : kept.toULongLong();
    magnitude += RoundsUp(magnitude, decimal.digits.mid(places)) ? 1 : 0;
    if (magnitude > kLargestMagnitude + (decimal.negative ? 1 : 0)) {
        return std::nullopt;
    }
    return FromTenThousandths(static_cast<qint64>(decimal.negative ? 0 - magnitude : magnitude));
}

QString Currency::Plain() const
{
    const bool negative = m_tenThousandths < 0;
    const auto count = static_cast<quint64>(m_tenThousandths);
    QString text = QString::number(negative ? 0 - count : count).rightJustified(kDecimals + 1, u'0');
    text.insert(text.size() - kDecimals, u'.');
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return negative ? u'-' + text : text;
}

std::optional<Currency> Sum(Currency one, Currency other)
{
    const qint64 a = one.TenThousandths();
    const qint64 b = other.TenThousandths();
    constexpr qint64 kMost = std::numeric_limits<qint64>::max();
    constexpr qint64 kLeast = std::numeric_limits<qint64>::min();
    if (b > 0 ? a > kMost - b : a < kLeast - b) {
        return std::nullopt;
    }
    return Currency::FromTenThousandths(a + b);
}
