#pragma once

#include "app/DrawDatabase.h"

#include <QLocale>
#include <QString>

/// What the menu tells about the open database, in one line: its file, its shape, how many draws it holds,
/// the day of the last one, and whether there are draws that no file has yet. "" without records.
[[nodiscard]] QString DatabaseFacts(const DrawDatabase& database, const QLocale& locale);
