#pragma once

#include "app/DrawDatabase.h"

#include <QDate>
#include <QLocale>

/// The date that marks a record for deletion: no real draw may carry it. It never leaves memory, since the
/// sort that follows the marking drops the record.
[[nodiscard]] inline QDate DeletionMark()
{
    return {2500, 2, 19};
}

/// Sorts the records by date, numbers them by their rows, and drops a record that carries the deletion mark.
///
/// Records of equal date do not keep their order. The mark counts as later than any date. A text that is no
/// date counts as earlier than any date, so that no record is lost.
/// @return how many records have no date that can be read; they stand first.
int SortByDate(DrawDatabase& database, const QLocale& locale);

/// Deletes a record, 1..count, and sorts; other numbers change nothing.
/// @return as SortByDate
int DeleteRecord(DrawDatabase& database, int record, const QLocale& locale);
