#include "invest/InvestmentHelp.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString InvestmentHelpText()
{
    const QStringList paragraphs{
        u"Load Sample.INV to try out the various features. Click the Open File button to load it from disk."_s,
        u"To start new file, click on the spreadsheet, choose cell by clicking on it or use arrow keys. "
        u"Selected Cell will show dotted line around it, type in your data. Delete an entry with the "
        u"Backspace key."_s,
        u"Type a description in the first column and values in the second column. I use a negative amount "
        u"for "
        u"tickets bought and a positive amount for Winnings. If Total shows a positive amount it means I am "
        u"ahead."_s,
        u"Enter the exact words Sub Total in first column, nothing in second column, at the end of each "
        u"group "
        u"where you want it to appear. The Sub Total amount will be the sum of all amounts between the "
        u"previous Sub Total if one exists."_s,
        u"Empty rows are not allowed, for a blank row enter a space in column one. (It's no longer empty). "
        u"To "
        u"remove a row, delete all entries in that row then Calculate."_s,
        u"Column two will only accept figures, the minus sign and the period key as the decimal separator. "
        u"Description or Values can be changed at any time."_s,
        u"To insert a row, click the row where it is required then the Insert Blank Line button, type in the "
        u"row number shown in the Dialog box then OK."_s,
        u"You must Calculate after any changes, to reformat the spreadsheet and update the Total."_s,
        u"To save the file to disk, click Save File button and give the file a name."_s,
        u"End"_s,
    };
    return paragraphs.join(u'\n');
}
