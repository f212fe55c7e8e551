#pragma once

#include "app/EditMode.h"
#include "database/NewRow.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <optional>

/// What stands in the editor's 'New' row when "Add Record" is pressed.
struct TypedRow {
    QStringList boxes; ///< the texts of its number boxes, one for each pick
    QDate date;        ///< invalid as long as a correction or insertion waits for one
    bool allowDuplicates = false;
};

/// Whether a row can be taken.
struct RowCheck {
    std::optional<EntryFault> fault; ///< empty when it can
    bool endsTask = false;           ///< the correction or insertion is given up, since its date is too late
};

/// The message that keeps a correction, insertion, deletion or sort of records from beginning: 41 for a
/// record that does not exist, 45 for an insertion into a full database; empty when it may begin.
///
/// @param record  the record chosen for it, from 1; tasks that need none have 1
[[nodiscard]] std::optional<EntryFault> CheckTask(const DrawDatabase& database, EditMode task, int record);

/// The row with which the correction of a record, 1..count, begins. Its date is invalid when that of the
/// record cannot be read.
[[nodiscard]] TypedRow RowOfRecord(const DrawDatabase& database, int record, const QLocale& locale);

/// Looks for what is wrong with a row, in the order in which users are told: messages 36 and 37, then for a
/// new record 45, 29, 5 and 6, for a correction or insertion 29, 5, 38, 30 and 39.
///
/// A new record that passes the first two marks the database as changed, whatever comes of it: asking once
/// too often loses nothing. Nothing else changes.
/// @param task  Normal for a new record, Correct or Insert
[[nodiscard]] RowCheck CheckRow(DrawDatabase& database, EditMode task, const TypedRow& row,
                                const QLocale& locale);

/// Puts a row that CheckRow found nothing wrong with into the records: over the chosen one in a correction,
/// else behind the last. After a correction or insertion SortByDate takes it to its place.
///
/// @param record  the record that is corrected, 1..count; of no meaning to the other tasks
void EnterRow(DrawDatabase& database, EditMode task, int record, const TypedRow& row);

/// Empties the database but for its shape and draw days: the lottery goes on drawing on its days.
void DeleteAllRecords(DrawDatabase& database);

/// Gives a database without records the shape that is typed for it; one with records keeps its own. Either is
/// held to 1..10 picks and 1..60 numbers.
void TakeShape(DrawDatabase& database, double picks, double highest);

/// The date that the 'New' row shows when nothing was typed: that of the draw after the last record. Without
/// records, today, whose weekday becomes a draw day; also today behind a record whose date cannot be read.
/// Never the deletion mark.
[[nodiscard]] QDate DateOfNewRow(DrawDatabase& database, QDate today, const QLocale& locale);

/// The date typed for a draw; empty for a text that is no date and for the deletion mark, since a draw that
/// carried it would be dropped by the next sort.
[[nodiscard]] std::optional<QDate> ParseDrawDate(const QString& text, const QLocale& locale);
