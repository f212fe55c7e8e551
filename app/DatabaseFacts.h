#pragma once

#include "app/DrawDatabase.h"

#include <QLocale>
#include <QString>

/// The title as a label or its tip shows it: a file may hold one of any length, which no window could lay
/// out.
/// @return its first 10,000 characters.
[[nodiscard]] QString ShownTitle(const DrawDatabase& database);

/// What the menu tells about the open database, in one line: its file, its shape, how many draws it holds,
/// the day of the last one, and whether it is saved. "" without records.
/// @param isSaved  as far as anything in it goes: the flag of the exit question says less, and outlives the
/// opening of
///                 another file
[[nodiscard]] QString DatabaseFacts(const DrawDatabase& database, const QLocale& locale, bool isSaved);
