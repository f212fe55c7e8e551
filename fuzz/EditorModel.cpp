#include "fuzz/EditorModel.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// -1 for a box without a figure. The boxes take figures only.
int BoxValue(const QString& box)
{
    int value = box.isEmpty() ? -1 : 0;
    for (const QChar figure : box) {
        value = value * 10 + (figure.unicode() - '0');
    }
    return value;
}

int WeekdayFrom1(qint64 day)
{
    return static_cast<int>((day + 1) % 7) + 1; // Julian day 6 was a Sunday
}

/// The first draw day of the seven that follow; without a draw day the Saturday of the day's own week.
qint64 NextDay(qint64 day, const std::array<bool, 8>& drawDays)
{
    const auto isDrawDay = [&drawDays](qint64 one) {
        return drawDays.at(static_cast<std::size_t>(WeekdayFrom1(one)));
    };
    for (qint64 next = day + 1; next <= day + 7; ++next) {
        if (isDrawDay(next)) {
            return next;
        }
    }
    return day + 7 - WeekdayFrom1(day);
}

/// The number of a cell that is one; 0 for a text, which no count takes for a number.
double PlainNumber(const Cell& cell)
{
    if (const int* whole = std::get_if<int>(&cell)) {
        return *whole;
    }
    const double* real = std::get_if<double>(&cell);
    return real != nullptr ? *real : 0;
}

} // namespace

EditorModel EditorModel::Of(const DrawDatabase& database, const QLocale& locale)
{
    EditorModel model;
    for (int row = 1; row <= database.count; ++row) {
        const DrawRecord& record = database.records.at(static_cast<std::size_t>(row));
        ModelDraw& draw = model.draws.emplace_back();
        const std::optional<QDate> date = CellDate(record.date, locale);
        draw.day = date ? date->toJulianDay() : ModelDraw::kNoDay;
        std::transform(record.drawn.begin(), record.drawn.end(), draw.numbers.begin(), PlainNumber);
    }
    model.picks = database.columns - 2;
    model.highest = database.highest;
    for (std::size_t day = 1; day < model.drawDays.size(); ++day) {
        model.drawDays.at(day) = CellNumber(database.drawDays.at(day).weekday) != 0;
    }
    model.title = database.title;
    model.modified = database.modified != 0;
    return model;
}

int EditorModel::ExpectedMessage(EditMode task, const TypedRow& row) const
{
    std::vector<int> values;
    for (const QString& box : row.boxes) {
        values.push_back(BoxValue(box));
    }
    if (values.front() <= 0) {
        return 36;
    }
    for (std::size_t a = 0; a < values.size() && !row.allowDuplicates; ++a) {
        if (values.at(a) > 0 && std::count(values.begin(), values.end(), values.at(a)) > 1) {
            return 37;
        }
    }
    if (task == EditMode::Normal && draws.size() >= 2001) {
        return 45;
    }
    for (const int value : values) {
        if (value < 0) {
            return 29;
        }
        if (value > highest) {
            return 5;
        }
        if (value == 0) {
            return task == EditMode::Normal ? 6 : 38;
        }
    }
    if (task == EditMode::Normal) {
        return 0;
    }
    if (!row.date.isValid()) {
        return 30;
    }
    const qint64 last = draws.empty() ? ModelDraw::kNoDay : draws.back().day;
    return last != ModelDraw::kNoDay && row.date.toJulianDay() > last ? 39 : 0;
}

ModelDraw EditorModel::DrawOf(const TypedRow& row, ModelDraw before) const
{
    before.day = row.date.toJulianDay();
    for (int pick = 0; pick < picks; ++pick) {
        before.numbers.at(static_cast<std::size_t>(pick)) = BoxValue(row.boxes.at(pick));
    }
    return before;
}

QDate EditorModel::ExpectedDate(QDate today)
{
    if (draws.empty()) {
        drawDays.at(static_cast<std::size_t>(WeekdayFrom1(today.toJulianDay()))) = true;
        return today;
    }
    const qint64 last = draws.back().day;
    if (last == ModelDraw::kNoDay) {
        return today;
    }
    qint64 day = NextDay(last, drawDays);
    if (day == ModelDraw::kMarkedDay) {
        day = NextDay(day, drawDays); // the mark is never proposed
    }
    const QDate date = QDate::fromJulianDay(day);
    return date.year() <= 9999 ? date : QDate::fromJulianDay(last);
}

bool EditorModel::SortsTo(const std::vector<ModelDraw>& sorted, bool dropsTheMarked) const
{
    const auto earlier = [](const ModelDraw& a, const ModelDraw& b) {
        return a.day != ModelDraw::kMarkedDay && (b.day == ModelDraw::kMarkedDay || a.day < b.day);
    };
    if (!std::is_sorted(sorted.begin(), sorted.end(), earlier)) {
        return false;
    }
    std::vector<ModelDraw> before = draws;
    std::vector<ModelDraw> after = sorted;
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    std::vector<ModelDraw> gone;
    std::set_difference(before.begin(), before.end(), after.begin(), after.end(), std::back_inserter(gone));
    if (gone.size() + after.size() != before.size()) {
        return false; // there are draws that were not there
    }
    const bool anyMarked = std::any_of(before.begin(), before.end(), [](const ModelDraw& draw) {
        return draw.day == ModelDraw::kMarkedDay;
    });
    return dropsTheMarked && anyMarked ? gone.size() == 1 && gone.front().day == ModelDraw::kMarkedDay
                                       : gone.empty();
}

EditorModel::Counts EditorModel::CountAll() const
{
    Counts counts;
    counts.sinceLastDrawn.fill(static_cast<int>(draws.size()));
    int later = static_cast<int>(draws.size());
    for (const ModelDraw& draw : draws) {
        --later;
        for (int pick = 0; pick < picks; ++pick) {
            const double number = draw.numbers.at(static_cast<std::size_t>(pick));
            if (number >= 1 && number <= highest && number == std::floor(number)) {
                const auto ball = static_cast<std::size_t>(number);
                ++counts.timesDrawn.at(ball);
                counts.sinceLastDrawn.at(ball) = later;
            }
        }
    }
    return counts;
}
