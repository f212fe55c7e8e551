#include "database/DateSort.h"

#include <limits>
#include <utility>
#include <vector>

namespace {

struct Place {
    qint64 day = 0; ///< what the record is sorted by
    int record = 0; ///< where the record stood
    bool moved = false;
};

constexpr qint64 kBeforeAnyDate = std::numeric_limits<qint64>::min();
constexpr qint64 kAfterAnyDate = std::numeric_limits<qint64>::max();

qint64 SortDay(const Cell& date, const QLocale& locale)
{
    const std::optional<QDate> day = CellDate(date, locale);
    if (!day) {
        return kBeforeAnyDate;
    }
    return *day == DeletionMark() ? kAfterAnyDate : day->toJulianDay();
}

/// Row 0 is not used.
void ShellSort(std::vector<Place>& places, int count)
{
    const auto at = [&places](int row) -> Place& { return places[static_cast<std::size_t>(row)]; };
    for (int gap = count / 2; gap > 0; gap /= 2) {
        for (int i = gap; i <= count - 1; ++i) {
            for (int j = i - gap + 1; j >= 1; j -= gap) {
                if (at(j).day <= at(j + gap).day) {
                    break;
                }
                std::swap(at(j), at(j + gap));
                at(j).moved = true;
                at(j + gap).moved = true;
            }
        }
    }
}

/// @param toDelete  the record that was marked just now, 0 for none: it goes behind others that came with the
/// mark
int SortAndDropLast(DrawDatabase& database, const QLocale& locale, int toDelete)
{
    const int count = database.count;
    std::vector<Place> places(static_cast<std::size_t>(count) + 1);
    int unreadable = 0;
    for (int row = 1; row <= count; ++row) {
        const auto index = static_cast<std::size_t>(row);
        places[index] = {SortDay(database.records[index].date, locale), row, false};
        unreadable += places[index].day == kBeforeAnyDate ? 1 : 0;
        if (toDelete != 0 && row != toDelete && places[index].day == kAfterAnyDate) {
            places[index].day = kAfterAnyDate - 1; // a file may hold such a date
        }
    }
    // The exchanges are made on the days alone and on the records once, at the end.
    ShellSort(places, count);

    std::vector<DrawRecord> sorted(places.size());
    for (int row = 1; row <= count; ++row) {
        const auto index = static_cast<std::size_t>(row);
        const Place& place = places[index];
        sorted[index] = std::move(database.records[static_cast<std::size_t>(place.record)]);
        sorted[index].number = row;
        if (place.moved && place.day != kBeforeAnyDate) { // an exchanged record's date is stored as a date
            sorted[index].date = CellDate(sorted[index].date, locale).value_or(QDate());
        }
    }
    for (int row = 1; row <= count; ++row) {
        database.records[static_cast<std::size_t>(row)] = std::move(sorted[static_cast<std::size_t>(row)]);
    }
    if (count > 0 && places.back().day == kAfterAnyDate) {
        database.records[static_cast<std::size_t>(count)] = {}; // no trace of the mark stays behind
        --database.count;
    }
    return unreadable;
}

} // namespace

int SortByDate(DrawDatabase& database, const QLocale& locale)
{
    return SortAndDropLast(database, locale, 0);
}

int DeleteRecord(DrawDatabase& database, int record, const QLocale& locale)
{
    if (record < 1 || record > database.count) {
        return 0;
    }
    database.records[static_cast<std::size_t>(record)].date = DeletionMark();
    return SortAndDropLast(database, locale, record);
}
