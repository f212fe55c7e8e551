#pragma once

#include "app/LGLOBAL.h"
#include "app/Prompts.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// The three files that people trust the program with.
enum class SavedFile { Lottery, Settings, Statement };

inline constexpr std::array<SavedFile, 3> kSavedFiles{SavedFile::Lottery, SavedFile::Settings,
                                                      SavedFile::Statement};

/// "lottery", "settings" or "statement".
[[nodiscard]] QString NameOf(SavedFile file);

/// How the file is called in the tests; the settings have no other name.
[[nodiscard]] QString FileNameOf(SavedFile file);

/// The beginning of what the user is told when the file could not be saved.
[[nodiscard]] QString RefusalOf(SavedFile file);

/// What a running program holds, made up from a seed, so that the file it saves says which one it is.
class SaveTrial
{
public:
    /// @param size  of the file in bytes, roughly; from 300 on
    SaveTrial(SavedFile file, int seed, int size);

    /// Saves it with the program's own command.
    /// @return what the user was told, each message with its reason below it; empty after a success
    [[nodiscard]] QStringList Save(const QString& path);

    /// What a file must hold to the last byte after this was saved.
    [[nodiscard]] const QByteArray& Bytes() const { return m_bytes; }

    /// True when nothing was changed since it was made but what each attempt to save changes.
    [[nodiscard]] bool IsAsMade() const;

private:
    void MakeUp();

    SavedFile m_file;
    int m_seed;
    int m_size;
    LGLOBAL m_shared;
    InvestmentStatement m_statement;
    QByteArray m_bytes;
};

/// The seed of the content that these bytes are to the last one; empty when they are none.
[[nodiscard]] std::optional<int> SeedOf(SavedFile file, const QByteArray& bytes, int size);
