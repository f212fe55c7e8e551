#include "picks/SelectoriumHelp.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString SelectoriumHelpText()
{
    const QStringList lines{
        u"How to use Selectorium"_s,
        u"  (more..PgDn)"_s,
        u"Boxes allowing input are green."_s,
        u"Lottery setup: type the number of picks, the highest number and the number of entry forms you "
        u"play. "
        u"With a database in memory they are set to its own."_s,
        u"Click 'Calculate' to pick random numbers for each entry form, sorted from low to high."_s,
        u"(o) Full range of numbers in the lottery: picks from all numbers, no database needed."_s,
        u"(o) Sorted position: picks from a part of the numbers as counted and sorted from the database."_s,
        u"Numbers are counted and sorted from highest count (Left) to lowest (Right)."_s,
        u"The difference between Left to Right must be greater than the number of picks."_s,
        u"This is checked for the full range too. If the message comes again, choose sorted positions and "
        u"lower Left."_s,
        u"[/] Database: Times numbers were drawn."_s,
        u"Any numbers that have not been drawn yet = lowest number of times drawn."_s,
        u"[ ] Database: No. draws since last drawn."_s,
        u"Any numbers that have not been drawn yet = total number of draws in database."_s,
        u"[/] Allow less than normal database picks: sets from sorted positions may then have fewer numbers "
        u"than "
        u"the draws of the database, never more."_s,
        u"The 'Select All' button will pick each of the numbers in the lottery range and randomly put them "
        u"in "
        u"the number of entry forms necessary to hold them. This means that all winning numbers will be "
        u"covered. "
        u"Limit is 20 Rows. Scroll to see all rows."_s,
        u"For bonus or powerball numbers set the number of picks to 1, the number is shown in red."_s,
        u"'Hot Cold Due Data' needs a database with at least 10 records."_s,
        u"'Clear All' empties the spreadsheet, 'To Printer' prints the numbers picked."_s,
        u"Press Esc to see the numbers at once, without waiting for the balls."_s,
        u"For draws ranging from 0 to ?, set the range from 1 to ? + 1 and use this last number as "
        u"substitute for number 0."_s,
        u"                 End"_s,
    };
    return lines.join(u'\n');
}
