#include "samples/SampleLottery.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPicks = 6;
constexpr int kHighest = 49;
constexpr int kDraws = 1200;
constexpr int kWednesday = 4; // Sunday is 1
constexpr int kSaturday = 7;
constexpr std::uint64_t kSeed = 20150107;

/// A whole number from 0 to @p count - 1, each equally likely. The standard leaves open how its own
/// distributions come to their results; this one gives the same numbers everywhere.
std::uint64_t Below(std::uint64_t count, std::mt19937_64& random)
{
    constexpr std::uint64_t kLast = std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t end = kLast - kLast % count; // a multiple of count, so no remainder comes too often
    std::uint64_t value = random();
    while (value >= end) {
        value = random();
    }
    return value % count;
}

/// Six balls out of 49, in the order they come: the first steps of a Fisher-Yates shuffle.
std::vector<int> Draw(std::mt19937_64& random)
{
    std::vector<int> balls(kHighest);
    std::iota(balls.begin(), balls.end(), 1);
    for (std::size_t i = 0; i < kPicks; ++i) {
        std::swap(balls.at(i), balls.at(i + Below(balls.size() - i, random)));
    }
    balls.resize(kPicks);
    return balls;
}

} // namespace

DrawDatabase SampleLottery()
{
    DrawDatabase database;
    database.columns = kPicks + 2;
    database.highest = kHighest;
    database.title = u"Sample Lottery (made up)"_s;
    for (int day = 1; day <= 7; ++day) {
        database.CheckDay(day, day == kWednesday || day == kSaturday);
    }
    const QDate firstWednesday(2015, 1, 7);
    std::mt19937_64 random(kSeed);
    for (int i = 0; i < kDraws; ++i) {
        const bool onSaturday = i % 2 != 0;
        const QDate date = firstWednesday.addDays(i / 2 * 7 + (onSaturday ? kSaturday - kWednesday : 0));
        if (!database.Append(date, Draw(random))) {
            break; // the table has room for more than these
        }
    }
    return database;
}
