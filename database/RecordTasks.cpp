#include "database/RecordTasks.h"

#include "app/ShortDate.h"
#include "app/TextPictures.h"
#include "database/DateSort.h"
#include "database/NextDrawDate.h"

#include <utility>

namespace {

constexpr int kNewNumberIsZero = 6;
constexpr int kNotAProperDate = 30;
constexpr int kNoRecordToAdd = 36;
constexpr int kDuplicateNumbers = 37;
constexpr int kMendedNumberIsZero = 38;
constexpr int kRecordDoesNotExist = 41;
constexpr int kMostRecords = 45;

RowCheck CheckNewRecord(const DrawDatabase& database, const TypedRow& row)
{
    if (IsFull(database)) {
        return {EntryFault{kMostRecords, {}}};
    }
    return {CheckNumbers(row.boxes, database.highest, kNewNumberIsZero)};
}

RowCheck CheckMendedRecord(const DrawDatabase& database, const TypedRow& row, const QLocale& locale)
{
    if (std::optional<EntryFault> fault = CheckNumbers(row.boxes, database.highest, kMendedNumberIsZero)) {
        return {std::move(fault)};
    }
    if (!row.date.isValid()) {
        return {EntryFault{kNotAProperDate, {}}};
    }
    std::optional<EntryFault> tooLate = CheckNotAfterLastRecord(database, row.date, locale);
    const bool endsTask = tooLate.has_value();
    return {std::move(tooLate), endsTask};
}

} // namespace

std::optional<EntryFault> CheckTask(const DrawDatabase& database, EditMode task, int record)
{
    if (record > database.count) {
        return EntryFault{kRecordDoesNotExist, {}};
    }
    if (task == EditMode::Insert && IsFull(database)) {
        return EntryFault{kMostRecords, {}};
    }
    return std::nullopt;
}

TypedRow RowOfRecord(const DrawDatabase& database, int record, const QLocale& locale)
{
    const DrawRecord& held = database.records.at(static_cast<std::size_t>(record));
    TypedRow row;
    row.date = CellDate(held.date, locale).value_or(QDate());
    for (const Cell& number : held.drawn) {
        row.boxes << Format(CellText(number), u"##");
    }
    row.boxes.resize(database.Shape().picks);
    return row;
}

RowCheck CheckRow(DrawDatabase& database, EditMode task, const TypedRow& row, const QLocale& locale)
{
    if (RowIsEmpty(row.boxes)) {
        return {EntryFault{kNoRecordToAdd, {}}};
    }
    if (!row.allowDuplicates && CountDuplicatePairs(row.boxes) > 0) {
        return {EntryFault{kDuplicateNumbers, {}}};
    }
    if (task == EditMode::Correct || task == EditMode::Insert) {
        return CheckMendedRecord(database, row, locale);
    }
    database.modified = 1;
    return CheckNewRecord(database, row);
}

void EnterRow(DrawDatabase& database, EditMode task, int record, const TypedRow& row)
{
    if (task == EditMode::Correct) {
        OverwriteRecord(database, record, row.date, NumbersIn(row.boxes));
    } else {
        database.Append(row.date, NumbersIn(row.boxes));
    }
}

void DeleteAllRecords(DrawDatabase& database)
{
    const DrawDayTable drawDays = database.drawDays;
    database.Empty();
    database.drawDays = drawDays;
}

void TakeShape(DrawDatabase& database, double picks, double highest)
{
    if (database.count <= 0) {
        database.columns = ToInt16(picks + 2).value_or(kRecordCells);
        database.highest = ToInt16(highest).value_or(kMostNumbers);
    }
    const LotteryShape shape = database.Shape();
    database.columns = static_cast<qint16>(shape.picks + 2);
    database.highest = static_cast<qint16>(shape.highest);
}

QDate DateOfNewRow(DrawDatabase& database, QDate today, const QLocale& locale)
{
    const std::optional<QDate> last =
        database.count > 0
            ? CellDate(database.records.at(static_cast<std::size_t>(database.count)).date, locale)
            : std::nullopt;
    if (last) {
        const QDate next = NextDrawDate(*last, database.CheckedDays());
        return next == DeletionMark() ? NextDrawDate(next, database.CheckedDays()) : next;
    }
    if (database.count == 0) {
        database.CheckDay(WeekdayOf(today), true);
    }
    return today;
}

std::optional<QDate> ParseDrawDate(const QString& text, const QLocale& locale)
{
    const std::optional<QDate> date = ParseShortDate(text, locale);
    return date == DeletionMark() ? std::nullopt : date;
}
