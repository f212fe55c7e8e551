#include "app/ShortDate.h"

#include "tests/QtPrinters.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <gtest/gtest.h>

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Day = std::optional<QDate>;

const QDate kFirstTwoDigitDay(1950, 1, 1);
const QDate kLastTwoDigitDay(2049, 12, 31);

QLocale LocaleNamed(const QString& name)
{
    const QLocale locale(name);
    EXPECT_EQ(locale.name(), name) << "an unknown locale falls back to another";
    return locale;
}

/// A locale and the order in which it writes day, month and year.
struct OrderedLocale {
    QString name;
    QString order;
};

const std::vector<OrderedLocale>& OrderedLocales()
{
    static const std::vector<OrderedLocale> locales{
        {u"en_US"_s, u"Mdy"_s}, {u"en_GB"_s, u"dMy"_s}, {u"de_DE"_s, u"dMy"_s}, {u"it_IT"_s, u"dMy"_s},
        {u"ja_JP"_s, u"yMd"_s}, {u"sv_SE"_s, u"yMd"_s}, {u"ar_EG"_s, u"dMy"_s}, {u"hu_HU"_s, u"yMd"_s},
    };
    return locales;
}

/// The parts of a day in an order with a separator, in Latin digits.
QString Typed(QDate day, const QString& order, QChar separator, int least, int yearDigits)
{
    QStringList parts;
    for (const QChar part : order) {
        if (part == u'y') {
            const int year = yearDigits == 4 ? day.year() : day.year() % 100;
            parts << u"%1"_s.arg(year, yearDigits, 10, QChar(u'0'));
        } else {
            parts << u"%1"_s.arg(part == u'M' ? day.month() : day.day(), least, 10, QChar(u'0'));
        }
    }
    return parts.join(separator);
}

struct ReadRow {
    QString text;
    Day day;
};

void ExpectRead(const QLocale& locale, const std::vector<ReadRow>& rows)
{
    for (const ReadRow& row : rows) {
        EXPECT_EQ(ParseShortDate(row.text, locale), row.day)
            << locale.name().toStdString() << " " << testing::PrintToString(row.text);
    }
}

void ExpectNoDates(const QLocale& locale, const QStringList& texts)
{
    for (const QString& text : texts) {
        EXPECT_EQ(ParseShortDate(text, locale), std::nullopt)
            << locale.name().toStdString() << " " << testing::PrintToString(text);
    }
}

} // namespace

TEST(ShortDate, TheFormatIsTheLocalesWithTheYearInFourDigits)
{
    struct FormatRow {
        QString locale;
        QString format;
    };
    const std::vector<FormatRow> rows{
        {u"en_US"_s, u"M/d/yyyy"_s},      {u"en_GB"_s, u"dd/MM/yyyy"_s},
        {u"de_DE"_s, u"dd.MM.yyyy"_s},    {u"it_IT"_s, u"dd/MM/yyyy"_s},
        {u"ja_JP"_s, u"yyyy/MM/dd"_s},    {u"sv_SE"_s, u"yyyy-MM-dd"_s},
        {u"hu_HU"_s, u"yyyy. MM. dd."_s}, {u"ar_EG"_s, u"d\u200F/M\u200F/yyyy"_s},
    };
    for (const FormatRow& row : rows) {
        EXPECT_EQ(ShortDateFormat(LocaleNamed(row.locale)), row.format) << row.locale.toStdString();
    }
}

TEST(ShortDate, ALocaleThatWritesTwoDigitsOfTheYearIsGivenFour)
{
    for (const QString& name : {u"en_US"_s, u"de_DE"_s, u"it_IT"_s}) {
        const QLocale locale = LocaleNamed(name);
        EXPECT_FALSE(locale.dateFormat(QLocale::ShortFormat).contains(u"yyyy"))
            << name.toStdString() << " no longer shows what this test is about";
        EXPECT_EQ(ShortDateFormat(locale).count(u'y'), 4) << name.toStdString();
    }
}

