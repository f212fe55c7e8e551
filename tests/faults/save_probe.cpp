// Saves made-up content with the program's own commands, so that save_faults.sh can break the system under
// them. The content begins with its seed, so that a file says which one it is.
//
//   save_probe save KIND PATH SIZE SEED    exits 0 when it is said to be saved; 3 with what the user is told
//   when
//                                          not; 4 when the refusal was not the proper one or left other
//                                          things in memory than before
//   save_probe seed KIND PATH SIZE         prints the seed of the content that the file holds to the last
//   byte;
//                                          exits 3 when it holds none
//
// KIND is lottery, settings or statement. The file names are those that FileNameOf gives.

#include "tests/faults/SavedFiles.h"

#include <QFile>

#include <cstdio>
#include <string_view>

namespace {

constexpr int kDone = 0;
constexpr int kUsage = 2;
constexpr int kNotSaved = 3;
constexpr int kNotAsItShould = 4;

int Save(SavedFile kind, const QString& path, int size, int seed)
{
    SaveTrial trial(kind, seed, size);
    const QStringList told = trial.Save(path);
    if (told.isEmpty()) {
        return kDone;
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(told.join(u'\n')));
    const bool isProper = told.size() == 1 && told.first().startsWith(RefusalOf(kind)) &&
                          told.first().size() > RefusalOf(kind).size();
    return isProper && trial.IsAsMade() ? kNotSaved : kNotAsItShould;
}

int PrintSeed(SavedFile kind, const QString& path, int size)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return kNotSaved;
    }
    const std::optional<int> seed = SeedOf(kind, file.readAll(), size);
    if (!seed) {
        return kNotSaved;
    }
    std::printf("%d\n", *seed);
    return kDone;
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int kForSeed = 5;
    constexpr int kForSave = 6;
    const std::string_view verb = argc > 1 ? argv[1] : "";
    if (!(verb == "save" && argc == kForSave) && !(verb == "seed" && argc == kForSeed)) {
        std::fputs("save_probe save KIND PATH SIZE SEED | seed KIND PATH SIZE\n", stderr);
        return kUsage;
    }
    const QString path = QFile::decodeName(argv[3]);
    const int size = QByteArray(argv[4]).toInt();
    for (const SavedFile kind : kSavedFiles) {
        if (NameOf(kind) == QString::fromLatin1(argv[2])) {
            return verb == "save" ? Save(kind, path, size, QByteArray(argv[kForSeed]).toInt())
                                  : PrintSeed(kind, path, size);
        }
    }
    return kUsage;
}
