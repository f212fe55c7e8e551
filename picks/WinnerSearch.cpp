#include "picks/WinnerSearch.h"

#include "app/TextPictures.h"

#include <algorithm>
#include <cmath>

namespace {

bool IsFilled(const QString& box)
{
    return !box.isEmpty();
}

/// Says of a cell in how many of the player's boxes its number stands, with one look into a table.
class YourNumbers
{
public:
    YourNumbers(const WinnerQuery& query, int picks)
    {
        for (int i = 0; i < picks; ++i) {
            const auto number = static_cast<std::size_t>(query.yourNumbers.at(static_cast<std::size_t>(i)));
            if (number > 0 && number < m_boxes.size()) {
                ++m_boxes[number];
            }
        }
    }

    [[nodiscard]] int CountIn(const Cell& cell) const
    {
        if (const int* whole = std::get_if<int>(&cell)) {
            const auto number = static_cast<std::size_t>(*whole);
            return number < m_boxes.size() ? m_boxes[number] : 0;
        }
        return CountOf(CellNumber(cell));
    }

private:
    [[nodiscard]] int CountOf(double value) const
    {
        const bool isNumber = value >= 1 && value <= kMostNumbers && value == std::floor(value);
        return isNumber ? m_boxes[static_cast<std::size_t>(value)] : 0;
    }

    std::array<quint8, kMostNumbers + 1> m_boxes{}; ///< entry n: how many boxes hold n; none holds 0
};

/// The last record that the table can have.
int LastRow(const DrawDatabase& database)
{
    return std::min<int>(database.count, static_cast<int>(database.records.size()) - 1);
}

} // namespace

std::optional<WinnerFault> CheckYourNumbers(const QStringList& boxes, int minimum, int highest)
{
    constexpr int kNumberTooHigh = 5;
    constexpr int kDuplicateNumbers = 37;
    constexpr int kNumberIsZero = 38;
    constexpr int kMinimumTooHigh = 42;
    const auto filled = std::count_if(boxes.cbegin(), boxes.cend(), IsFilled);
    for (const QString& box : boxes) {
        if (IsFilled(box)) {
            const double value = Val(box);
            if (value > highest) {
                return WinnerFault{kNumberTooHigh, box};
            }
            if (value < 1) {
                return WinnerFault{kNumberIsZero, {}};
            }
        }
        // Asked after every box, so it comes before what may be wrong with the second one.
        if (filled < minimum) {
            return WinnerFault{kMinimumTooHigh, {}};
        }
    }
    for (qsizetype a = 0; a < boxes.size(); ++a) {
        for (qsizetype b = a + 1; b < boxes.size(); ++b) {
            if ((IsFilled(boxes.at(a)) || IsFilled(boxes.at(b))) && Val(boxes.at(a)) == Val(boxes.at(b))) {
                return WinnerFault{kDuplicateNumbers, {}};
            }
        }
    }
    return std::nullopt;
}

WinnerQuery QueryIn(const QStringList& boxes, int minimum)
{
    WinnerQuery query{.minimum = minimum};
    const auto used = std::min(static_cast<std::size_t>(boxes.size()), query.yourNumbers.size());
    for (std::size_t i = 0; i < used; ++i) {
        query.yourNumbers.at(i) = static_cast<int>(Val(boxes.at(static_cast<qsizetype>(i))));
    }
    return query;
}

std::vector<int> FindWinners(const DrawDatabase& database, const WinnerQuery& query)
{
    const int picks = database.Shape().picks;
    const YourNumbers yours(query, picks);
    const int last = LastRow(database);
    std::vector<int> winners;
    for (int row = 1; row <= last; ++row) {
        const DrawRecord& record = database.records[static_cast<std::size_t>(row)];
        int matches = 0;
        for (int pick = 0; pick < picks; ++pick) {
            matches += yours.CountIn(record.drawn[static_cast<std::size_t>(pick)]);
        }
        if (matches >= query.minimum) {
            winners.push_back(row);
        }
    }
    return winners;
}

int ListWinners(const DrawDatabase& database, const WinnerQuery& query, std::vector<DrawRecord>& results)
{
    const std::vector<int> winners = FindWinners(database, query);
    const auto picks = static_cast<std::size_t>(database.Shape().picks);
    const YourNumbers yours(query, static_cast<int>(picks));
    results.clear();
    results.resize(winners.size() + 1);
    for (std::size_t i = 0; i < winners.size(); ++i) {
        const DrawRecord& record = database.records[static_cast<std::size_t>(winners[i])];
        DrawRecord& row = results[i + 1];
        row.number = record.number;
        row.date = record.date;
        // Asked once more: to note the places of every record in the search would cost more than it saves
        // here.
        for (std::size_t pick = 0; pick < picks; ++pick) {
            if (yours.CountIn(record.drawn[pick]) > 0) {
                row.drawn[pick] = record.drawn[pick];
            }
        }
    }
    return static_cast<int>(winners.size());
}