TEST(ShortDate, ADayIsWrittenAsItsLocaleWritesIt)
{
    struct WrittenRow {
        QString locale;
        QString march;
        QString december;
    };
    const std::vector<WrittenRow> rows{
        {u"en_US"_s, u"3/5/2024"_s, u"12/31/1999"_s},
        {u"en_GB"_s, u"05/03/2024"_s, u"31/12/1999"_s},
        {u"de_DE"_s, u"05.03.2024"_s, u"31.12.1999"_s},
        {u"it_IT"_s, u"05/03/2024"_s, u"31/12/1999"_s},
        {u"ja_JP"_s, u"2024/03/05"_s, u"1999/12/31"_s},
        {u"sv_SE"_s, u"2024-03-05"_s, u"1999-12-31"_s},
        {u"hu_HU"_s, u"2024. 03. 05."_s, u"1999. 12. 31."_s},
        {u"ar_EG"_s, u"٥\u200F/٣\u200F/٢٠٢٤"_s, u"٣١\u200F/١٢\u200F/١٩٩٩"_s},
    };
    for (const WrittenRow& row : rows) {
        const QLocale locale = LocaleNamed(row.locale);
        EXPECT_EQ(ShortDate(QDate(2024, 3, 5), locale), row.march);
        EXPECT_EQ(ShortDate(QDate(1999, 12, 31), locale), row.december);
        EXPECT_EQ(ParseShortDate(row.march, locale), Day(QDate(2024, 3, 5)));
        EXPECT_EQ(ParseShortDate(row.december, locale), Day(QDate(1999, 12, 31)));
    }
}

TEST(ShortDate, NoDayIsWrittenAsNothing)
{
    EXPECT_EQ(ShortDate(QDate(), LocaleNamed(u"en_US"_s)), u""_s);
    EXPECT_EQ(ShortDate(QDate(2023, 2, 29), LocaleNamed(u"de_DE"_s)), u""_s);
}

TEST(ShortDate, EveryDayOfAHundredYearsComesBack)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        const QLocale locale = LocaleNamed(named.name);
        for (QDate day = kFirstTwoDigitDay; day <= kLastTwoDigitDay; day = day.addDays(1)) {
            ASSERT_EQ(ParseShortDate(ShortDate(day, locale), locale), Day(day)) << named.name.toStdString();
        }
    }
}

TEST(ShortDate, EveryLocaleReadsWhatItWrites)
{
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    EXPECT_GT(locales.size(), 100);
    for (const QLocale& locale : locales) {
        for (const QDate day : {QDate(2024, 3, 5), QDate(1999, 12, 31), QDate(1950, 10, 10),
                                QDate(2049, 1, 20), QDate(100, 1, 1), QDate(9999, 12, 31)}) {
            EXPECT_EQ(ParseShortDate(ShortDate(day, locale), locale), Day(day))
                << locale.name().toStdString() << " " << testing::PrintToString(ShortDate(day, locale));
        }
    }
}

TEST(ShortDate, AnIsoDateIsReadInEveryLocale)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        ExpectRead(LocaleNamed(named.name), {{u"2024-03-05"_s, QDate(2024, 3, 5)},
                                             {u"2024-3-5"_s, QDate(2024, 3, 5)},
                                             {u"2024-02-29"_s, QDate(2024, 2, 29)},
                                             {u"1950-12-31"_s, QDate(1950, 12, 31)},
                                             {u"0100-01-01"_s, QDate(100, 1, 1)},
                                             {u"9999-12-31"_s, QDate(9999, 12, 31)}});
    }
}

TEST(ShortDate, PointDashAndSlashAreReadInTheLocalesOrder)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        const QLocale locale = LocaleNamed(named.name);
        for (const QChar separator : {u'.', u'-', u'/'}) {
            for (QDate day(2023, 1, 1); day <= QDate(2024, 12, 31); day = day.addDays(1)) {
                for (const int least : {1, 2}) {
                    const QString text = Typed(day, named.order, separator, least, 4);
                    ASSERT_EQ(ParseShortDate(text, locale), Day(day))
                        << named.name.toStdString() << " " << text.toStdString();
                }
            }
        }
    }
}

