#include "app/MessageTable.h"

#include "tests/QtPrinters.h"

#include <QString>
#include <gtest/gtest.h>

#include <limits>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Every place filled with a text that no message contains by itself.
MessageArguments AllArguments()
{
    MessageArguments arguments;
    arguments.arg1 = u"{one}"_s;
    arguments.arg2 = u"{two}"_s;
    arguments.recordCount = 57;
    arguments.picks = 6;
    arguments.today = u"3/5/2024"_s;
    arguments.databaseFileName = u"Sample.Lto"_s;
    arguments.investmentFileName = u"Tickets.inv"_s;
    return arguments;
}

/// The messages as they read with AllArguments. The words stand as users know them: not to be corrected.
const std::map<int, QString>& Messages()
{
    static const std::map<int, QString> messages{
        {1, u"No data to print."_s},
        {2, u"No data to graph."_s},
        {3, u"Wrong or missing entry, try again."_s},
        {4, u"Too many numbers to fit in the maximium of 20 rows."_s},
        {5, u"Correct: number {one} is higher than allowed in Draw."_s},
        {6, u"Correct: number 0 not allowed in Draw."_s},
        {7, u"Not enough Data"_s},
        {8, u"Check for wrong entry."_s},
        {10, u"Not a valid date, try again."_s},
        {13, u"File not found or wrong format. Check Filename and/or Directory."_s},
        {14, u"Bad Filename. Must be in the form MYFILE.Lto"_s},
        {15, u"No Records."_s},
        {16,
         u"File in wrong format. If old format will load it. Sun will be checked, uncheck it and check right draw days. Then reset 'New' date to date of next draw after date in last record. Do not save file until date advance works ok."_s},
        {17, u"Must be from {two}  to {one}"_s},
        {18, u"No Record to Correct."_s},
        {19, u"Left to Right difference must be at least {one}"_s},
        {20, u"Number of picks greater than allowed for database."_s},
        {21, u"Error in Calculation. Check inputs"_s},
        {22, u"30 Row limit."_s},
        {23, u"Cannot sort file."_s},
        {24, u"Cannot work with missing number"_s},
        {25, u"Bad filename, must be in the form MYFILE.INV"_s},
        {26, u"Cannot calculate."_s},
        {27, u"Must be from 1 to 10"_s},
        {28, u"Must be from 1 to 60"_s},
        {29, u"Correct: missing number."_s},
        {30, u"Not a proper date, Correct format: 3/5/2024"_s},
        {31, u"No records in the database"_s},
        {32, u"Cannot clear."_s},
        {35, u"Must be from 0 to 6"_s},
        {36, u"No record to add to the database."_s},
        {37, u"Correct: duplicate numbers."_s},
        {38, u"Correct: number 0 not allowed in Draw."_s},
        {39, u"Date cannot be greater than last record.{one}"_s},
        {40, u"Cannot change while records exist in a database. 'Delete All' first."_s},
        {41, u"Record Number does not exist."_s},
        {42, u"Minimum matches greater than numbers to check."_s},
        {43, u"Must be between {two} and {one}"_s},
        {44,
         u"No records to work with. Either start a new Database in 'View and Edit Database' or 'Open a File from Disk'. Open the Sample.Lto file to learn and use all the features. Be sure to read 'How to Use the Program'."_s},
        {45, u"Max amount of records = 2000."_s},
        {46, u"105 Row limit."_s},
        {47, u"Low number is greater than High."_s},
        {48, u"Must have at least 10 records in database to use."_s},
        {49, u"Must be between 10 and  57"_s},
        {50,
         u"Hot + Cold + Due numbers must be greater than 0 and not more than picks allowed in this draw, which is  6"_s},
        {51,
         u"No enough data, see Hot graph. Only {two} different numbers in the database or number of draws selected. Must have at least 10."_s},
        {52,
         u"Date in 'New' row is a Sat or Sun. Must be Monday through Friday. Change date and retype 7 again to set Auto Date Advanced."_s},
    };
    return messages;
}

const std::map<int, QString>& Questions()
{
    static const std::map<int, QString> questions{
        {1, u" Continue with Printout."_s},
        {2, u" Print in Color."_s},
        {3, u"Sample.Lto file in memory will be erased. Do you wish to go back and save it to Disk?."_s},
        {4, u"Are you sure you wish to delete the current record."_s},
        {5, u"Tickets.inv file in memory will be erased. Do you wish to go back and save it to Disk?."_s},
    };
    return questions;
}

