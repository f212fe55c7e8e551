#pragma once

#include <QString>
#include <QStringList>

/// The files last opened or saved, lottery databases and investment statements: a list that the program keeps
/// in a file of its own, apart from the personal settings. It is a convenience: whatever goes wrong with it
/// goes unsaid. The files that it names are not touched by anything here, for one of them may lie on a
/// network that does not answer.

inline constexpr int kMostRecentFiles = 10;

/// The absolute paths in the list, the last opened or saved first; at most kMostRecentFiles. A list that is
/// not there is empty, and a line that is no path is passed over.
/// @param list  the file that keeps the list, as everywhere here; "" keeps none
[[nodiscard]] QStringList RecentFiles(const QString& list);

/// Puts a file first. The list is read anew before, so that what another running program has put there
/// stays.
/// @param path  absolute; what is compiled into the program is not remembered
void RememberFile(const QString& list, const QString& path);

/// Takes one file off the list.
void ForgetFile(const QString& list, const QString& path);

/// Empties the list.
void ForgetAllFiles(const QString& list);
