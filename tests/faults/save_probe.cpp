// Saves made-up bytes through the program's own saving routine, so that save_faults.sh can break the system
// under it. Every content begins with its seed, so that a file says which one it is.
//
//   save_probe save PATH SIZE SEED    exits 0 when the bytes are said to be saved, 3 with the reason when not
//   save_probe loop PATH SIZE         saves the seeds 1, 2, 3 and so on until it is killed
//   save_probe seed PATH SIZE         prints the seed of the content that the file holds to the last byte;
//                                     exits 3 when it holds none

#include "app/SafeFile.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstdio>
#include <string_view>

namespace {

constexpr int kDone = 0;
constexpr int kUsage = 2;
constexpr int kNotSaved = 3;

QByteArray MadeUpBytes(int seed, int size)
{
    constexpr unsigned kMultiplier = 1664525U;
    constexpr unsigned kIncrement = 1013904223U;
    QByteArray bytes = QByteArray::number(seed) + '\n';
    unsigned state = static_cast<unsigned>(seed);
    while (bytes.size() < size) {
        state = state * kMultiplier + kIncrement;
        bytes += static_cast<char>('0' + (state >> 24U) % 64U);
    }
    return bytes;
}

int Save(const QString& path, int size, int seed)
{
    const Outcome saved = SaveFileBytes(path, MadeUpBytes(seed, size));
    if (saved.ok) {
        return kDone;
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(saved.reason));
    return kNotSaved;
}

int SaveUntilKilled(const QString& path, int size)
{
    int result = kDone;
    for (int seed = 1; result == kDone; ++seed) {
        result = Save(path, size, seed);
    }
    return result;
}

int PrintSeed(const QString& path, int size)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return kNotSaved;
    }
    const QByteArray bytes = file.readAll();
    const int seed = bytes.first(qMax<qsizetype>(bytes.indexOf('\n'), 0)).toInt();
    if (bytes != MadeUpBytes(seed, size)) {
        return kNotSaved;
    }
    std::printf("%d\n", seed);
    return kDone;
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int kFirstOptional = 4;
    if (argc < kFirstOptional) {
        std::fputs("save_probe save PATH SIZE SEED | loop PATH SIZE | seed PATH SIZE\n", stderr);
        return kUsage;
    }
    const std::string_view verb = argv[1];
    const QString path = QFile::decodeName(argv[2]);
    const int size = QByteArray(argv[3]).toInt();
    if (verb == "save" && argc == kFirstOptional + 1) {
        return Save(path, size, QByteArray(argv[kFirstOptional]).toInt());
    }
    if (verb == "loop") {
        return SaveUntilKilled(path, size);
    }
    return verb == "seed" ? PrintSeed(path, size) : kUsage;
}
