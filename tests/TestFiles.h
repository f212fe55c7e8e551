#pragma once

#include "app/DrawDatabase.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

/// The whole content of a file; fails the test when it cannot be read.
inline QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// Puts a file there with exactly these bytes.
inline void Place(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
}

/// The names of everything in a folder, hidden files too.
inline QStringList NamesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

/// A temporary folder that is the current one as long as this lives.
class CurrentTemporaryFolder
{
public:
    CurrentTemporaryFolder() : m_before(QDir::currentPath())
    {
        EXPECT_TRUE(QDir::setCurrent(m_folder.path()));
    }
    ~CurrentTemporaryFolder() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY_MOVE(CurrentTemporaryFolder)

    [[nodiscard]] QString FilePath(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString Path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    QString m_before;
};

/// A database with made-up draws: every record differs from its neighbours, no drawn number is 0.
inline DrawDatabase MadeUpDatabase(int picks, int highest, int count)
{
    DrawDatabase database;
    database.columns = static_cast<qint16>(picks + 2);
    database.highest = static_cast<qint16>(highest);
    database.title = QStringLiteral("Lotto %1/%2").arg(picks).arg(highest);
    for (int day = 1; day <= 7; ++day) {
        database.CheckDay(day, day == 4 || day == 7);
    }
    const QDate first(2004, 3, 10);
    for (int row = 1; row <= count; ++row) {
        std::vector<int> numbers;
        for (int pick = 0; pick < picks; ++pick) {
            numbers.push_back(1 + (row * 7 + pick * 5) % highest);
        }
        EXPECT_TRUE(database.Append(first.addDays(row * 3), numbers));
    }
    return database;
}

#ifdef Q_OS_UNIX
/// What to return from work that went as expected.
inline constexpr int kAsExpected = 0;

/// Runs @p work in a process of its own that has no privileges, and returns what it returned (0..255); -1
/// when it crashed, 77 when privileges cannot be dropped.
template <typename Work>
int WithoutPrivileges(Work work)
{
    constexpr uid_t kNobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
            _exit(77);
        }
        _exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// True when a process without privileges can reach what is in the folder. Opens the folder itself to all.
inline bool IsReachableWithoutPrivileges(const QString& folder, int mode)
{
    chmod(QFile::encodeName(folder).constData(), static_cast<mode_t>(mode));
    return WithoutPrivileges([&] { return QDir(folder).exists() ? 0 : 1; }) == 0;
}
#endif
