#include "database/ExtractRecords.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

void ExtractRecords(DrawDatabase& database, float low, float high)
{
    const auto picks = static_cast<std::size_t>(database.Shape().picks);
    qint16 count = 0;
    for (int row = 1; row <= database.count; ++row) {
        const auto number = static_cast<float>(row);
        if (number < low || number > high) {
            continue;
        }
        // In its own table: the place is never behind the row.
        DrawRecord& source = database.records[static_cast<std::size_t>(row)];
        DrawRecord kept;
        kept.number = static_cast<int>(++count);
        kept.date = std::move(source.date);
        std::move(source.drawn.begin(), source.drawn.begin() + static_cast<std::ptrdiff_t>(picks),
                  kept.drawn.begin());
        database.records[static_cast<std::size_t>(count)] = std::move(kept);
    }
    std::fill(database.records.begin() + count + 1, database.records.end(), DrawRecord{});
    database.count = count;
    database.title = u"Extracted"_s;
    database.fileName = u"Extract.lto"_s;
}
