#include "bench/MadeLottery.h"

#include "app/LotteryFile.h"

#include <numeric>
#include <random>
#include <utility>

using namespace Qt::StringLiterals;

DrawDatabase MadeLottery(int records, int picks, int highest)
{
    constexpr std::uint32_t kSeed = 649;
    std::mt19937 random(kSeed); // NOLINT(bugprone-random-generator-seed): the same draws every time
    std::vector<int> balls(static_cast<std::size_t>(highest));
    std::iota(balls.begin(), balls.end(), 1);

    DrawDatabase database;
    database.columns = static_cast<qint16>(picks + 2);
    database.highest = static_cast<qint16>(highest);
    database.title = u"Made-up Lottery"_s;
    database.CheckDay(4, true);
    database.CheckDay(7, true);
    QDate date(1996, 1, 6); // a Saturday
    for (int record = 1; record <= records; ++record) {
        std::vector<int> draw(kMostPicks);
        for (std::size_t i = 0; i < static_cast<std::size_t>(picks); ++i) {
            std::swap(balls.at(i), balls.at(i + random() % (balls.size() - i)));
            draw.at(i) = balls.at(i);
        }
        database.Append(date, draw);
        date = date.addDays(date.dayOfWeek() == Qt::Saturday ? 4 : 3);
    }
    return database;
}

QByteArray MadeLotteryFile(int records, int picks, int highest)
{
    QByteArray bytes;
    const Outcome written = WriteLotteryFile(MadeLottery(records, picks, highest), QLocale::c(), bytes);
    Q_ASSERT(written.ok);
    return bytes;
}
