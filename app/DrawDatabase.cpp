#include "app/DrawDatabase.h"

#include <algorithm>

LotteryShape DrawDatabase::Shape() const
{
    return {std::clamp(columns - 2, 1, kMostPicks), std::clamp<int>(highest, 1, kMostNumbers)};
}

DrawDays DrawDatabase::CheckedDays() const
{
    DrawDays days{};
    for (std::size_t day = 1; day < days.size(); ++day) {
        days.at(day) = CellNumber(drawDays.at(day).weekday) != 0;
    }
    return days;
}

void DrawDatabase::CheckDay(int weekday, bool isDrawDay)
{
    if (weekday >= 1 && weekday <= 7) {
        drawDays.at(static_cast<std::size_t>(weekday)).weekday = isDrawDay ? weekday : 0;
    }
}

void DrawDatabase::Empty()
{
    std::fill(records.begin(), records.end(), DrawRecord{});
    drawDays = {};
    count = 0;
    title.clear();
    fileName.clear();
}

bool DrawDatabase::Append(const Cell& date, const std::vector<int>& numbers)
{
    if (count < 0 || count + 1 >= kRecordRows) {
        return false;
    }
    ++count;
    DrawRecord& record = records.at(static_cast<std::size_t>(count));
    record = {};
    record.number = static_cast<int>(count);
    record.date = date;
    const std::size_t used = std::min(numbers.size(), record.drawn.size());
    std::copy_n(numbers.begin(), used, record.drawn.begin());
    return true;
}
