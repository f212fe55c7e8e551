#pragma once

#include "app/DrawDatabase.h"
#include "app/EditMode.h"
#include "database/RecordTasks.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <array>
#include <compare>
#include <limits>
#include <optional>
#include <vector>

/// A draw as the model keeps it: its day by the calendar and plain numbers.
struct ModelDraw {
    static constexpr qint64 kNoDay = std::numeric_limits<qint64>::min(); ///< sorts before every day
    static constexpr qint64 kMarkedDay = 2634216;                        ///< 19 February 2500

    qint64 day = kNoDay; ///< kNoDay for a date that cannot be read
    std::array<double, kMostPicks> numbers{};

    auto operator<=>(const ModelDraw&) const = default;
};

/// What the editor is to do, written a second time and as simply as it goes: a list of draws, and loops over
/// it. It shares no code with the program but the reading of a cell.
struct EditorModel {
    std::vector<ModelDraw> draws;
    int picks = 0;
    int highest = 0;
    std::array<bool, 8> drawDays{}; ///< entry 1 is Sunday
    QString title;
    bool modified = false;

    /// The draws, shape, days, title and mark of a database, whatever they are.
    [[nodiscard]] static EditorModel Of(const DrawDatabase& database, const QLocale& locale);

    /// The number of the message that a row must bring, 0 for none.
    [[nodiscard]] int ExpectedMessage(EditMode task, const TypedRow& row) const;

    /// The row as a draw. @param before  what it is written over
    [[nodiscard]] ModelDraw DrawOf(const TypedRow& row, ModelDraw before) const;

    /// The day that must stand in the 'New' row. Without draws today becomes a draw day.
    [[nodiscard]] QDate ExpectedDate(QDate today);

    /// True when @p sorted is what these draws can come out of a sort as: the same, in the order of their
    /// days. Draws of one day may stand in any order.
    /// @param dropsTheMarked  one draw of the day of the deletion mark, which stands last, is then gone
    [[nodiscard]] bool SortsTo(const std::vector<ModelDraw>& sorted, bool dropsTheMarked) const;

    /// By number: how often it was drawn, and how many draws ago; all draws when it never was.
    struct Counts {
        std::array<int, kMostNumbers + 1> timesDrawn{};
        std::array<int, kMostNumbers + 1> sinceLastDrawn{};
    };
    [[nodiscard]] Counts CountAll() const;
};
