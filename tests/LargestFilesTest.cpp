// A file may have sixteen MiB before it is refused unread. Whatever stands in them, each reader answers, and
// holds no more than a few times as much: a file from anywhere must not stop the machine.

#include "app/AppSettings.h"
#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "invest/InvestmentFile.h"

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace {

/// The most memory that the program has held so far, in MiB; 0 where that is not known.
long PeakMemory()
{
#ifdef Q_OS_LINUX
    rusage used{};
    return getrusage(RUSAGE_SELF, &used) == 0 ? used.ru_maxrss / 1024 : 0;
#else
    return 0;
#endif
}

class LargestFiles : public testing::TestWithParam<QByteArray>
{
protected:
    void TearDown() override
    {
#ifndef QUILLABY_SANITIZED // whose own tables count as well
        constexpr long kSixTimesTheFile = 96;
        EXPECT_LE(PeakMemory() - m_before, kSixTimesTheFile);
#endif
    }

    const QByteArray m_bytes = GetParam() + GetParam().right(1).repeated(kLargestFile - GetParam().size());
    long m_before = PeakMemory();
};

TEST_P(LargestFiles, AsALotteryAreAnsweredWithAWholeDatabaseOrARefusal)
{
    for (const LotteryLayout layout : {LotteryLayout::Current, LotteryLayout::Older}) {
        const LotteryReading reading = ReadLotteryFile(m_bytes, layout, QLocale::c());
        EXPECT_EQ(reading.content.has_value(), reading.reason.isEmpty());
    }
}

TEST_P(LargestFiles, AsAStatementAreAnsweredWithOneOrARefusal)
{
    const InvestmentReading reading = ReadInvestmentFile(m_bytes);
    EXPECT_EQ(reading.statement.has_value(), reading.reason.isEmpty());
}

TEST_P(LargestFiles, AsSettingsLeaveEverySettingInItsRange)
{
    AppSettings settings;
    (void)ReadSettings(m_bytes, settings);
    EXPECT_GE(settings.defaultPicks, 1);
    EXPECT_LE(settings.defaultPicks, 10);
    EXPECT_GE(settings.defaultHighest, 1);
    EXPECT_LE(settings.defaultHighest, 60);
}

// The last byte of each goes on to the end of the file.
INSTANTIATE_TEST_SUITE_P(OfEndless, LargestFiles,
                         testing::Values(QByteArray("\n"), QByteArray(","), QByteArray("\""), QByteArray("9"),
                                         QByteArray(1, '\0'), QByteArray("2,8,49,\"T"),
                                         QByteArray("3\r\n\"a"),
                                         QByteArray("2,8,49,\"T\",3,0,7\r\n1,#2004-03-10#,5")));

} // namespace
