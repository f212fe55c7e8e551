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

/// Puts into each row the record that its place names. Goes from row to row until it is back where it began,
/// with one record in hand: a second table would cost more than the whole sort.
void MoveToPlaces(std::vector<DrawRecord>& records, const std::vector<Place>& places, int count)
{
    const auto source = [&places](int row) { return places[static_cast<std::size_t>(row)].record; };
    const auto at = [&records](int row) -> DrawRecord& { return records[static_cast<std::size_t>(row)]; };
    std::vector<bool> done(places.size());
    for (int first = 1; first <= count; ++first) {
        if (done[static_cast<std::size_t>(first)] || source(first) == first) {
            continue;
        }
        DrawRecord inHand = std::move(at(first));
        int row = first;
        for (; source(row) != first; row = source(row)) {
            at(row) = std::move(at(source(row)));
            done[static_cast<std::size_t>(row)] = true;
        }
        at(row) = std::move(inHand);
        done[static_cast<std::size_t>(row)] = true;
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

    MoveToPlaces(database.records, places, count);
    for (int row = 1; row <= count; ++row) {
        DrawRecord& record = database.records[static_cast<std::size_t>(row)];
        const Place& place = places[static_cast<std::size_t>(row)];
        record.number = row;
        if (place.moved && place.day != kBeforeAnyDate) { // an exchanged record's date is stored as a date
            record.date = CellDate(record.date, locale).value_or(QDate());
        }
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
