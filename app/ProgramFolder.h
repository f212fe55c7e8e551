#pragma once

#include <QString>
#include <QStringList>

/// Where the program keeps "Personal.Lot", "Sample.Lto" and "Extract.lto".
struct ProgramFolderChoice {
    QString executableFolder; ///< taken when it can be written
    QString dataFolder;       ///< the user's own, taken otherwise
    QString asked;            ///< a folder asked for on the command line goes before both; "" for none
};

/// The absolute path of the program folder. The user's data folder and a folder asked for are made when they
/// are not there; a folder made here for the first time receives a copy of each
/// sample, under its own name.
[[nodiscard]] QString ChooseProgramFolder(const ProgramFolderChoice& choice, const QStringList& samples);
