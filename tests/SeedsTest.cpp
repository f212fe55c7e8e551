// What the fuzzers begin with, and what they ever found, run through their checks in every build. A check
// that does not hold ends the process. New cases go to fuzz/seeds.

#include "tests/TestFiles.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>

extern "C" {
int FuzzEditorWalk(const unsigned char* data, std::size_t size);
int FuzzInvestmentFile(const unsigned char* data, std::size_t size);
int FuzzLotteryFile(const unsigned char* data, std::size_t size);
int FuzzRecoveryCopy(const unsigned char* data, std::size_t size);
int FuzzSettings(const unsigned char* data, std::size_t size);
int FuzzText(const unsigned char* data, std::size_t size);
}

namespace {

struct Fuzzer {
    const char* seeds; ///< the folder of fuzz/seeds
    int (*run)(const unsigned char*, std::size_t);
};

void PrintTo(const Fuzzer& fuzzer, std::ostream* out)
{
    *out << fuzzer.seeds;
}

class Seeds : public testing::TestWithParam<Fuzzer>
{};

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, Seeds,
                         testing::Values(Fuzzer{"editor_walk", FuzzEditorWalk},
                                         Fuzzer{"investment_file", FuzzInvestmentFile},
                                         Fuzzer{"lottery_file", FuzzLotteryFile},
                                         Fuzzer{"recovery_copy", FuzzRecoveryCopy},
                                         Fuzzer{"settings", FuzzSettings}, Fuzzer{"text", FuzzText}),
                         [](const auto& one) { return std::string(one.param.seeds); });

TEST_P(Seeds, HoldEveryCheck)
{
    const QDir folder(QStringLiteral(QUILLABY_SEEDS "/") + QString::fromLatin1(GetParam().seeds));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    EXPECT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        const QByteArray bytes = BytesOf(folder.filePath(name));
        for (qsizetype size = bytes.size(); size >= 0; size -= size / 4 + 1) { // cut short too
            EXPECT_EQ(GetParam().run(reinterpret_cast<const unsigned char*>(bytes.constData()),
                                     static_cast<std::size_t>(size)),
                      0)
                << name.toStdString();
        }
    }
}
