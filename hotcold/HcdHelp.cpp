#include "hotcold/HcdHelp.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString HcdHelpText()
{
    const QStringList lines{
        u"Graphs show results for period selected in 'Pick from last [?] draws'."_s,
        u"Hot graph shows 10 of the most frequent numbers drawn at bottom with number of times drawn on left."_s,
        u"Cold graph shows 10 of the least frequent numbers drawn at bottom with number of times drawn on left."_s,
        u"Due graph shows 10 numbers according to the last time each were drawn at bottom with number of "
        "draws since last drawn on left, not limited to the period selected."_s,
        u"With a 6/49 database starts up set to draw 2 numbers from Hot,  2 from Cold and 2 from Due numbers "
        "when 'Calculate' clicked. Can be set to any combination."_s,
        u"Example: Hot = 0, Cold = 0 and Due = 6.  Or pick less than 6 numbers to combine with favorate "
        "numbers."_s,
        u"Set 'Number of game sets to play' to sets required."_s,
        u"Click 'To Printer' for a printout of the sets."_s,
        u"End"_s,
    };
    return lines.join(u'\n');
}
