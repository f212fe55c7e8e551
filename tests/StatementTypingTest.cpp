#include "invest/StatementTyping.h"

#include "tests/Statements.h"

using namespace Qt::StringLiterals;

// Beside Typed, where GoogleTest looks for it.
static void PrintTo(Typed result, std::ostream* out)
{
    *out << "result " << static_cast<int>(result);
}

namespace {

class StatementTypingTest : public testing::Test
{
protected:
    static constexpr StatementPlace kText{.row = 1, .column = StatementPlace::kDescription};
    static constexpr StatementPlace kAmount{.row = 1, .column = StatementPlace::kAmount};

    /// Types key by key. @return the last result
    Typed Keys(const StatementPlace& place, const QString& keys)
    {
        Typed result = Typed::Nothing;
        for (const QChar key : keys) {
            result = m_typing.Type(place, QString(key));
        }
        return result;
    }
    [[nodiscard]] std::optional<Currency> Amount() const { return m_rows.at(1).amount; }
    [[nodiscard]] QString Text() const { return m_rows.at(1).description; }

    InvestmentTable m_rows;
    StatementTyping m_typing{m_rows};
};

} // namespace

TEST_F(StatementTypingTest, ADescriptionGrowsAtItsEnd)
{
    EXPECT_EQ(Keys(kText, u"Tickets, 4 draws (-5)"_s), Typed::Changed);
    EXPECT_EQ(Text(), u"Tickets, 4 draws (-5)"_s);
    EXPECT_EQ(Amount(), std::nullopt);
    EXPECT_EQ(Keys({.row = 105}, u"last"_s), Typed::Changed);
    EXPECT_EQ(m_rows.at(105).description, u"last"_s);
}

TEST_F(StatementTypingTest, ADescriptionMayHave500Characters)
{
    EXPECT_EQ(Keys(kText, QString(500, u'x')), Typed::Changed);
    EXPECT_EQ(Text(), QString(500, u'x'));
}

TEST_F(StatementTypingTest, ADescriptionTakesWhatAFileCanHold)
{
    EXPECT_EQ(Keys(kText, u" éüß£ÿ\u00A0'#,"_s), Typed::Changed);
    EXPECT_EQ(Text(), u" éüß£ÿ\u00A0'#,"_s);
    for (const QString& key :
         {u"€"_s, u"ł"_s, u"„"_s, u"\U0001F600"_s, u"\u0100"_s, u"\t"_s, u"\u007F"_s, u"\u0085"_s}) {
        EXPECT_EQ(m_typing.Type(kText, key), Typed::Refused) << key.toStdString();
    }
    EXPECT_EQ(Text(), u" éüß£ÿ\u00A0'#,"_s);
}

TEST_F(StatementTypingTest, ADoubleQuoteIsPassedOverInBothColumns)
{
    EXPECT_EQ(Keys(kText, u"\""_s), Typed::Nothing);
    EXPECT_EQ(Keys(kAmount, u"\""_s), Typed::Nothing);
    EXPECT_EQ(m_rows, InvestmentTable());
    EXPECT_EQ(Keys(kText, u"a\"b"_s), Typed::Changed);
    EXPECT_EQ(Text(), u"ab"_s);
    EXPECT_EQ(m_typing.Type(kText, u"\"c\""_s), Typed::Changed) << "as an input method may give it";
    EXPECT_EQ(Text(), u"abc"_s);
}

TEST_F(StatementTypingTest, AComposedTextIsTakenWholeOrNotAtAll)
{
    EXPECT_EQ(m_typing.Type(kText, u"Zoë"_s), Typed::Changed);
    EXPECT_EQ(m_typing.Type(kText, u"und €"_s), Typed::Refused);
    EXPECT_EQ(Text(), u"Zoë"_s);
    EXPECT_EQ(m_typing.Type(kAmount, u"12x"_s), Typed::Refused);
    EXPECT_EQ(Amount(), std::nullopt);
}

TEST_F(StatementTypingTest, AnAmountTakesFiguresMinusAndPointAlone)
{
    for (const char16_t key : u"0123456789-."_s.toStdU16String()) {
        EXPECT_EQ(Keys({.row = 2, .column = StatementPlace::kAmount}, QString(QChar(key))), Typed::Changed)
            << int(key);
    }
    for (const QString& key :
         {u"a"_s, u"e"_s, u"E"_s, u"+"_s, u","_s, u" "_s, u"$"_s, u"€"_s, u"\u0661"_s, u"\u00B2"_s}) {
        EXPECT_EQ(Keys(kAmount, key), Typed::Refused) << key.toStdString();
    }
    EXPECT_EQ(Amount(), std::nullopt);
}

