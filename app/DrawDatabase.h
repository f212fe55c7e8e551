#pragma once

#include "app/Cell.h"

#include <QString>

#include <array>
#include <vector>

inline constexpr int kRecordRows = 2003; ///< rows 0..2002: row 0 is never used, the last is working room
inline constexpr int kAnnouncedRecords = 2000; ///< the limit users are told
inline constexpr int kMostPicks = 10;
inline constexpr int kMostNumbers = 60;
inline constexpr int kRecordCells = 12; ///< fields of a record in a file: number, date, ten numbers

/// One recorded draw. A plain value: copy it, compare it, keep it in a table.
struct DrawRecord {
    Cell number;                        ///< equals the row it stands in
    Cell date;                          ///< a calendar day, or the text that stood in the file
    std::array<Cell, kMostPicks> drawn; ///< in drawn order, 1..highest; unused places are empty or 0

    bool operator==(const DrawRecord&) const = default;
};

/// One row of the draw-day table.
struct DrawDay {
    Cell carried; ///< kept with the database and written to the file unchanged
    Cell weekday; ///< the row's own number when the lottery draws on that day, 0 when not

    bool operator==(const DrawDay&) const = default;
};

/// Rows 0..10; row 1 is Sunday .. row 7 Saturday, rows 0 and 8..10 are only carried.
using DrawDayTable = std::array<DrawDay, 11>;

/// entry d is true when the lottery draws on weekday d, Sunday = 1 .. Saturday = 7; entry 0 is not used
using DrawDays = std::array<bool, 8>;

/// (picks per draw, highest number), e.g. 6/49.
struct LotteryShape {
    int picks = 0;
    int highest = 0;

    bool operator==(const LotteryShape&) const = default;
};

/// The open lottery database. There is always one; without records it is the empty database of its shape.
struct DrawDatabase {
    std::vector<DrawRecord> records =
        std::vector<DrawRecord>(kRecordRows); ///< row r is the r-th draw, 1..count
    qint16 count = 0;                         ///< records in use, 0..2001; a file may hold 2002
    qint16 columns = 0;                       ///< picks per draw + 2; a file may hold anything, see Shape()
    qint16 highest = 0; ///< highest number that can be drawn; a file may hold anything, see Shape()
    QString title;      ///< name of the lottery
    QString fileName;   ///< name without folder of the file last loaded or saved, "" when none
    DrawDayTable drawDays;
    qint16 modified = 0; ///< 1 when records were added since the last load or save

    /// The shape held to 1..10 picks and 1..60 numbers: no value from a file leads out of a table.
    [[nodiscard]] LotteryShape Shape() const;

    /// Which weekdays are draw days: those whose entry has a numeric value other than 0.
    [[nodiscard]] DrawDays CheckedDays() const;

    /// Marks weekday 1..7 as a draw day, or clears the mark. Other values change nothing.
    void CheckDay(int weekday, bool isDrawDay);

    /// Every record and draw day empty, count 0, no title, no file name. The shape stays.
    void Empty();

    /// Writes a record behind the last one and numbers it.
    /// @return false, with nothing changed, when the table has no row left.
    bool Append(const Cell& date, const std::vector<int>& numbers);
};
