#include "picks/WinnersHelp.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString WinnersHelpText()
{
    const QStringList paragraphs{
        u"How to use Check Winners"_s,
        u"Pre-programmed on startup to search through each record in the database for all numbers, with a "
        "minimum of 3, that match those entered in all the 'Enter all numbers to check'  green input boxes."_s,
        u"Each record in which a match is found will be displayed in the spreadsheet with the Database "
        "record number, date and the original position in which the numbers were drawn. 'No matches' "
        "message if none found. "_s,
        u"Example:"_s,
        u"Set the 'Search each record for minimum matches of'  to 1 and in the 'Enter all numbers to check'  "
        "input box enter 6 - leave other boxes empty. All records where 6 was drawn will be shown."_s,
    };
    return paragraphs.join(u'\n');
}
