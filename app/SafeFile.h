#pragma once

#include "app/Outcome.h"

#include <QByteArray>
#include <QString>

/// No file of ours comes near this size; a larger one is not one of ours.
inline constexpr qint64 kLargestFile = qint64{16} * 1024 * 1024;

/// Reads a whole regular file of at most kLargestFile bytes; folders, devices and pipes are refused unopened.
/// On failure the reason is the system's own and @p bytes is untouched.
[[nodiscard]] Outcome ReadFileBytes(const QString& path, QByteArray& bytes);

/// Who may read a file that is new. A file that is replaced keeps its permissions.
enum class NewFileFor { Everyone, OwnerAlone };

/// Saves so that the file holds either its old content or the new, never a mixture and never nothing: the
/// bytes go to a new file in the same folder, are forced to the disk, take the old file's place, and are read
/// back. Links are followed. Only a regular file is ever replaced.
///
/// On failure the reason is the system's own, and an old file is whole; only when the very last steps fail,
/// with the new file in its place already, it is the new one that is whole.
[[nodiscard]] Outcome SaveFileBytes(const QString& path, const QByteArray& bytes,
                                    NewFileFor readers = NewFileFor::Everyone);
