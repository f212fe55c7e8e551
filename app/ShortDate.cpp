#include "app/ShortDate.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The three parts in the order in which the format names them, e.g. "dMy"; shorter when one is not a number.
QString PartOrder(const QString& format)
{
    QString order;
    bool quoted = false;
    for (const QChar ch : format) {
        if (ch == u'\'') {
            quoted = !quoted;
        } else if (!quoted && (ch == u'd' || ch == u'M' || ch == u'y') && !order.contains(ch)) {
            order += ch;
        }
    }
    return order;
}

bool IsSeparator(char32_t codePoint, const QString& format)
{
    if (QChar::requiresSurrogates(codePoint)) {
        return false;
    }
    const QChar ch(codePoint);
    constexpr QStringView kAlways = u".-/ ";
    const bool letter = ch == u'd' || ch == u'M' || ch == u'y' || ch == u'\'';
    return kAlways.contains(ch) || ch.isSpace() || (!letter && format.contains(ch));
}

struct NumberGroup {
    int value = 0;
    int digits = 0;
};

/// The groups of digits of the text when it is three of them with separators between, else fewer than three.
int SplitGroups(QStringView text, const QString& format, std::array<NumberGroup, 3>& groups)
{
    int count = 0;
    bool inGroup = false;
    // Any script's digits: some locales write dates with their own, a few with ones of two code units.
    for (const char32_t ch : text.toUcs4()) {
        if (QChar::isDigit(ch)) {
            if (!inGroup) {
                if (++count > 3) {
                    return 0;
                }
                inGroup = true;
            }
            NumberGroup& group = groups.at(static_cast<std::size_t>(count - 1));
            if (++group.digits > 4) {
                return 0;
            }
            group.value = group.value * 10 + QChar::digitValue(ch);
        } else if (QChar::category(ch) == QChar::Other_Format || IsSeparator(ch, format)) {
            inGroup = false;
        } else {
            return 0;
        }
    }
    return count;
}

std::optional<int> FullYear(const NumberGroup& year)
{
    if (year.digits == 4) {
        return year.value;
    }
    if (year.digits > 2) {
        return std::nullopt;
    }
    return year.value >= 50 ? 1900 + year.value : 2000 + year.value;
}

} // namespace

QString ShortDateFormat(const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (format.contains(u"MMM")) {
        return u"yyyy-MM-dd"_s; // a date box takes digits and signs, so a month in words could not be typed
    }
    if (!format.contains(u"yyyy")) {
        format.replace(u"yy"_s, u"yyyy"_s);
    }
    return format;
}

QString ShortDate(QDate date, const QLocale& locale)
{
    return date.isValid() ? locale.toString(date, ShortDateFormat(locale)) : QString();
}

std::optional<QDate> DateWithinRange(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (!date.isValid() || year < 100 || year > 9999) {
        return std::nullopt;
    }
    return date;
}

std::optional<QDate> ParseShortDate(QStringView text, const QLocale& locale)
{
    const QString format = ShortDateFormat(locale);
    std::array<NumberGroup, 3> groups;
    if (SplitGroups(text, format, groups) != 3) {
        return std::nullopt;
    }
    QString order = PartOrder(format);
    if (groups[0].digits == 4 || order.size() != 3) {
        order = u"yMd"_s;
    }
    NumberGroup year;
    int month = 0;
    int day = 0;
    for (qsizetype i = 0; i < 3; ++i) {
        const NumberGroup& group = groups.at(static_cast<std::size_t>(i));
        if (order.at(i) == u'y') {
            year = group;
        } else if (group.digits > 2) {
            return std::nullopt;
        } else if (order.at(i) == u'M') {
            month = group.value;
        } else {
            day = group.value;
        }
    }
    const std::optional<int> fullYear = FullYear(year);
    return fullYear ? DateWithinRange(*fullYear, month, day) : std::nullopt;
}
