#include "database/ExtractRecords.h"

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

void ExtractRecords(DrawDatabase& database, float low, float high)
{
    const auto picks = static_cast<std::size_t>(database.Shape().picks);
    std::vector<DrawRecord> extracted(kRecordRows);
    qint16 count = 0;
    for (int row = 1; row <= database.count; ++row) {
        const auto number = static_cast<float>(row);
        if (number < low || number > high) {
            continue;
        }
        DrawRecord& source = database.records[static_cast<std::size_t>(row)];
        DrawRecord& target = extracted[static_cast<std::size_t>(++count)];
        target.number = static_cast<int>(count);
        target.date = std::move(source.date);
        std::move(source.drawn.begin(), source.drawn.begin() + static_cast<std::ptrdiff_t>(picks),
                  target.drawn.begin());
    }
    database.records = std::move(extracted);
    database.count = count;
    database.title = u"Extracted"_s;
    database.fileName = u"Extract.lto"_s;
}
