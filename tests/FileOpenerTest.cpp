#include "app/FileOpener.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileOpenEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// As macOS does when a file is clicked there while the program runs.
void HandOver(const QString& path)
{
    QFileOpenEvent event(path);
    QCoreApplication::sendEvent(qApp, &event);
}

} // namespace

TEST(FileOpener, OpensAFileThatTheDesktopHandsOverFromTheEventLoop)
{
    QStringList opened;
    const FileOpener opener([&](const QString& path) { opened << path; });
    HandOver(u"/lotteries/A lottery.LTO"_s);
    EXPECT_EQ(opened, QStringList()) << "not inside the event";
    QCoreApplication::processEvents();
    EXPECT_EQ(opened, QStringList{u"/lotteries/A lottery.LTO"_s});
    HandOver(u"near.lto"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(opened.value(1), QDir::current().filePath(u"near.lto"_s)) << "an absolute path";
}

TEST(FileOpener, RefusesAFileWhileADialogWaits)
{
    QStringList opened;
    const FileOpener opener([&](const QString& path) { opened << path; });
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        HandOver(u"/lotteries/a.lto"_s);
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(opened, QStringList());
    HandOver(u"/lotteries/b.lto"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(opened, QStringList{u"/lotteries/b.lto"_s});
}

TEST(FileOpener, RefusesAFileWhileTheProgramWorks)
{
    QStringList opened;
    const FileOpener opener([&](const QString& path) { opened << path; });
    HandOver(u"/lotteries/a.lto"_s);
    QApplication::setOverrideCursor(Qt::WaitCursor); // begun before the file could be opened
    QCoreApplication::processEvents();
    QApplication::restoreOverrideCursor();
    QCoreApplication::processEvents();
    EXPECT_EQ(opened, QStringList());
}

TEST(FileOpener, OpensNothingAfterItsEnd)
{
    QStringList opened;
    {
        const FileOpener opener([&](const QString& path) { opened << path; });
        HandOver(u"/lotteries/a.lto"_s);
    }
    HandOver(u"/lotteries/b.lto"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(opened, QStringList());
}
