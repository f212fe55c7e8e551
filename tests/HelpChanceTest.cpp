#include "help/HelpBook.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

// Every figure on the page about chance is worked out here again.

namespace {

constexpr int kDrawsAYear = 104;
constexpr int kDrawsOfTheSample = 1200;

QString Grouped(qint64 number)
{
    return QLocale(QLocale::English).toString(number);
}

QString Grouped(double number, int decimals)
{
    return QLocale(QLocale::English).toString(number, 'f', decimals);
}

/// How many sets of @p picks there are out of @p numbers.
qint64 Ways(int numbers, int picks)
{
    qint64 ways = 1;
    for (int i = 1; i <= picks; ++i) {
        ways = ways * (numbers - picks + i) / i; // always a whole number
    }
    return ways;
}

/// Sets of 6 out of 49 that have so many of the six drawn numbers.
qint64 SetsWith(int matches)
{
    return Ways(6, matches) * Ways(43, 6 - matches);
}

QString TextOfPage()
{
    QFile file(QStringLiteral(QUILLABY_HELP "/chance.html"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    HelpPage page;
    const Outcome read = ReadHelpPage(file.readAll(), page);
    EXPECT_TRUE(read.ok) << read.reason.toStdString();
    return page.text;
}

/// The page, from which each sentence that was worked out is crossed out.
class HelpChance : public testing::Test
{
protected:
    void Says(const QString& sentence)
    {
        const qsizetype place = m_text.indexOf(sentence);
        EXPECT_GE(place, 0) << sentence.toStdString();
        if (place >= 0) {
            m_text.replace(place, sentence.size(), u"(seen)"_s);
        }
    }

    void SaysTheRow(const QString& row, qint64 sets)
    {
        const QString odds = Grouped(double(Ways(49, 6)) / double(sets), 1);
        Says(u"\n%1 %2 %3"_s.arg(row, Grouped(sets), odds));
    }

    void SaysTheTables();
    void SaysTheFormula();
    void SaysTheWaiting();
    void SaysTheScatter();
    void SaysTheCost();

    QString m_text = TextOfPage();
};

void HelpChance::SaysTheTables()
{
    // Not only whole lines are crossed out, so a table goes before what follows it on the page.
    for (const auto& [picks, numbers] : std::initializer_list<std::pair<int, int>>{{5, 35},
                                                                                   {5, 39},
                                                                                   {6, 40},
                                                                                   {6, 42},
                                                                                   {7, 35},
                                                                                   {6, 45},
                                                                                   {6, 49},
                                                                                   {6, 53},
                                                                                   {6, 59},
                                                                                   {6, 60},
                                                                                   {7, 50}}) {
        Says(u"%1 out of %2 %3\n"_s.arg(picks).arg(numbers).arg(Grouped(Ways(numbers, picks))));
    }
    Says(u"5 out of 50, and 2 out of 12 %1\n"_s.arg(Grouped(Ways(50, 5) * Ways(12, 2))));
    Says(u"5 out of 69, and 1 out of 26 %1\n"_s.arg(Grouped(Ways(69, 5) * 26)));
    constexpr int kBonus = 1; // one ball of the 43 that are left
    constexpr int kOthers = 42;
    SaysTheRow(u"all 6"_s, SetsWith(6));
    SaysTheRow(u"5 and the bonus number"_s, Ways(6, 5) * kBonus);
    SaysTheRow(u"5 without the bonus number"_s, Ways(6, 5) * kOthers);
    SaysTheRow(u"4"_s, SetsWith(4));
    SaysTheRow(u"3"_s, SetsWith(3));
}

void HelpChance::SaysTheFormula()
{
    const qint64 ordered = 49LL * 48 * 47 * 46 * 45 * 44;
    EXPECT_EQ(ordered / 720, Ways(49, 6));
    Says(u"49 x 48 x 47 x 46 x 45 x 44 ways"_s);
    Says(u"6 x 5 x 4 x 3 x 2 x 1 = %1 orders"_s.arg(6 * 5 * 4 * 3 * 2));
    Says(u"(49 x 48 x 47 x 46 x 45 x 44) / (6 x 5 x 4 x 3 x 2 x 1) = %1"_s.arg(Grouped(Ways(49, 6))));
    Says(u"5 out of 50 gives %1 ways, 2 out of 12 gives %2, and together that is %3."_s.arg(
        Grouped(Ways(50, 5)), Grouped(Ways(12, 2)), Grouped(Ways(50, 5) * Ways(12, 2))));
}

void HelpChance::SaysTheWaiting()
{
    const double least = double(SetsWith(3) + SetsWith(4) + SetsWith(5) + SetsWith(6)) / double(Ways(49, 6));
    Says(u"At least three numbers come 1 time in %1."_s.arg(Grouped(1 / least, 1)));
    Says(u"In the 1,200 draws of Sample.Lto one expects that %1 times"_s.arg(
        Grouped(kDrawsOfTheSample * least, 1)));
    Says(u"in each of %1 draws a year"_s.arg(kDrawsAYear));
    Says(u"once in %1 years on average"_s.arg(Grouped(double(Ways(49, 6)) / kDrawsAYear, 0)));
    constexpr int kYears = 50;
    const double never = std::pow(1 - 1 / double(Ways(49, 6)), kYears * kDrawsAYear);
    Says(u"for 50 years, %1 draws, wins it with a chance of 1 in %2."_s.arg(Grouped(kYears * kDrawsAYear),
                                                                            Grouped(1 / (1 - never), 0)));
}

void HelpChance::SaysTheScatter()
{
    constexpr double kShare = 6.0 / 49;
    const double mean = kDrawsOfTheSample * kShare;
    const double deviation = std::sqrt(mean * (1 - kShare));
    Says(u"In 1,200 draws of 6 out of 49 each number comes %1 times on average"_s.arg(Grouped(mean, 1)));
    Says(u"by up to twice %1 one way"_s.arg(Grouped(deviation, 1)));
    EXPECT_LT(std::abs(175 - mean), 3 * deviation) << "what the sample shows is no wonder";
    EXPECT_LT(std::abs(122 - mean), 3 * deviation);
    constexpr int kAway = 25;
    const double away = std::pow(1 - kShare, kAway);
    Says(u"stays away for %1 draws happens 1 time in %2."_s.arg(kAway).arg(Grouped(1 / away, 1)));
    Says(u"With 49 numbers one expects to find %1 of them"_s.arg(Grouped(49 * away, 1)));
}

void HelpChance::SaysTheCost()
{
    constexpr double kTicket = 2;
    constexpr double kBack = 0.5;
    constexpr int kYears = 30;
    Says(u"a ticket for %1 returns %2 on average"_s.arg(Grouped(kTicket, 2), Grouped(kTicket * kBack, 2)));
    const double paid = kDrawsAYear * kTicket;
    Says(u"that is %1 paid a year and an average loss of %2;"_s.arg(Grouped(paid, 2),
                                                                    Grouped(paid * (1 - kBack), 2)));
    Says(u"over 30 years it is %1 paid and %2 lost."_s.arg(Grouped(kYears * paid, 2),
                                                           Grouped(kYears * paid * (1 - kBack), 2)));
}

} // namespace

TEST_F(HelpChance, EveryFigureOnThePageIsRight)
{
    SaysTheTables();
    SaysTheFormula();
    SaysTheWaiting();
    SaysTheScatter();
    SaysTheCost();

    // Nothing larger is left but what other tests look at: the sample's own counts.
    Says(u"you find it 22 times"_s);
    Says(u"number 43 came 175 times and number 17 came 122 times"_s);
    static const QRegularExpression kFigures(u"\\d[\\d,]*\\.\\d|\\d{1,3}(,\\d{3})+|\\d{3,}"_s);
    QRegularExpressionMatchIterator left = kFigures.globalMatch(m_text);
    while (left.hasNext()) {
        const QRegularExpressionMatch figure = left.next();
        ADD_FAILURE() << figure.captured().toStdString()
                      << " was not worked out: " << m_text.mid(figure.capturedStart() - 40, 80).toStdString();
    }
}

TEST(HelpChanceFigures, ThePrizesOfSixOutOfFortyNineAndTheBlanksAreAllSets)
{
    qint64 all = 0;
    for (int matches = 0; matches <= 6; ++matches) {
        all += SetsWith(matches);
    }
    EXPECT_EQ(all, Ways(49, 6));
    EXPECT_EQ(SetsWith(5), 252 + 6);
}
