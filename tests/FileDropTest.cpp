#include "app/FileDrop.h"

#include "tests/FormBench.h"
#include "tests/TestFiles.h"

#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QByteArray kTwoDraws =
    "2,8,49,\"Lotto 6/49\"\r\n,0\r\n,0\r\n,0\r\n,4\r\n,0\r\n,0\r\n,7\r\n,0\r\n,0\r\n,0\r\n"
    "1,#2004-03-10#,5,12,23,34,41,49,0,0,0,0\r\n"
    "2,#2004-03-13#,3,8,19,27,30,44,0,0,0,0\r\n";

class FileDropped : public FormBench
{
protected:
    void SetUp() override
    {
        Place(Path(u"Mine.LTO"_s), kTwoDraws);
        Place(Path(u"Money.Inv"_s), "1\r\n\"Tickets\",-12\r\n");
        Start();
    }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    QString FrontForm() const { return m_window.ActiveForm()->objectName(); }
    /// The line at the window's lower edge; "" while it is not shown.
    QString Line() const
    {
        const auto* line = m_window.findChild<QLabel*>(u"DropLine"_s);
        return line == nullptr || !line->isVisible() ? QString() : line->text();
    }

    void Carry(const QStringList& paths)
    {
        QList<QUrl> urls;
        for (const QString& path : paths) {
            urls << QUrl::fromLocalFile(path);
        }
        m_data.setUrls(urls);
    }

    /// Drags what is carried over the window, as far as a pointer there sees. @return whether it may be
    /// dropped
    bool Drag()
    {
        QDragEnterEvent enter(QPoint(300, 200), Qt::CopyAction | Qt::MoveAction, &m_data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &enter);
        m_entered = enter.isAccepted();
        if (!m_entered) {
            return false;
        }
        QDragMoveEvent move(QPoint(310, 200), Qt::CopyAction | Qt::MoveAction, &m_data, Qt::LeftButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &move);
        EXPECT_TRUE(!move.isAccepted() || move.dropAction() == Qt::CopyAction); // never moved away
        return move.isAccepted();
    }

    /// Drags it there and lets go. @return whether it was taken
    bool Drop()
    {
        Drag();
        if (!m_entered) {
            return false; // no desktop sends a drop then
        }
        QDropEvent drop(QPointF(310, 200), Qt::CopyAction | Qt::MoveAction, &m_data, Qt::LeftButton,
                        Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &drop);
        EXPECT_EQ(Line(), QString());
        Settle();
        return drop.isAccepted();
    }

    void ExpectRefused(const QString& reason)
    {
        EXPECT_FALSE(Drag());
        EXPECT_EQ(Line(), reason);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&m_window, &leave);
        EXPECT_EQ(Line(), QString());
        EXPECT_FALSE(Drop());
    }

    QMimeData m_data;
    bool m_entered = false;
};

TEST_F(FileDropped, ADatabaseOnTheMenuOpensInTheEditor)
{
    Carry({Path(u"Mine.LTO"_s)});
    EXPECT_TRUE(Drag());
    EXPECT_EQ(Line(), u"Drop to open \"Mine.LTO\"."_s);
    EXPECT_TRUE(Drop());
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.fileName, u"Mine.LTO"_s);
    EXPECT_EQ(m_shared.dialogFolder, m_folder.path());
    EXPECT_TRUE(QFile::exists(Path(u"Mine.LTO"_s)));
}

TEST_F(FileDropped, AStatementOnTheMenuOpensInTheTracker)
{
    Carry({Path(u"Money.Inv"_s)});
    EXPECT_TRUE(Drag());
    EXPECT_TRUE(Drop());
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Tickets"_s);
}

TEST_F(FileDropped, AStatementOnTheTrackerComesWithItsQuestion)
{
    Click(u"InvTrack"_s);
    QTest::keyClicks(&Find<QTableView>(u"IGrid"_s), u"Typed"_s);
    Carry({Path(u"Money.Inv"_s)});
    m_prompts.answers = {true}; // go back
    EXPECT_TRUE(Drop());
    EXPECT_EQ(m_prompts.askedTexts.size(), 1);
    EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Typed"_s);
    m_prompts.answers = {false};
    EXPECT_TRUE(Drop());
    EXPECT_EQ(Cell(u"IGrid"_s, 0, 0), u"Tickets"_s);
}

TEST_F(FileDropped, WhereOpeningWouldLoseWhatTheUserDoesTheMenuIsNamed)
{
    const QString reason = u"Go back to the menu first: there the file can be opened."_s;
    Carry({Path(u"Mine.LTO"_s)});
    Click(u"InvTrack"_s);
    ExpectRefused(reason);
    Click(u"IExit"_s);
    Click(u"DBaseForm"_s);
    ExpectRefused(reason);
    Carry({Path(u"Money.Inv"_s)});
    ExpectRefused(reason);
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_EQ(m_shared.database.count, 0);
}

TEST_F(FileDropped, SeveralFilesAndOtherThingsAreRefusedWithAReason)
{
    Carry({Path(u"Mine.LTO"_s), Path(u"Money.Inv"_s)});
    ExpectRefused(u"Only one file can be opened at a time."_s);
    for (const QString& name : {u"photo.png"_s, u"Mine.Lto.bak"_s, QString()}) {
        Carry({Path(name)});
        ExpectRefused(u"Only lottery databases (.Lto) and statements (.inv) can be opened."_s);
    }
    m_data.setUrls({QUrl(u"https://example.org/Mine.Lto"_s)});
    ExpectRefused(u"Only files on this computer can be opened."_s);
    m_data.clear();
    m_data.setText(u"1 2 3"_s);
    ExpectRefused(u"Only files can be dropped here."_s);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(FileDropped, UnderAModalDialogNothingHappens)
{
    Carry({Path(u"Mine.LTO"_s)});
    QDialog dialog(&m_window);
    dialog.setModal(true);
    dialog.show();
    EXPECT_FALSE(Drag());
    EXPECT_EQ(Line(), QString());
    EXPECT_FALSE(Drop());
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

TEST_F(FileDropped, ADialogThatOpensAfterTheDropKeepsTheFileClosed)
{
    Carry({Path(u"Mine.LTO"_s)});
    ASSERT_TRUE(Drag());
    QDropEvent drop(QPointF(310, 200), Qt::CopyAction, &m_data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window, &drop);
    QDialog dialog(&m_window);
    dialog.setModal(true);
    dialog.show();
    Settle();
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
}

} // namespace
