// Writes a made-up lottery database file, the same at every call: made_lottery FILE RECORDS PICKS HIGHEST

#include "app/SafeFile.h"
#include "bench/MadeLottery.h"

#include <QFile>

#include <cstdio>

int main(int argc, char* argv[])
{
    constexpr int kArguments = 5;
    if (argc != kArguments) {
        std::fputs("made_lottery FILE RECORDS PICKS HIGHEST\n", stderr);
        return 2;
    }
    const QByteArray bytes = MadeLotteryFile(QByteArray(argv[2]).toInt(), QByteArray(argv[3]).toInt(),
                                             QByteArray(argv[4]).toInt());
    const Outcome saved = SaveFileBytes(QFile::decodeName(argv[1]), bytes);
    if (!saved.ok) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(saved.reason));
    }
    return saved.ok ? 0 : 1;
}
