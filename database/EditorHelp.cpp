#include "database/EditorHelp.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString EditorHelpText()
{
    const QStringList lines{
        u"Spreadsheet empty - no records."_s,
        u"  Create a new File  (more..PgDn)"_s,
        u"Boxes allowing input are green."_s,
        u"Change to number of picks and range required."_s,
        u"Title box: type the lottery name."_s,
        u"Auto Date Advanced:"_s,
        u"Place a check mark beside each draw day. All other days should be unchecked."_s,
        u"New row: type in start date of your draw data (Must be same as starting checked day), type in draw "
        "numbers until all columns are filled."_s,
        u"Click 'Add Record' button, record will be moved to the database."_s,
        u"That's it!. Continue to add records to your database now or later by just typing in the draw "
        u"numbers. "
        "Date set automatically in 'New' for next draw."_s,
        u"[/] Allow duplicates to be entered."_s,
        u"[/] Shows number of times each number drawn."_s,
        u"[ ] Shows number of draws since number last drawn. If not drawn yet, then total number of draws."_s,
        u"Click 'Show Graph' for charts with numbers sorted and normal."_s,
        u"Click 'Delete All' to delete database file from memory."_s,
        u"Click 'Correct Record' to Sort or Insert, first click row for number to Correct or Delete. Record "
        u"will "
        "be shown in 'New' row, change, click Add Record'. Commands not used disappear until task completed."_s,
        u"To save your database file return to main menu and click on 'Save File to Disk'."_s,
        u"Load the Sample.LTO file with 'Open a File from Disk' and try out all the features."_s,
        u"For bonus or powerball numbers, create a separate database using just one column."_s,
        u"For draws ranging from 0 to ?, set the range from 1 to ? + 1 and use this last number as "
        u"substitute for "
        "number 0."_s,
        u"Read  'How to Use the Program' for more detailed information."_s,
        u"                 End"_s,
    };
    return lines.join(u'\n');
}