TEST(ShortDate, EveryTwoDigitYearIsOneOf1950To2049)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        const QLocale locale = LocaleNamed(named.name);
        for (int year = 1950; year <= 2049; ++year) {
            const QDate day(year, 2, 28);
            const QString text = Typed(day, named.order, u'/', 2, 2);
            ASSERT_EQ(ParseShortDate(text, locale), Day(day))
                << named.name.toStdString() << " " << text.toStdString();
        }
    }
}

TEST(ShortDate, TheTurnOfTheTwoDigitYearsLiesBetween49And50)
{
    ExpectRead(LocaleNamed(u"en_US"_s), {{u"1/2/00"_s, QDate(2000, 1, 2)},
                                         {u"1/2/49"_s, QDate(2049, 1, 2)},
                                         {u"1/2/50"_s, QDate(1950, 1, 2)},
                                         {u"1/2/99"_s, QDate(1999, 1, 2)},
                                         {u"1/2/0"_s, QDate(2000, 1, 2)},
                                         {u"1/2/7"_s, QDate(2007, 1, 2)}});
    ExpectRead(LocaleNamed(u"de_DE"_s), {{u"2.1.00"_s, QDate(2000, 1, 2)},
                                         {u"2.1.49"_s, QDate(2049, 1, 2)},
                                         {u"2.1.50"_s, QDate(1950, 1, 2)},
                                         {u"2.1.99"_s, QDate(1999, 1, 2)}});
    ExpectRead(LocaleNamed(u"ja_JP"_s), {{u"00/1/2"_s, QDate(2000, 1, 2)},
                                         {u"49/1/2"_s, QDate(2049, 1, 2)},
                                         {u"50/1/2"_s, QDate(1950, 1, 2)},
                                         {u"99/1/2"_s, QDate(1999, 1, 2)}});
}

TEST(ShortDate, ALeapDayWithATwoDigitYearFollowsTheFullYear)
{
    ExpectRead(LocaleNamed(u"en_GB"_s), {{u"29/2/00"_s, QDate(2000, 2, 29)},
                                         {u"29/2/96"_s, QDate(1996, 2, 29)},
                                         {u"29/2/48"_s, QDate(2048, 2, 29)},
                                         {u"29/2/49"_s, std::nullopt},
                                         {u"29/2/50"_s, std::nullopt},
                                         {u"29/2/52"_s, QDate(1952, 2, 29)}});
}

TEST(ShortDate, LeadingZerosMayBeLeftOut)
{
    ExpectRead(LocaleNamed(u"en_US"_s), {{u"03/05/2024"_s, QDate(2024, 3, 5)},
                                         {u"3/05/2024"_s, QDate(2024, 3, 5)},
                                         {u"03/5/2024"_s, QDate(2024, 3, 5)}});
    ExpectRead(LocaleNamed(u"de_DE"_s),
               {{u"5.3.2024"_s, QDate(2024, 3, 5)}, {u"5.03.2024"_s, QDate(2024, 3, 5)}});
    ExpectRead(LocaleNamed(u"sv_SE"_s), {{u"2024-3-5"_s, QDate(2024, 3, 5)}});
}

TEST(ShortDate, BlanksAroundADateAreSkipped)
{
    ExpectRead(LocaleNamed(u"en_US"_s), {{u" 3/5/2024"_s, QDate(2024, 3, 5)},
                                         {u"3/5/2024  "_s, QDate(2024, 3, 5)},
                                         {u"3 / 5 / 2024"_s, QDate(2024, 3, 5)}});
}

TEST(ShortDate, TheTrailingPointMayStandOrNot)
{
    ExpectRead(LocaleNamed(u"hu_HU"_s), {{u"2024. 03. 05."_s, QDate(2024, 3, 5)},
                                         {u"2024. 3. 5."_s, QDate(2024, 3, 5)},
                                         {u"2024. 03. 05"_s, QDate(2024, 3, 5)},
                                         {u"2024.03.05."_s, QDate(2024, 3, 5)},
                                         {u"24. 03. 05."_s, QDate(2024, 3, 5)},
                                         {u"50. 03. 05."_s, QDate(1950, 3, 5)}});
}

