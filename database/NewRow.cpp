#include "database/NewRow.h"

#include "app/ShortDate.h"
#include "app/TextPictures.h"

#include <algorithm>

bool RowIsEmpty(const QStringList& boxes)
{
    return boxes.isEmpty() || Val(boxes.first()) == 0;
}

int CountDuplicatePairs(const QStringList& boxes)
{
    int pairs = 0;
    for (qsizetype a = 0; a < boxes.size(); ++a) {
        for (qsizetype b = a + 1; b < boxes.size(); ++b) {
            const double value = Val(boxes.at(a));
            pairs += value != 0 && value == Val(boxes.at(b)) ? 1 : 0;
        }
    }
    return pairs;
}

std::optional<EntryFault> CheckNumbers(const QStringList& boxes, int highest, int zeroMessage)
{
    constexpr int kMissingNumber = 29;
    constexpr int kNumberTooHigh = 5;
    for (const QString& box : boxes) {
        if (box.trimmed().isEmpty()) {
            return EntryFault{kMissingNumber, {}};
        }
        const double value = Val(box);
        if (value > highest) {
            return EntryFault{kNumberTooHigh, box};
        }
        if (value < 1) {
            return EntryFault{zeroMessage, {}};
        }
    }
    return std::nullopt;
}

std::vector<int> NumbersIn(const QStringList& boxes)
{
    std::vector<int> numbers;
    numbers.reserve(static_cast<std::size_t>(boxes.size()));
    for (const QString& box : boxes) {
        numbers.push_back(static_cast<int>(Val(box)));
    }
    return numbers;
}

std::optional<EntryFault> CheckNotAfterLastRecord(const DrawDatabase& database, QDate date,
                                                  const QLocale& locale)
{
    constexpr int kLaterThanLastRecord = 39;
    const std::optional<QDate> last = CellDate(
        database.records.at(static_cast<std::size_t>(std::max<int>(database.count, 0))).date, locale);
    if (!last || date <= *last) {
        return std::nullopt;
    }
    return EntryFault{kLaterThanLastRecord, ShortDate(*last, locale)};
}

void OverwriteRecord(DrawDatabase& database, int record, QDate date, const std::vector<int>& numbers)
{
    DrawRecord& row = database.records.at(static_cast<std::size_t>(record));
    row.date = date;
    std::copy_n(numbers.begin(), std::min(numbers.size(), row.drawn.size()), row.drawn.begin());
}

bool IsFull(const DrawDatabase& database)
{
    return database.count > kAnnouncedRecords;
}