TEST_F(StatementTypingTest, AnAmountIsTheLeadingNumberOfWhatWasTyped)
{
    struct Case {
        QString keys;
        QString amount;
    };
    for (const Case& row : std::vector<Case>{{u"-"_s, u"0"_s},
                                             {u"."_s, u"0"_s},
                                             {u"--5"_s, u"0"_s},
                                             {u"1.2.3"_s, u"1.2"_s},
                                             {u"5-"_s, u"5"_s},
                                             {u"-5"_s, u"-5"_s},
                                             {u"-.5"_s, u"-0.5"_s},
                                             {u"007"_s, u"7"_s},
                                             {u"12.50"_s, u"12.5"_s},
                                             {u"0.00005"_s, u"0"_s},
                                             {u"0"_s, u"0"_s}}) {
        m_rows = {};
        m_typing.Forget();
        EXPECT_EQ(Keys(kAmount, row.keys), Typed::Changed);
        EXPECT_EQ(Amount(), Money(row.amount)) << row.keys.toStdString();
    }
}

TEST_F(StatementTypingTest, MoreFiguresGoBehindThoseThatWereTyped)
{
    Keys(kAmount, u"12"_s);
    Keys({.row = 2, .column = StatementPlace::kAmount}, u"99"_s);
    Keys(kAmount, u"3"_s);
    EXPECT_EQ(Amount(), Money(u"123"_s)) << "not behind the .00 that is shown";
    Keys(kAmount, u".50"_s);
    Keys({.row = 2, .column = StatementPlace::kAmount}, u"9"_s);
    Keys(kAmount, u"4"_s);
    EXPECT_EQ(Amount(), Money(u"123.504"_s));
    EXPECT_EQ(m_rows.at(2).amount, Money(u"999"_s));
}

TEST_F(StatementTypingTest, FiguresOfAFileAreGoneOnWithAsAFileHoldsThem)
{
    m_rows.at(1) = Item(u"Tickets"_s, u"-12.5"_s);
    Keys(kAmount, u"5"_s);
    EXPECT_EQ(Amount(), Money(u"-12.55"_s));
    m_rows.at(1) = Item(u"Tickets"_s, u"8"_s); // as after a load: what was typed is not of this amount
    Keys(kAmount, u"1"_s);
    EXPECT_EQ(Amount(), Money(u"81"_s));
}

TEST_F(StatementTypingTest, ACellThatWasLeftGoesOnWithTheAmountItShows)
{
    struct Case {
        QString typed;
        QString further;
        QString amount;
    };
    for (const Case& row : std::vector<Case>{{u"-12-24"_s, u"5"_s, u"-125"_s},
                                             {u"1.2.3"_s, u"5"_s, u"1.25"_s},
                                             {u"007"_s, u"1"_s, u"71"_s},
                                             {u"-"_s, u"5"_s, u"5"_s},
                                             {u"12"_s, u".50"_s, u"12.5"_s}}) {
        m_rows = {};
        m_typing.Forget();
        Keys(kAmount, row.typed);
        m_typing.LeaveRow(1);
        Keys(kAmount, row.further);
        EXPECT_EQ(Amount(), Money(row.amount)) << row.typed.toStdString();
    }
    for (const int row : {-1, 0, 106, 500}) {
        m_typing.LeaveRow(row); // the grid has rows beyond, and at first no row at all
    }
    EXPECT_EQ(Amount(), Money(u"12.5"_s));
}

TEST_F(StatementTypingTest, BackspaceInACellThatWasLeftWorksOnWhatIsSeen)
{
    Keys(kAmount, u"-12-24"_s);
    m_typing.LeaveRow(1);
    EXPECT_EQ(m_typing.Backspace(kAmount), Typed::Changed);
    EXPECT_EQ(Amount(), Money(u"-1"_s));
}

TEST_F(StatementTypingTest, AFigureThatLeavesTheRangeIsRefused)
{
    EXPECT_EQ(Keys(kAmount, u"922337203685477.5807"_s), Typed::Changed);
    EXPECT_EQ(Amount(), Money(u"922337203685477.5807"_s));
    m_rows.at(1).amount.reset();
    EXPECT_EQ(Keys(kAmount, u"922337203685477"_s), Typed::Changed);
    EXPECT_EQ(Keys(kAmount, u"0"_s), Typed::Refused);
    EXPECT_EQ(Amount(), Money(u"922337203685477"_s));
    EXPECT_EQ(Keys(kAmount, u".5"_s), Typed::Changed);
}

