#include "app/MessageTable.h"

#include "app/TextPictures.h"

using namespace Qt::StringLiterals;

namespace {

QString ErasedFileQuestion(const QString& fileName)
{
    return fileName + u" file in memory will be erased. Do you wish to go back and save it to Disk?."_s;
}

} // namespace

QString MessageText(int number, const MessageArguments& arguments)
{
    switch (number) {
    case 1:
        return u"No data to print."_s;
    case 2:
        return u"No data to graph."_s;
    case 3:
        return u"Wrong or missing entry, try again."_s;
    case 4:
        return u"Too many numbers to fit in the maximium of 20 rows."_s;
    case 5:
        return u"Correct: number "_s + arguments.arg1 + u" is higher than allowed in Draw."_s;
    case 6:
        return u"Correct: number 0 not allowed in Draw."_s;
    case 7:
        return u"Not enough Data"_s;
    case 8:
        return u"Check for wrong entry."_s;
    case 10:
        return u"Not a valid date, try again."_s;
    case 13:
        return u"File not found or wrong format. Check Filename and/or Directory."_s;
    case 14:
        return u"Bad Filename. Must be in the form MYFILE.Lto"_s;
    case 15:
        return u"No Records."_s;
    case 16:
        return u"File in wrong format. If old format will load it. Sun will be checked, uncheck it and check "
               "right draw days. Then reset 'New' date to date of next draw after date in last record. Do "
               "not "
               "save file until date advance works ok."_s;
    case 17:
        return u"Must be from "_s + arguments.arg2 + u"  to "_s + arguments.arg1;
    case 18:
        return u"No Record to Correct."_s;
    case 19:
        return u"Left to Right difference must be at least "_s + arguments.arg1;
    case 20:
        return u"Number of picks greater than allowed for database."_s;
    case 21:
        return u"Error in Calculation. Check inputs"_s;
    case 22:
        return u"30 Row limit."_s;
    case 23:
        return u"Cannot sort file."_s;
    case 24:
        return u"Cannot work with missing number"_s;
    case 25:
        return u"Bad filename, must be in the form MYFILE.INV"_s;
    case 26:
        return u"Cannot calculate."_s;
    case 27:
        return u"Must be from 1 to 10"_s;
    case 28:
        return u"Must be from 1 to 60"_s;
    case 29:
        return u"Correct: missing number."_s;
    case 30:
        return u"Not a proper date, Correct format: "_s + arguments.today;
    case 31:
        return u"No records in the database"_s;
    case 32:
        return u"Cannot clear."_s;
    case 35:
        return u"Must be from 0 to 6"_s;
    case 36:
        return u"No record to add to the database."_s;
    case 37:
        return u"Correct: duplicate numbers."_s;
    case 38: // the same words as 6: corrections and number checks use this number
        return u"Correct: number 0 not allowed in Draw."_s;
    case 39:
        return u"Date cannot be greater than last record."_s + arguments.arg1;
    case 40:
        return u"Cannot change while records exist in a database. 'Delete All' first."_s;
    case 41:
        return u"Record Number does not exist."_s;
    case 42:
        return u"Minimum matches greater than numbers to check."_s;
    case 43:
        return u"Must be between "_s + arguments.arg2 + u" and "_s + arguments.arg1;
    case 44:
        return u"No records to work with. Either start a new Database in 'View and Edit Database' or 'Open a "
               "File from Disk'. Open the Sample.Lto file to learn and use all the features. Be sure to read "
               "'How to Use the Program'."_s;
    case 45:
        return u"Max amount of records = 2000."_s;
    case 46:
        return u"105 Row limit."_s;
    case 47:
        return u"Low number is greater than High."_s;
    case 48:
        return u"Must have at least 10 records in database to use."_s;
    case 49: // the sign blank of the count doubles the one before it
        return u"Must be between 10 and "_s + Str(arguments.recordCount);
    case 50:
        return u"Hot + Cold + Due numbers must be greater than 0 and not more than picks allowed in this "
               u"draw, "
               "which is "_s +
               Str(arguments.picks);
    case 51:
        return u"No enough data, see Hot graph. Only "_s + arguments.arg2 +
               u" different numbers in the database or number of draws selected. Must have at least 10."_s;
    case 52:
        return u"Date in 'New' row is a Sat or Sun. Must be Monday through Friday. Change date and retype 7 "
               "again to set Auto Date Advanced."_s;
    default:
        return {};
    }
}

QString QuestionText(int number, const MessageArguments& arguments)
{
    switch (number) {
    case 1:
        return u" Continue with Printout."_s;
    case 2:
        return u" Print in Color."_s;
    case 3:
        return ErasedFileQuestion(arguments.databaseFileName);
    case 4: // kept for completeness of the table: nothing asks it
        return u"Are you sure you wish to delete the current record."_s;
    case 5:
        return ErasedFileQuestion(arguments.investmentFileName);
    default:
        return {};
    }
}

bool QuestionIsAnsweredYesWhenClosed(int number)
{
    return number == 3 || number == 5;
}
