#pragma once

#include "app/DrawDatabase.h"
#include "app/Outcome.h"

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <optional>
#include <vector>

/// The two layouts a lottery database file is read in; only Current is ever written.
/// docs/file-formats.md describes both.
enum class LotteryLayout { Current, Older };

/// What a lottery database file holds.
struct LotteryFileContent {
    qint16 count = 0;
    qint16 columns = 0;
    qint16 highest = 0;
    QString title;
    DrawDayTable drawDays;
    std::vector<DrawRecord> records; ///< count records, the first at index 0
};

struct LotteryReading {
    std::optional<LotteryFileContent> content; ///< empty when the bytes are not a file of that layout
    QString reason;                            ///< then a sentence that says what is wrong and where
};

/// Reads the bytes of a lottery database file in one layout.
///
/// The shape is taken as it stands, whatever its values. Refused are: a header field that is no number or
/// does not fit 16 bits, fewer fields than the count asks for, a count or a record number beyond the table, a
/// last number other than 0 with no comma or line end behind it (it may have lost digits), and in the older
/// layout a record whose date is no date. Records are numbered by the row they stand in, whatever number the
/// file gives them.
///
/// @param locale  in which a date written as a text is read
[[nodiscard]] LotteryReading ReadLotteryFile(const QByteArray& bytes, LotteryLayout layout,
                                             const QLocale& locale);

/// Who a file is written for. A recovery copy holds all there is, also what a file of the user's cannot.
enum class WrittenFor { TheUser, ARecoveryCopy };

/// The bytes of the file of the current layout that holds @p database.
/// Fails, leaving @p bytes as they are, when a record's date is no date, a number is not finite, or a text
/// has a character outside ISO 8859-1.
/// @param purpose  a recovery copy takes dates and texts as they are, and is written in UTF-8 when a
/// character
///                 needs it; of a file that can be written for the user its bytes are the same
[[nodiscard]] Outcome WriteLotteryFile(const DrawDatabase& database, const QLocale& locale, QByteArray& bytes,
                                       WrittenFor purpose = WrittenFor::TheUser);

/// Puts what was read in the place of the open database. Its unsaved-changes flag stays as it is.
void ReplaceDatabase(DrawDatabase& database, LotteryFileContent&& content, const QString& fileName);