TEST_F(StatementTypingTest, BackspaceTakesTheLastCharacter)
{
    Keys(kText, u"Tix"_s);
    EXPECT_EQ(m_typing.Backspace(kText), Typed::Changed);
    EXPECT_EQ(Text(), u"Ti"_s);
    Keys(kAmount, u"12.50"_s);
    EXPECT_EQ(m_typing.Backspace(kAmount), Typed::Changed);
    EXPECT_EQ(Amount(), Money(u"12.5"_s));
    m_typing.Backspace(kAmount);
    m_typing.Backspace(kAmount);
    EXPECT_EQ(Amount(), Money(u"12"_s));
    m_typing.Backspace(kAmount);
    EXPECT_EQ(Amount(), Money(u"1"_s));
    EXPECT_EQ(m_typing.Backspace(kAmount), Typed::Changed);
    EXPECT_EQ(Amount(), std::nullopt) << "an amount without figures is an empty cell, not 0";
}

TEST_F(StatementTypingTest, BackspaceInAnEmptyCellDoesNothing)
{
    EXPECT_EQ(m_typing.Backspace(kText), Typed::Nothing);
    EXPECT_EQ(m_typing.Backspace(kAmount), Typed::Nothing);
    EXPECT_EQ(m_rows, InvestmentTable());
}

TEST_F(StatementTypingTest, BackspaceWithAMinusAloneLeavesAnEmptyCell)
{
    Keys(kAmount, u"-5"_s);
    m_typing.Backspace(kAmount);
    EXPECT_EQ(Amount(), Currency());
    m_typing.Backspace(kAmount);
    EXPECT_EQ(Amount(), std::nullopt);
}

TEST_F(StatementTypingTest, ALoadedAmountIsTakenApartFigureByFigure)
{
    m_rows.at(1) = Item(u"Tickets"_s, u"-0.75"_s);
    for (const QString& left : {u"-0.7"_s, u"0"_s, u"0"_s, u"0"_s}) {
        EXPECT_EQ(m_typing.Backspace(kAmount), Typed::Changed);
        EXPECT_EQ(Amount(), Money(left));
    }
    EXPECT_EQ(m_typing.Backspace(kAmount), Typed::Changed);
    EXPECT_EQ(Amount(), std::nullopt);
}

TEST_F(StatementTypingTest, BeyondRow105EveryKeyMeetsTheLimit)
{
    for (const int row : {106, 107, 108, 111, 500}) {
        for (const int column : {StatementPlace::kDescription, StatementPlace::kAmount}) {
            const StatementPlace place{.row = row, .column = column};
            EXPECT_EQ(m_typing.Type(place, u"1"_s), Typed::BeyondLimit) << row;
            EXPECT_EQ(m_typing.Type(place, u"\""_s), Typed::BeyondLimit) << row;
            EXPECT_EQ(m_typing.Type(place, u"€"_s), Typed::BeyondLimit) << row;
            EXPECT_EQ(m_typing.Backspace(place), Typed::BeyondLimit) << row;
        }
    }
    EXPECT_EQ(m_rows, InvestmentTable());
}

TEST_F(StatementTypingTest, WithoutACurrentCellNothingHappens)
{
    EXPECT_EQ(m_typing.Type({.row = 0}, u"a"_s), Typed::Nothing);
    EXPECT_EQ(m_typing.Backspace({.row = 0}), Typed::Nothing);
    EXPECT_EQ(m_rows, InvestmentTable());
}

TEST_F(StatementTypingTest, AnInsertedLineIsTypedOver)
{
    m_rows.at(1) = Item(u"BlankLine"_s);
    Keys(kText, u"Tickets"_s);
    EXPECT_EQ(Text(), u"Tickets"_s);
}

TEST_F(StatementTypingTest, TheWordsOfAnInsertedLineCanBeTypedAndMended)
{
    Keys(kText, u"BlankLines"_s);
    EXPECT_EQ(Text(), u"BlankLines"_s) << "typed by hand they are words like others";
    m_rows.at(1) = Item(u"BlankLine"_s);
    m_typing.Forget();
    EXPECT_EQ(m_typing.Backspace(kText), Typed::Changed);
    EXPECT_EQ(Text(), u"BlankLin"_s);
    Keys(kText, u"ing"_s);
    EXPECT_EQ(Text(), u"BlankLining"_s);
    m_rows.at(1) = Item(u"BlankLine"_s);
    m_typing.Forget();
    EXPECT_EQ(Keys(kText, u"€"_s), Typed::Refused);
    EXPECT_EQ(Text(), u"BlankLine"_s);
}