TEST(ShortDate, ALocaleWithItsOwnDigitsReadsThemAndTheLatinOnes)
{
    ExpectRead(LocaleNamed(u"ar_EG"_s), {{u"٥/٣/٢٠٢٤"_s, QDate(2024, 3, 5)},
                                         {u"5/3/2024"_s, QDate(2024, 3, 5)},
                                         {u"5\u200F/3\u200F/2024"_s, QDate(2024, 3, 5)},
                                         {u"05-03-24"_s, QDate(2024, 3, 5)},
                                         {u"٢٠٢٤-٠٣-٠٥"_s, QDate(2024, 3, 5)},
                                         {u"٣١/٢/٢٠٢٤"_s, std::nullopt}});
}

TEST(ShortDate, DigitsOutsideTheBasicPlaneAreRead)
{
    const QLocale locale = LocaleNamed(u"ccp_BD"_s);
    const QString written = ShortDate(QDate(2024, 3, 5), locale);
    EXPECT_EQ(written, u"\U0001113B/\U00011139/\U00011138\U00011136\U00011138\U0001113A"_s);
    EXPECT_EQ(ParseShortDate(written, locale), Day(QDate(2024, 3, 5)));
}

TEST(ShortDate, DaysThatDoNotExistAreRefused)
{
    ExpectNoDates(LocaleNamed(u"en_US"_s),
                  {u"2/29/2023"_s, u"2/29/1900"_s, u"2/29/2100"_s, u"2/30/2024"_s, u"4/31/2024"_s,
                   u"6/31/2024"_s, u"9/31/2024"_s, u"11/31/2024"_s, u"1/32/2024"_s, u"13/1/2024"_s,
                   u"0/1/2024"_s, u"1/0/2024"_s, u"0/0/0000"_s, u"99/99/9999"_s});
    ExpectNoDates(LocaleNamed(u"en_GB"_s),
                  {u"29/02/2023"_s, u"31/04/2024"_s, u"1/13/2024"_s, u"32/1/2024"_s});
    ExpectNoDates(LocaleNamed(u"de_DE"_s),
                  {u"29.02.2023"_s, u"31.04.2024"_s, u"1.13.2024"_s, u"00.01.2024"_s});
    ExpectNoDates(LocaleNamed(u"ja_JP"_s),
                  {u"2023/02/29"_s, u"2024/04/31"_s, u"2024/13/01"_s, u"2024/00/01"_s});
    ExpectNoDates(LocaleNamed(u"sv_SE"_s),
                  {u"2023-02-29"_s, u"2024-04-31"_s, u"2024-13-01"_s, u"2024-01-00"_s});
}

TEST(ShortDate, TheYearLiesBetween100And9999)
{
    ExpectRead(LocaleNamed(u"en_US"_s), {{u"1/1/0100"_s, QDate(100, 1, 1)},
                                         {u"12/31/9999"_s, QDate(9999, 12, 31)},
                                         {u"12/31/0099"_s, std::nullopt},
                                         {u"1/1/0001"_s, std::nullopt},
                                         {u"1/1/0000"_s, std::nullopt},
                                         {u"1/1/10000"_s, std::nullopt}});
}

TEST(ShortDate, AYearOfThreeOrFiveDigitsIsRefused)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        ExpectNoDates(LocaleNamed(named.name),
                      {u"1/2/024"_s, u"1/2/100"_s, u"1/2/999"_s, u"1/2/20240"_s, u"1/2/02024"_s,
                       u"20240-01-02"_s, u"02024-01-02"_s, u"024-01-02"_s, u"99999/1/2"_s});
    }
}

TEST(ShortDate, ADayOrMonthOfThreeDigitsIsRefused)
{
    ExpectNoDates(LocaleNamed(u"en_US"_s),
                  {u"001/2/2024"_s, u"1/002/2024"_s, u"2024-001-02"_s, u"2024-01-002"_s});
    ExpectNoDates(LocaleNamed(u"de_DE"_s), {u"001.2.2024"_s, u"1.002.2024"_s});
}

