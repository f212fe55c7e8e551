#pragma once

#include <QString>
#include <QStringList>

/// Where the program keeps "Personal.Lot", "Sample.Lto", "Sample.inv" and "Extract.lto".
struct ProgramFolderChoice {
    QString executableFolder; ///< taken when it can be written; "" for a program installed for many
    QString dataFolder;       ///< the user's own, taken otherwise
    QString asked;            ///< a folder asked for on the command line goes before both; "" for none
};

/// The absolute path of the program folder. The user's data folder and a folder asked for are made when they
/// are not there; a folder made here for the first time receives a copy of each sample, under its own name.
///
/// @param samples  the first of them marks a data folder as one made by an earlier version: as long as it is
///                 there, the others that are missing are put beside it. They cannot be told from samples
///                 that the user threw away.
[[nodiscard]] QString ChooseProgramFolder(const ProgramFolderChoice& choice, const QStringList& samples);

/// The samples to give to ChooseProgramFolder, and whether the program was installed for many users. Then
/// each sample comes from the folder of the installation; one that is missing there, and all others, from the
/// program itself.
struct FoundSamples {
    QStringList files;
    bool isInstalled = false;
};

/// @param executableFolder  of the running program
/// @param folder            the samples of an installation, as seen from there; it is what tells one
/// @param own               the samples that the program carries with it, in their order
[[nodiscard]] FoundSamples FindSamples(const QString& executableFolder, const QString& folder,
                                       const QStringList& own);
