#include "database/ExtractHelp.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString ExtractHelpText()
{
    const QStringList paragraphs{
        u"To view a group of records between any two dates, a new database is created with records from the "
        u"existing "
        "database."_s,
        u"Using the record numbers from beside the dates you want to include. Type these record numbers in "
        u"the green "
        "input boxes."_s,
        u"Click 'Extract Records' and the new file will be created and shown."_s,
        u"The new database will be titled 'Extracted' and if saving to disk is named 'Extract.LTO'. It can "
        u"be "
        "renamed."_s,
        u"This is to prevent you overwriting the original database file on disk if the same name was "
        u"retained for "
        "the new database."_s,
        u"The original database in memory is deleted."_s,
    };
    return paragraphs.join(u'\n');
}