TEST(ShortDate, RubbishIsNoDateInAnyLocale)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        ExpectNoDates(LocaleNamed(named.name), {QString(),
                                                u""_s,
                                                u" "_s,
                                                u"."_s,
                                                u"//"_s,
                                                u"--"_s,
                                                u"..."_s,
                                                u"5"_s,
                                                u"5/3"_s,
                                                u"2024"_s,
                                                u"5/3/"_s,
                                                u"/5/3"_s,
                                                u"5/3/20/24"_s,
                                                u"1/2/3/4"_s,
                                                u"20240305"_s,
                                                u"today"_s,
                                                u"abc/de/fghi"_s,
                                                u"d/M/yyyy"_s,
                                                u"5/3/2024x"_s,
                                                u"x5/3/2024"_s,
                                                u"5/three/2024"_s,
                                                u"5,3,2024"_s,
                                                u"5:3:2024"_s,
                                                u"5+3+2024"_s,
                                                u"5/3/2024 10:00"_s,
                                                u"5/3/2O24"_s,
                                                u"²/3/2024"_s,
                                                u"½/3/2024"_s,
                                                u"Ⅴ/Ⅲ/2024"_s,
                                                u"5\U0001F4C53\U0001F4C52024"_s,
                                                QString(1, QChar(0)),
                                                QString(3, QChar(0xD835)),
                                                u"2024-03-05T00:00:00"_s});
    }
}

TEST(ShortDate, VeryLongTextsAreRefused)
{
    for (const OrderedLocale& named : OrderedLocales()) {
        const QLocale locale = LocaleNamed(named.name);
        for (const qsizetype length : {10, 11, 20, 1000, 100000}) {
            const QString digits(length, u'1');
            EXPECT_EQ(ParseShortDate(digits, locale), std::nullopt) << length;
            EXPECT_EQ(ParseShortDate(QString(digits + u"/1/2024"_s), locale), std::nullopt) << length;
            EXPECT_EQ(ParseShortDate(QString(u"1/1/"_s + digits), locale), std::nullopt) << length;
            EXPECT_EQ(ParseShortDate(QString(u"1/"_s + digits + u"/2024"_s), locale), std::nullopt) << length;
            EXPECT_EQ(ParseShortDate(QString(length, u'/'), locale), std::nullopt) << length;
            EXPECT_EQ(ParseShortDate(u"1/"_s.repeated(length), locale), std::nullopt) << length;
            EXPECT_EQ(ParseShortDate(QString(length, u'x'), locale), std::nullopt) << length;
        }
    }
}

TEST(ShortDate, APartOfALargerTextIsReadAlone)
{
    const QString line = u"draw 3/5/2024 Wed"_s;
    EXPECT_EQ(ParseShortDate(QStringView(line).mid(5, 8), LocaleNamed(u"en_US"_s)), Day(QDate(2024, 3, 5)));
    EXPECT_EQ(ParseShortDate(QStringView(line), LocaleNamed(u"en_US"_s)), std::nullopt);
}

TEST(ShortDate, ADayWithinRangeIsOneThatExists)
{
    EXPECT_EQ(DateWithinRange(2024, 2, 29), Day(QDate(2024, 2, 29)));
    EXPECT_EQ(DateWithinRange(100, 1, 1), Day(QDate(100, 1, 1)));
    EXPECT_EQ(DateWithinRange(9999, 12, 31), Day(QDate(9999, 12, 31)));
    EXPECT_EQ(DateWithinRange(99, 12, 31), std::nullopt);
    EXPECT_EQ(DateWithinRange(10000, 1, 1), std::nullopt);
    EXPECT_EQ(DateWithinRange(0, 1, 1), std::nullopt);
    EXPECT_EQ(DateWithinRange(-2024, 1, 1), std::nullopt);
    EXPECT_EQ(DateWithinRange(2023, 2, 29), std::nullopt);
    EXPECT_EQ(DateWithinRange(2024, 0, 1), std::nullopt);
    EXPECT_EQ(DateWithinRange(2024, 13, 1), std::nullopt);
    EXPECT_EQ(DateWithinRange(2024, 1, 0), std::nullopt);
    EXPECT_EQ(DateWithinRange(2024, 1, 32), std::nullopt);
    EXPECT_EQ(DateWithinRange(2024, -1, -1), std::nullopt);
}
