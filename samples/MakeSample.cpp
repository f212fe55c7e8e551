#include "app/LotteryFile.h"
#include "app/SafeFile.h"
#include "samples/SampleLottery.h"

#include <QFile>

#include <cstdio>

/// Writes the sample database to the file named on the command line.
int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("Usage: make_sample FILE\n", stderr);
        return 2;
    }
    QByteArray bytes;
    Outcome outcome = WriteLotteryFile(SampleLottery(), QLocale::c(), bytes);
    if (outcome.ok) {
        outcome = SaveFileBytes(QFile::decodeName(argv[1]), bytes);
    }
    if (!outcome.ok) {
        std::fputs((outcome.reason + u'\n').toLocal8Bit().constData(), stderr);
        return 1;
    }
    return 0;
}