QString TextIn(const std::map<int, QString>& table, int number)
{
    const auto row = table.find(number);
    return row == table.end() ? u""_s : row->second;
}

} // namespace

TEST(MessageTable, EveryNumberFrom0To60ShowsItsRowAndNothingWithoutOne)
{
    for (int number = 0; number <= 60; ++number) {
        EXPECT_EQ(MessageText(number, AllArguments()), TextIn(Messages(), number)) << number;
    }
}

TEST(MessageTable, EveryQuestionShowsItsRowAndNothingWithoutOne)
{
    for (int number = 0; number <= 60; ++number) {
        EXPECT_EQ(QuestionText(number, AllArguments()), TextIn(Questions(), number)) << number;
    }
}

TEST(MessageTable, NumbersWithoutARowAreEmpty)
{
    for (const int number : {0, 9, 11, 12, 33, 34, 53, 60, -1, 256 + 1, 65536 + 1, 32767,
                             std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(MessageText(number, AllArguments()), u""_s) << number;
    }
    for (const int number : {0, 6, 7, -1, 256 + 1, 65536 + 1, 32767, std::numeric_limits<int>::min(),
                             std::numeric_limits<int>::max()}) {
        EXPECT_EQ(QuestionText(number, AllArguments()), u""_s) << number;
    }
}

TEST(MessageTable, TheTableHasFortySevenMessagesAndFiveQuestions)
{
    int messages = 0;
    int questions = 0;
    for (int number = -100; number <= 1000; ++number) {
        messages += MessageText(number, AllArguments()).isEmpty() ? 0 : 1;
        questions += QuestionText(number, AllArguments()).isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(messages, 47);
    EXPECT_EQ(questions, 5);
}

TEST(MessageTable, PlacesWithoutAnArgumentStayOpen)
{
    const MessageArguments none;
    EXPECT_EQ(MessageText(5, none), u"Correct: number  is higher than allowed in Draw."_s);
    EXPECT_EQ(MessageText(17, none), u"Must be from   to "_s);
    EXPECT_EQ(MessageText(39, none), u"Date cannot be greater than last record."_s);
    EXPECT_EQ(MessageText(43, none), u"Must be between  and "_s);
    EXPECT_EQ(MessageText(49, none), u"Must be between 10 and  0"_s);
    EXPECT_EQ(QuestionText(3, none),
              u" file in memory will be erased. Do you wish to go back and save it to Disk?."_s);
}

TEST(MessageTable, TheCountOfMessage49CarriesItsSignBlank)
{
    MessageArguments arguments;
    arguments.recordCount = 57;
    EXPECT_EQ(MessageText(49, arguments), u"Must be between 10 and  57"_s);
    arguments.recordCount = 2001;
    EXPECT_EQ(MessageText(49, arguments), u"Must be between 10 and  2001"_s);
}

TEST(MessageTable, ThePicksOfMessage50CarryTheirSignBlank)
{
    MessageArguments arguments;
    arguments.picks = 10;
    EXPECT_EQ(
        MessageText(50, arguments),
        u"Hot + Cold + Due numbers must be greater than 0 and not more than picks allowed in this draw, which is  10"_s);
}

TEST(MessageTable, Message17StandsWithTwoBlanksBetweenItsBounds)
{
    MessageArguments arguments;
    arguments.arg1 = u"2000"_s;
    arguments.arg2 = u"1"_s;
    EXPECT_EQ(MessageText(17, arguments), u"Must be from 1  to 2000"_s);
}

TEST(MessageTable, Message43PutsTheLowBoundFirst)
{
    MessageArguments arguments;
    arguments.arg1 = u" 57"_s;
    arguments.arg2 = u" 1"_s;
    EXPECT_EQ(MessageText(43, arguments), u"Must be between  1 and  57"_s);
}

TEST(MessageTable, AnArgumentIsSplicedAsItStands)
{
    MessageArguments arguments;
    arguments.arg1 = u"%1 %2 & <b>50</b>"_s;
    EXPECT_EQ(MessageText(5, arguments),
              u"Correct: number %1 %2 & <b>50</b> is higher than allowed in Draw."_s);
}

TEST(MessageTable, OnlyTheQuestionsAboutUnsavedFilesAreAnsweredYesWhenClosed)
{
    for (int number = -1; number <= 60; ++number) {
        EXPECT_EQ(QuestionIsAnsweredYesWhenClosed(number), number == 3 || number == 5) << number;
    }
}
