#include "app/Prompts.h"

#include "tests/CannedPrompts.h"
#include "tests/StatePrinters.h"
#include "tests/TestFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PromptsOfTheSharedState : public testing::Test
{
protected:
    void SetUp() override
    {
        shared.locale = QLocale(QLocale::German, QLocale::Germany);
        shared.today = [] { return QDate(2004, 3, 13); };
    }

    QString TextOf(int number)
    {
        shared.messageNumber = static_cast<qint16>(number);
        return CurrentMessageText(shared);
    }

    LGLOBAL shared;
    CannedPrompts prompts{shared};
};

} // namespace

TEST_F(PromptsOfTheSharedState, AMessageIsPutIntoTheSharedStateAndShown)
{
    prompts.expectedMessages = {43};
    Show(shared, prompts, {.number = 43, .arg1 = u"2000"_s, .arg2 = u"1"_s});
    EXPECT_EQ(shared.messageNumber, 43);
    EXPECT_EQ(shared.messageArg1, u"2000"_s);
    EXPECT_EQ(shared.messageArg2, u"1"_s);
    EXPECT_EQ(prompts.shownTexts, QStringList{u"Must be between 1 and 2000"_s});
}

TEST_F(PromptsOfTheSharedState, TheTextsOfAnEarlierMessageAreGone)
{
    prompts.expectedMessages = {43, 39};
    Show(shared, prompts, {.number = 43, .arg1 = u"2000"_s, .arg2 = u"1"_s});
    Show(shared, prompts, {.number = 39});
    EXPECT_EQ(prompts.shownTexts.at(1), u"Date cannot be greater than last record."_s);
}

TEST_F(PromptsOfTheSharedState, AReasonBelongsToOneMessage)
{
    prompts.expectedMessages = {14, 15};
    Show(shared, prompts, {.number = 14, .reason = u"The disk is full"_s});
    EXPECT_EQ(shared.messageReason, QString());
    Show(shared, prompts, {.number = 15});
    EXPECT_EQ(prompts.shownReasons, (QStringList{u"The disk is full"_s, QString()}));
}

TEST_F(PromptsOfTheSharedState, Message49CountsTheRecordsBehindTwoBlanks)
{
    shared.database = MadeUpDatabase(6, 49, 57);
    EXPECT_EQ(TextOf(49), u"Must be between 10 and  57"_s);
}

TEST_F(PromptsOfTheSharedState, Message50NamesThePicksOfTheOpenDatabase)
{
    shared.database.columns = 8;
    EXPECT_EQ(TextOf(50),
              u"Hot + Cold + Due numbers must be greater than 0 and not more than picks allowed in this "
              "draw, which is  6"_s);
}

TEST_F(PromptsOfTheSharedState, Message30ShowsTodayInTheLocale)
{
    EXPECT_EQ(TextOf(30), u"Not a proper date, Correct format: 13.03.2004"_s);
    shared.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(TextOf(30), u"Not a proper date, Correct format: 3/13/2004"_s);
}

TEST_F(PromptsOfTheSharedState, Message17HasTwoBlanksBeforeTheSecondBound)
{
    shared.messageArg1 = u"2000"_s;
    shared.messageArg2 = u"1"_s;
    EXPECT_EQ(TextOf(17), u"Must be from 1  to 2000"_s);
}

TEST_F(PromptsOfTheSharedState, ANumberWithoutAMessageIsEmpty)
{
    for (const int number : {0, 34, 53, -1, 32767}) {
        EXPECT_EQ(TextOf(number), QString()) << number;
    }
}

TEST_F(PromptsOfTheSharedState, YesReadsBackAsSixAndNoAsZero)
{
    prompts.answers = {true, false};
    EXPECT_TRUE(Ask(shared, prompts, 1));
    EXPECT_EQ(shared.questionNumber, 6);
    EXPECT_FALSE(Ask(shared, prompts, 2));
    EXPECT_EQ(shared.questionNumber, 0);
    EXPECT_EQ(prompts.askedTexts, (QStringList{u" Continue with Printout."_s, u" Print in Color."_s}));
}

TEST_F(PromptsOfTheSharedState, TheFileQuestionsNameTheirFiles)
{
    shared.database.fileName = u"Mine.Lto"_s;
    shared.investmentFileName = u"Money.inv"_s;
    shared.questionNumber = 3;
    EXPECT_EQ(CurrentQuestionText(shared),
              u"Mine.Lto file in memory will be erased. Do you wish to go back and save it to Disk?."_s);
    shared.questionNumber = 5;
    EXPECT_EQ(CurrentQuestionText(shared),
              u"Money.inv file in memory will be erased. Do you wish to go back and save it to Disk?."_s);
    shared.questionNumber = 6;
    EXPECT_EQ(CurrentQuestionText(shared), QString());
}

TEST_F(PromptsOfTheSharedState, OnlyAddedRecordsThatAreThereCountAsUnsaved)
{
    shared.database = MadeUpDatabase(6, 49, 1);
    EXPECT_FALSE(HasUnsavedRecords(shared));
    shared.database.modified = 1;
    EXPECT_TRUE(HasUnsavedRecords(shared));
    shared.database.count = 0;
    EXPECT_FALSE(HasUnsavedRecords(shared));
}

TEST_F(PromptsOfTheSharedState, TheProgramEndsWithoutAQuestionWhenNothingIsUnsaved)
{
    EXPECT_TRUE(MayEndProgram(shared, prompts));
    shared.database.modified = 1;
    EXPECT_TRUE(MayEndProgram(shared, prompts)) << "no records";
    EXPECT_EQ(prompts.askedTexts, QStringList());
}

TEST_F(PromptsOfTheSharedState, YesToGoingBackKeepsTheProgramAndTheUnsavedRecords)
{
    shared.database = MadeUpDatabase(6, 49, 1);
    shared.database.modified = 1;
    shared.database.fileName = u"Mine.Lto"_s;
    prompts.answers = {true};
    EXPECT_FALSE(MayEndProgram(shared, prompts));
    EXPECT_EQ(shared.database.modified, 1);
    EXPECT_EQ(prompts.askedTexts,
              QStringList{
                  u"Mine.Lto file in memory will be erased. Do you wish to go back and save it to Disk?."_s});
}

TEST_F(PromptsOfTheSharedState, NoToGoingBackGivesTheRecordsUpAndIsAskedOnce)
{
    shared.database = MadeUpDatabase(6, 49, 1);
    shared.database.modified = 1;
    prompts.answers = {false};
    EXPECT_TRUE(MayEndProgram(shared, prompts));
    EXPECT_EQ(shared.database.modified, 0);
    EXPECT_TRUE(MayEndProgram(shared, prompts));
    EXPECT_EQ(prompts.askedTexts.size(), 1);
}
