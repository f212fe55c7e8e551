#pragma once

#include "app/DrawDatabase.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A message that stops an entry, by its number in the message table.
struct EntryFault {
    int message = 0;
    QString arg1;
};

/// True when the first box is empty or 0: there is no row to add.
[[nodiscard]] bool RowIsEmpty(const QStringList& boxes);

/// How many pairs of boxes hold the same value other than 0.
[[nodiscard]] int CountDuplicatePairs(const QStringList& boxes);

/// The first box, in order, that is empty (message 29), above @p highest (5, quoting the text of the box) or
/// below 1 (@p zeroMessage); empty when every box holds a number of the lottery.
///
/// @param zeroMessage  6 for a new row, 38 for a correction or an insertion: the same words, two numbers
[[nodiscard]] std::optional<EntryFault> CheckNumbers(const QStringList& boxes, int highest, int zeroMessage);

/// The values of boxes that CheckNumbers found nothing wrong with.
[[nodiscard]] std::vector<int> NumbersIn(const QStringList& boxes);

/// Message 39, quoting the last record's date, when @p date is later than that; empty when it is not, or when
/// the last record's date cannot be read.
[[nodiscard]] std::optional<EntryFault> CheckNotAfterLastRecord(const DrawDatabase& database, QDate date,
                                                                const QLocale& locale);

/// Writes date and numbers over a record, 1..count.
void OverwriteRecord(DrawDatabase& database, int record, QDate date, const std::vector<int>& numbers);

/// True when the database takes no further record. It takes the 2,001st: the test comes before adding, and
/// users' full databases have that one record more than they are told.
[[nodiscard]] bool IsFull(const DrawDatabase& database);
