#include "app/Recovery.h"

#include "app/DatabaseRecovery.h"
#include "app/LotteryFile.h"
#include "app/RecoveryOffer.h"
#include "invest/StatementRecovery.h"
#include "invest/StatementView.h"
#include "tests/FormBench.h"
#include "tests/Statements.h"
#include "tests/TestFiles.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>

#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray LotteryBytes(const DrawDatabase& database)
{
    QByteArray bytes;
    EXPECT_TRUE(WriteLotteryFile(database, QLocale::c(), bytes).ok);
    return bytes;
}

/// A program with recovery, and what an earlier one left.
class RecoveryBench : public FormBench
{
protected:
    static constexpr auto kPause = 5ms;

    void Run()
    {
        Start();
        m_recovery.Start(kPause);
        Settle();
    }
    [[nodiscard]] QStringList Names() const { return NamesIn(m_copies); }
    [[nodiscard]] bool WaitForCopies(qsizetype count) const
    {
        return QTest::qWaitFor([&] { return Names().filter(u".lock"_s).size() == Names().size() - count; });
    }
    /// Waits until a copy holds these bytes.
    [[nodiscard]] bool WaitForCopyOf(const QByteArray& bytes) const
    {
        return QTest::qWaitFor([&] {
            const QStringList names = Names();
            return std::any_of(names.cbegin(), names.cend(), [&](const QString& name) {
                return WithoutNote(BytesOf(m_copies + u'/' + name)).bytes == bytes;
            });
        });
    }
    void LeaveDatabase(const DrawDatabase& database, const QString& fileName = u"Test.Lto"_s)
    {
        LeaveCopy(WorkKind::Database, WithNote(LotteryBytes(database), {.fileName = fileName,
                                                                        .folder = m_folder.path(),
                                                                        .title = database.title,
                                                                        .records = database.count,
                                                                        .time = NextTime(),
                                                                        .host = Host()}));
    }
    void LeaveStatement(const InvestmentTable& rows, int count)
    {
        QByteArray bytes;
        ASSERT_TRUE(
            WriteInvestmentFile({.rows = rows, .rowCount = static_cast<float>(count), .total = {}}, bytes)
                .ok);
        LeaveCopy(WorkKind::Statement, WithNote(bytes, {.fileName = u"Mine.inv"_s,
                                                        .folder = m_folder.path(),
                                                        .records = count,
                                                        .time = NextTime(),
                                                        .host = Host()}));
    }
    void LeaveCopy(WorkKind kind, const QByteArray& copy)
    {
        OwnRecoveryCopies run(m_copies, Host());
        ASSERT_TRUE(run.Keep(kind, copy).ok);
    }
    static QString Host() { return QSysInfo::machineHostName(); }
    QDateTime NextTime() { return m_time = m_time.addSecs(-3600); }
    [[nodiscard]] bool IsOffering() const
    {
        const QList<RecoveryOffer*> offers = m_window.findChildren<RecoveryOffer*>();
        return std::any_of(offers.cbegin(), offers.cend(),
                           [](const RecoveryOffer* offer) { return offer->isVisible(); });
    }
    /// A widget of the panel that was added last: a second program in the same window has one of its own.
    template <typename Widget>
    Widget& InLastOffer(const QString& name)
    {
        return In<Widget>(*m_window.findChildren<RecoveryOffer*>().last(), name);
    }
    [[nodiscard]] QByteArray StatementBytes() const
    {
        QByteArray bytes;
        RecoveryNote note;
        EXPECT_TRUE(KeptStatement(m_shared).write(bytes, note).ok);
        return bytes;
    }
    QPushButton& Button(const QString& name) { return Find<QPushButton>(name); }
    QString FrontForm() const { return m_window.ActiveForm()->objectName(); }

    QString m_copies = m_folder.filePath(u"state/recovery"_s);
    QDateTime m_time = QDateTime({2026, 11, 18}, {12, 0}, Qt::UTC);
    Recovery m_recovery{
        m_shared, m_prompts, m_window, m_copies, {KeptDatabase(m_shared), KeptStatement(m_shared)}};
};

class Keeping : public RecoveryBench
{};

TEST_F(Keeping, NothingIsWrittenWhileNothingIsUnsaved)
{
    Run();
    Click(u"DBaseForm"_s);
    TypeInto(u"InFileName"_s, u"A title"_s);
    QTest::qWait(30);
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList()) << "not even the folder";
}

TEST_F(Keeping, AnAddedRecordIsKeptAndAChangeReplacesTheCopy)
{
    Run();
    Click(u"DBaseForm"_s);
    TypeDraw({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
    Click(u"DCalc"_s);
    ASSERT_EQ(m_shared.database.count, 1);
    EXPECT_TRUE(WaitForCopyOf(LotteryBytes(m_shared.database)));
    TypeInto(u"InFileName"_s, u"x"_s); // a change that no flag tells of
    EXPECT_TRUE(WaitForCopyOf(LotteryBytes(m_shared.database)));
    EXPECT_EQ(Names().size(), 2) << "the copy and the lock";
}

TEST_F(Keeping, WhatIsKeptIsNotWrittenAgain)
{
    FillDatabase(3);
    const DrawDatabase database = m_shared.database;
    Run();
    QSignalSpy kept(&m_recovery.Keeper(), &RecoveryKeeper::Kept);
    m_shared.database = database;
    ASSERT_TRUE(kept.wait(3000));
    QTest::qWait(40);
    EXPECT_EQ(kept.count(), 1);
}

TEST_F(Keeping, SavingRemovesTheCopyAndAFailedSaveDoesNot)
{
    Run();
    FillDatabase(3);
    ASSERT_TRUE(WaitForCopies(1));
    m_prompts.files = {m_folder.filePath(u"none/Test.Lto"_s)};
    m_prompts.expectedMessages = {14};
    Click(u"SaveFile"_s);
    EXPECT_EQ(m_shared.database.modified, 0);
    QTest::qWait(30);
    EXPECT_EQ(Names().size(), 2);
    m_prompts.files = {m_folder.filePath(u"Test.Lto"_s)};
    Click(u"SaveFile"_s);
    ASSERT_TRUE(WaitForCopies(0));
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(BytesOf(m_folder.filePath(u"Test.Lto"_s)), LotteryBytes(m_shared.database));
}

TEST_F(Keeping, TypingInTheStatementIsKeptAsItStandsAndLeavingItRemovesTheCopy)
{
    Run();
    Click(u"InvTrack"_s);
    QTest::keyClicks(&Find<StatementView>(u"IGrid"_s), u"Tick"_s);
    EXPECT_TRUE(WaitForCopyOf(StatementBytes()));
    QTest::keyClicks(&Find<StatementView>(u"IGrid"_s), u"ets"_s);
    EXPECT_TRUE(WaitForCopyOf(StatementBytes()));
    const InvestmentReading reading = ReadInvestmentFile(StatementBytes());
    ASSERT_TRUE(reading.statement.has_value());
    EXPECT_EQ(reading.statement->rows, m_shared.InvestmentRows);
    EXPECT_EQ(reading.statement->rows.at(1).description, u"Tickets"_s);
    m_prompts.answers = {false};
    Click(u"IExit"_s);
    ASSERT_TRUE(WaitForCopies(0));
}

TEST_F(Keeping, AStatementThatIsSavedHasNoCopyAndOneMoreKeyMakesOne)
{
    Run();
    Click(u"InvTrack"_s);
    auto& grid = Find<StatementView>(u"IGrid"_s);
    QTest::keyClicks(&grid, u"Tickets"_s);
    m_prompts.files = {m_folder.filePath(u"Mine.inv"_s)};
    Click(u"ISaveFile"_s);
    EXPECT_FALSE(m_recovery.Keeper().HasUnsaved(WorkKind::Statement));
    QTest::keyClicks(&grid, u"x"_s);
    EXPECT_TRUE(m_recovery.Keeper().HasUnsaved(WorkKind::Statement));
    QTest::keyClick(&grid, Qt::Key_Backspace);
    EXPECT_FALSE(m_recovery.Keeper().HasUnsaved(WorkKind::Statement)) << "as it was saved";
}

TEST_F(Keeping, AmountsBeyondWhatCanBeCountedAreKept)
{
    m_shared.InvestmentRows = Rows({Item(u"a"_s, u"900000000000000"_s), Item(u"b"_s, u"900000000000000"_s)});
    m_shared.InvestmentRowCount = 2;
    QByteArray bytes;
    RecoveryNote note;
    ASSERT_TRUE(KeptStatement(m_shared).write(bytes, note).ok);
    const InvestmentReading reading = ReadInvestmentFile(bytes);
    ASSERT_TRUE(reading.statement.has_value());
    EXPECT_EQ(reading.statement->rows, m_shared.InvestmentRows);
}

TEST_F(Keeping, ACleanEndRemovesTheCopiesAndAnUncleanOneLeavesThem)
{
    {
        Recovery other(m_shared, m_prompts, m_window, m_copies, {KeptDatabase(m_shared)});
        FillDatabase(3);
        other.Start(kPause);
        ASSERT_TRUE(WaitForCopies(1));
        other.EndCleanly();
        EXPECT_EQ(Names(), QStringList());
        ASSERT_TRUE(other.Keeper().KeepNow().ok);
    }
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1);
}

TEST_F(Keeping, AnEndWhileACopyIsBeingWrittenLeavesNothing)
{
    for (int round = 0; round < 10; ++round) {
        Recovery other(m_shared, m_prompts, m_window, m_copies, {KeptDatabase(m_shared)});
        FillDatabase(2);
        other.Start(1ms);
        QTest::qWait(round);
        other.EndCleanly();
        EXPECT_EQ(NamesIn(m_copies), QStringList()) << round;
        m_shared.database.Empty();
    }
}

TEST_F(Keeping, TwoProgramsDoNotDisturbEachOthersCopies)
{
    LGLOBAL otherShared;
    otherShared.database = MadeUpDatabase(5, 36, 4);
    Recovery other(otherShared, m_prompts, m_window, m_copies, {KeptDatabase(otherShared)});
    ASSERT_TRUE(other.Keeper().KeepNow().ok);
    Run();
    QTest::qWait(20);
    EXPECT_FALSE(IsOffering()) << "the other program lives";
    FillDatabase(3);
    ASSERT_TRUE(WaitForCopies(2));
    m_recovery.EndCleanly();
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1);
    EXPECT_EQ(WithoutNote(BytesOf(m_copies + u'/' + Names().filter(u".Lto"_s).value(0))).bytes,
              LotteryBytes(otherShared.database));
    other.EndCleanly();
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(Keeping, TroubleIsToldOnceInTheMenuAndNoDialogOpens)
{
    Place(m_folder.filePath(u"state"_s), "a file where the folder should be");
    Run();
    FillDatabase(3);
    QSignalSpy failed(&m_recovery.Keeper(), &RecoveryKeeper::Failed);
    ASSERT_TRUE(failed.wait(3000));
    QTest::qWait(30);
    EXPECT_EQ(failed.count(), 1);
    EXPECT_TRUE(m_prompts.notices.isEmpty());
    EXPECT_TRUE(m_prompts.shownTexts.isEmpty());
    EXPECT_TRUE(TextOf(u"RecoveryTrouble"_s).contains(u"cannot be made"_s));
    ASSERT_TRUE(QFile::remove(m_folder.filePath(u"state"_s)));
    EXPECT_TRUE(m_recovery.Keeper().KeepNow().ok);
    EXPECT_TRUE(Find<QLabel>(u"RecoveryTrouble"_s).isHidden()) << "it works again";
}

/// Two works that a test makes unsaved as it likes.
class TwoWorks : public testing::Test
{
protected:
    static constexpr auto kPause = 2ms;

    KeptWork WorkOf(WorkKind kind, std::size_t index)
    {
        return {.kind = kind,
                .unsaved = [this, index] { return m_unsaved.at(index)(); },
                .write =
                    [this, index](QByteArray& bytes, RecoveryNote&) {
                        ++m_written.at(index);
                        bytes = "1\r\n";
                        return m_outcome.at(index);
                    }};
    }
    static std::function<std::optional<quint64>()> Always(std::optional<quint64> unsaved)
    {
        return [unsaved] { return unsaved; };
    }
    [[nodiscard]] QStringList Names(const QString& ending) const
    {
        return NamesIn(m_copies).filter(QRegularExpression(u"\\."_s + ending + u'$'));
    }
    [[nodiscard]] bool WaitForKept(qsizetype databases, qsizetype statements) const
    {
        return QTest::qWaitFor([&] {
            return Names(u"Lto"_s).size() == databases && Names(u"inv"_s).size() == statements &&
                   Names(u"lock"_s).size() == (databases + statements > 0 ? 1 : 0);
        });
    }

    /// Begins, and waits until the writer has done with both.
    void KeepBoth()
    {
        QSignalSpy kept(&m_keeper, &RecoveryKeeper::Kept);
        m_keeper.Start(kPause);
        ASSERT_TRUE(QTest::qWaitFor([&] { return kept.count() == 2; }));
        ASSERT_TRUE(WaitForKept(1, 1));
    }

    QTemporaryDir m_folder;
    QString m_copies = m_folder.filePath(u"recovery"_s);
    std::array<std::function<std::optional<quint64>()>, 2> m_unsaved{Always(1), Always(1)};
    std::array<Outcome, 2> m_outcome;
    std::array<int, 2> m_written{};
    RecoveryKeeper m_keeper{
        m_copies, u"here"_s, {WorkOf(WorkKind::Database, 0), WorkOf(WorkKind::Statement, 1)}};
};

TEST_F(TwoWorks, NoCopyIsRemovedWhileAnotherIsBeingWritten)
{
    m_unsaved.at(0) = Always(std::nullopt);
    m_keeper.Start(kPause);
    ASSERT_TRUE(WaitForKept(0, 1));
    // In the same look the first is no longer saved and the second is.
    bool wasWritten = false;
    m_unsaved.at(1) = [&]() -> std::optional<quint64> {
        if (m_written.at(0) > 0 && !Names(u"inv"_s).isEmpty()) {
            QTest::qSleep(50);
            wasWritten = wasWritten || !Names(u"Lto"_s).isEmpty();
        }
        return std::nullopt;
    };
    m_unsaved.at(0) = Always(2);
    ASSERT_TRUE(WaitForKept(1, 0)) << NamesIn(m_copies).join(u' ').toStdString();
    QTest::qWait(20);
    EXPECT_FALSE(wasWritten) << "the copy of the second was still to go";
    EXPECT_EQ(Names(u"lock"_s).size(), 1);
    EXPECT_TRUE(FindLeftCopies(m_copies, u"here"_s, QDateTime::currentDateTimeUtc()).empty());
}

TEST_F(TwoWorks, OneThatCannotBeWrittenDoesNotHoldUpTheOther)
{
    m_outcome.at(0) = Outcome::Failure(u"no place for it"_s);
    QSignalSpy failed(&m_keeper, &RecoveryKeeper::Failed);
    m_keeper.Start(kPause);
    ASSERT_TRUE(WaitForKept(0, 1));
    QTest::qWait(20);
    EXPECT_EQ(m_written.at(0), 1) << "it is tried again after a while only";
    m_unsaved.at(1) = Always(2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_written.at(1) == 2; }));
    EXPECT_EQ(failed.count(), 1);
}

TEST_F(TwoWorks, KeepNowTriesAllAndTellsTheFirstFailure)
{
    m_outcome.at(0) = Outcome::Failure(u"no place for it"_s);
    const Outcome kept = m_keeper.KeepNow();
    EXPECT_FALSE(kept.ok);
    EXPECT_EQ(kept.reason, u"no place for it"_s);
    EXPECT_EQ(Names(u"inv"_s).size(), 1);
    m_outcome.at(1) = Outcome::Failure(u"another"_s);
    EXPECT_EQ(m_keeper.KeepNow().reason, u"no place for it"_s);
}

TEST_F(TwoWorks, AFolderThatIsEmptiedIsFilledAgainWithItsLock)
{
    KeepBoth();
    ASSERT_TRUE(QDir(m_copies).removeRecursively());
    EXPECT_TRUE(WaitForKept(1, 1)) << "nothing has changed, but the copies are gone";
    EXPECT_TRUE(FindLeftCopies(m_copies, u"here"_s, QDateTime::currentDateTimeUtc()).empty());
}

TEST_F(TwoWorks, ALockThatIsGoneComesBack)
{
    KeepBoth();
    ASSERT_TRUE(QFile::remove(m_copies + u'/' + Names(u"lock"_s).value(0)));
    EXPECT_TRUE(WaitForKept(1, 1));
    EXPECT_TRUE(FindLeftCopies(m_copies, u"here"_s, QDateTime::currentDateTimeUtc()).empty());
    m_keeper.EndCleanly();
    EXPECT_EQ(NamesIn(m_copies), QStringList());
}

class Offering : public RecoveryBench
{};

TEST_F(Offering, WithoutAnythingLeftTheMenuIsAsItAlwaysWas)
{
    Run();
    EXPECT_EQ(m_window.findChild<RecoveryOffer*>(), nullptr);
    EXPECT_EQ(m_window.size(), QSize(641, 458));
    EXPECT_TRUE(m_prompts.notices.isEmpty());
}

TEST_F(Offering, SaysWhatWasFoundAndEverythingFitsTheOpeningWindow)
{
    LeaveDatabase(MadeUpDatabase(6, 49, 12));
    Run();
    ASSERT_TRUE(IsOffering());
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    EXPECT_EQ(TextOf(u"OfferTitle"_s), u"This was not saved:"_s);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Test.Lto, 12 records, "_s))
        << TextOf(u"OfferText"_s).toStdString();
    EXPECT_EQ(m_window.size(), QSize(641, 458));
    const QList<QPushButton*> buttons = m_window.Menu().findChildren<QPushButton*>();
    EXPECT_EQ(buttons.size(), 15);
    for (const QPushButton* button : buttons) {
        EXPECT_GE(button->height(), button->minimumSizeHint().height()) << button->objectName().toStdString();
        EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->objectName().toStdString();
    }
    for (const QString& name : {u"OfferOpen"_s, u"OfferDiscard"_s, u"OfferLater"_s}) {
        EXPECT_TRUE(Button(name).accessibleName().contains(u"Test.Lto"_s)) << name.toStdString();
    }
}

TEST_F(Offering, ItsAccessKeysAreNoOtherButtons)
{
    LeaveDatabase(MadeUpDatabase(6, 49, 12));
    Run();
    QHash<QChar, QString> keys;
    for (const QPushButton* button : m_window.Menu().findChildren<QPushButton*>()) {
        const QChar key = button->text().at(button->text().indexOf(u'&') + 1).toUpper();
        EXPECT_TRUE(!keys.contains(key) || key == u'S')
            << button->text().toStdString(); // S is two menu buttons'
        keys[key] = button->text();
    }
}

TEST_F(Offering, OpenBringsTheRecordsBackAsUnsavedWorkOfTheirFile)
{
    const DrawDatabase lost = MadeUpDatabase(5, 36, 12);
    Place(m_folder.filePath(u"Test.Lto"_s), "the original");
    LeaveDatabase(lost);
    Run();
    Click(u"OfferOpen"_s);
    Settle();
    EXPECT_EQ(FrontForm(), u"LDbase"_s);
    EXPECT_FALSE(m_prompts.busy);
    EXPECT_EQ(LotteryBytes(m_shared.database), LotteryBytes(lost));
    EXPECT_EQ(m_shared.database.fileName, u"Test.Lto"_s);
    EXPECT_EQ(m_shared.database.modified, 1);
    EXPECT_EQ(m_shared.dialogFolder, m_folder.path());
    EXPECT_EQ(BytesOf(m_folder.filePath(u"Test.Lto"_s)), "the original") << "only a save command writes it";
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1)
        << "protected by this run's copy, and no longer by the old one";
    EXPECT_FALSE(IsOffering());

    Click(u"DExit"_s);
    m_prompts.answers = {true};
    Click(u"Exit1Butt"_s);
    EXPECT_TRUE(m_prompts.askedTexts.value(0).startsWith(u"Test.Lto file in memory will be erased."_s));
    m_prompts.files = {m_folder.filePath(u"Test.Lto"_s)};
    Click(u"SaveFile"_s);
    ASSERT_TRUE(WaitForCopies(0));
    EXPECT_EQ(BytesOf(m_folder.filePath(u"Test.Lto"_s)), LotteryBytes(lost));
}

TEST_F(Offering, WhatWasOpenedSurvivesTheNextUncleanEnd)
{
    const DrawDatabase lost = MadeUpDatabase(5, 36, 12);
    LeaveDatabase(lost);
    {
        Recovery second(m_shared, m_prompts, m_window, m_copies, {KeptDatabase(m_shared)});
        Start();
        second.Start(kPause);
        Settle();
        Click(u"OfferOpen"_s);
        Settle();
    } // gone without an end
    const std::vector<LeftCopy> left = FindLeftCopies(m_copies, Host(), QDateTime::currentDateTimeUtc());
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(WithoutNote(BytesOf(left.at(0).path)).bytes, LotteryBytes(lost));
    EXPECT_EQ(left.at(0).note.value_or(RecoveryNote()).fileName, u"Test.Lto"_s);
}

TEST_F(Offering, WhatIsUnsavedInMemoryIsNotReplaced)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12));
    Run();
    FillDatabase(3);
    Click(u"OfferOpen"_s);
    ASSERT_EQ(m_prompts.notices.size(), 1);
    EXPECT_TRUE(m_prompts.notices.front().contains(u"not saved yet"_s));
    EXPECT_EQ(m_shared.database.count, 3);
    EXPECT_TRUE(IsOffering());
}

TEST_F(Offering, OpenBringsAStatementBackWithAllThatWasTyped)
{
    InvestmentTable rows = Rows({Item(u"Tickets"_s, u"-12"_s), Item(u"Winnings"_s, u"10"_s)});
    rows.at(7) = Item(QString(), u"5"_s);
    LeaveStatement(rows, 2);
    Run();
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Mine.inv, 2 rows, "_s))
        << TextOf(u"OfferText"_s).toStdString();
    Click(u"OfferOpen"_s);
    Settle();
    EXPECT_EQ(FrontForm(), u"LInvTrack"_s);
    EXPECT_EQ(m_shared.InvestmentRows, rows);
    EXPECT_EQ(m_shared.investmentFileName, u"Mine.inv"_s);
    EXPECT_TRUE(Find<QLabel>(u"IChange"_s).isVisible());
    EXPECT_EQ(Names().filter(u".inv"_s).size(), 1);
    m_prompts.answers = {true, false};
    QCloseEvent close;
    QCoreApplication::sendEvent(&m_window, &close);
    EXPECT_FALSE(close.isAccepted());
    EXPECT_TRUE(m_prompts.askedTexts.value(0).startsWith(u"Mine.inv file in memory will be erased."_s));
    Click(u"IExit"_s);
    ASSERT_TRUE(WaitForCopies(0));
}

TEST_F(Offering, LaterKeepsItForTheNextStart)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12));
    const QStringList before = Names();
    Run();
    Click(u"OfferLater"_s);
    EXPECT_FALSE(IsOffering());
    Click(u"DBaseForm"_s);
    Click(u"DExit"_s);
    EXPECT_FALSE(IsOffering()) << "not again in this run";
    m_recovery.EndCleanly();
    EXPECT_EQ(Names().filter(u".Lto"_s), before.filter(u".Lto"_s));
    Recovery next(m_shared, m_prompts, m_window, m_copies, {});
    next.Start(kPause);
    Settle();
    EXPECT_TRUE(IsOffering());
}

TEST_F(Offering, DiscardTakesASecondPress)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12));
    Run();
    Click(u"OfferDiscard"_s);
    EXPECT_EQ(Button(u"OfferDiscard"_s).text(), u"Really &discard?"_s);
    EXPECT_TRUE(Button(u"OfferDiscard"_s).accessibleName().startsWith(u"Press again to discard for good"_s));
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1);
    Click(u"OfferDiscard"_s);
    EXPECT_EQ(Names(), QStringList());
    EXPECT_FALSE(IsOffering());
}

TEST_F(Offering, TurningToSomethingElseTakesTheFirstPressBack)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12));
    Run();
    Click(u"OfferDiscard"_s);
    Button(u"OfferLater"_s).setFocus();
    EXPECT_EQ(Button(u"OfferDiscard"_s).text(), u"&Discard"_s);
    Click(u"OfferDiscard"_s);
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1);
}

TEST_F(Offering, SeveralAreOfferedOneAfterTheOtherTheLatestFirst)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12), u"First.Lto"_s);
    LeaveStatement(Rows({Item(u"Tickets"_s, u"-12"_s)}), 1);
    LeaveDatabase(MadeUpDatabase(5, 36, 13), u"Third.Lto"_s);
    Run();
    EXPECT_EQ(TextOf(u"OfferTitle"_s), u"This was not saved (and 2 more):"_s);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"First.Lto"_s));
    Click(u"OfferOpen"_s);
    Settle();
    Click(u"DExit"_s);
    EXPECT_TRUE(IsOffering());
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Mine.inv"_s));
    Click(u"OfferDiscard"_s);
    Click(u"OfferDiscard"_s);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Third.Lto"_s));
    EXPECT_EQ(TextOf(u"OfferTitle"_s), u"This was not saved:"_s);
    Click(u"OfferLater"_s);
    EXPECT_FALSE(IsOffering());
}

TEST_F(Offering, ADamagedCopyGivesWhatCanBeReadAndSaysSo)
{
    LeaveCopy(WorkKind::Database, WithNote(LotteryBytes(MadeUpDatabase(5, 36, 12)), {}).chopped(20));
    Run();
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"A damaged copy of a lottery database, "_s));
    Click(u"OfferOpen"_s);
    Settle();
    EXPECT_EQ(m_shared.database.count, 12);
    ASSERT_EQ(m_prompts.notices.size(), 1);
    EXPECT_TRUE(m_prompts.notices.front().contains(u"damaged"_s));
}

TEST_F(Offering, ADamagedCopyStaysWithAllThatWasNotReadUntilItIsDiscarded)
{
    QByteArray damaged = WithNote(LotteryBytes(MadeUpDatabase(5, 36, 1200)), {});
    damaged.replace(0, 4, "20"); // of 1,200 records the reader takes no more
    LeaveCopy(WorkKind::Database, damaged);
    const QString path = m_copies + u'/' + Names().filter(u".Lto"_s).value(0);
    Run();
    Click(u"OfferOpen"_s);
    Settle();
    EXPECT_EQ(m_shared.database.count, 20);
    EXPECT_EQ(BytesOf(path), damaged);
    EXPECT_TRUE(m_prompts.notices.value(0).contains(u"stays"_s)) << m_prompts.notices.value(0).toStdString();
    EXPECT_FALSE(IsOffering()) << "not again in this run";
    m_recovery.EndCleanly();
    Click(u"DExit"_s);
    Recovery next(m_shared, m_prompts, m_window, m_copies, {});
    next.Start(kPause);
    Settle();
    EXPECT_TRUE(
        InLastOffer<QLabel>(u"OfferText"_s).text().startsWith(u"A damaged copy of a lottery database, "_s));
    InLastOffer<QPushButton>(u"OfferDiscard"_s).click();
    InLastOffer<QPushButton>(u"OfferDiscard"_s).click();
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(Offering, ACopyOfWhichNothingIsUnsavedOnceItIsOpenStays)
{
    QByteArray damaged = WithNote(LotteryBytes(MadeUpDatabase(5, 36, 12)), {});
    damaged.replace(0, 2, "0");
    LeaveCopy(WorkKind::Database, damaged);
    LeaveDatabase(MadeUpDatabase(5, 36, 0));
    Run();
    for (int copy = 0; copy < 2; ++copy) {
        Click(u"OfferOpen"_s);
        Settle();
        EXPECT_EQ(m_shared.database.count, 0);
        Click(u"DExit"_s);
    }
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 2) << "this run keeps none of its own";
}

TEST_F(Offering, ACopyThatNothingCanBeReadOfStaysAndSaysWhere)
{
    LeaveCopy(WorkKind::Database, "12,7,36,\"Lotto");
    const QString name = Names().filter(u".Lto"_s).value(0);
    Run();
    FillDatabase(2);
    m_shared.databaseOnDisk.fingerprint = KeptDatabase(m_shared).unsaved().value_or(0); // saved
    Click(u"OfferOpen"_s);
    Settle();
    ASSERT_EQ(m_prompts.notices.size(), 1);
    EXPECT_TRUE(m_prompts.notices.front().contains(name)) << m_prompts.notices.front().toStdString();
    EXPECT_TRUE(IsOffering());
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_shared.database.count, 2) << "what was open stays open";
    EXPECT_TRUE(Names().contains(name));
}

TEST_F(Offering, AStatementThatCannotBeReadLeavesTheMenu)
{
    LeaveCopy(WorkKind::Statement, "2\r\n\"a\",900000000000000\r\n\"b\",900000000000000\r\n");
    Run();
    Click(u"OfferOpen"_s);
    Settle();
    EXPECT_EQ(m_prompts.notices.size(), 1);
    EXPECT_EQ(FrontForm(), u"LotoMenu"_s);
    EXPECT_EQ(m_window.windowTitle(), u" Quillaby Menu"_s);
    EXPECT_TRUE(IsOffering());
}

TEST_F(Offering, WhatAnotherProgramTookMeanwhileIsTold)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12));
    Run();
    for (const QString& name : Names()) {
        ASSERT_TRUE(QFile::remove(m_copies + u'/' + name));
    }
    Click(u"OfferOpen"_s);
    EXPECT_EQ(m_prompts.notices.size(), 1);
    Click(u"OfferDiscard"_s);
    Click(u"OfferDiscard"_s);
    EXPECT_FALSE(IsOffering());
}

TEST_F(Offering, OnlyWhenThisRunsOwnCopyIsOnTheDiskTheOldOneGoes)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12));
    Start();
    // The copies are found where they are, but this run's keeper cannot write its own.
    KeptWork unwritable = KeptDatabase(m_shared);
    unwritable.write = [](QByteArray&, RecoveryNote&) { return Outcome::Failure(u"no room"_s); };
    Recovery other(m_shared, m_prompts, m_window, m_copies, {unwritable});
    other.Start(1h);
    Settle();
    Click(u"OfferOpen"_s);
    Settle();
    EXPECT_EQ(m_shared.database.count, 12);
    EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1) << "still there for the next start";
}

/// Opening a file asks nothing, also when records are not saved.
class SettingAside : public RecoveryBench
{
protected:
    /// Opens from the menu and comes back to it.
    void OpenAndComeBack(const QString& path)
    {
        m_prompts.files = {path};
        Click(u"LoadFile"_s);
        Settle();
        EXPECT_EQ(FrontForm(), u"LDbase"_s);
        EXPECT_TRUE(m_prompts.askedTexts.isEmpty());
        EXPECT_TRUE(m_prompts.notices.isEmpty());
        EXPECT_TRUE(m_prompts.expectedMessages.empty());
        Click(u"DExit"_s);
    }
    QString Another()
    {
        QString path = m_folder.filePath(u"Another.Lto"_s);
        Place(path, LotteryBytes(MadeUpDatabase(5, 36, 7)));
        return path;
    }
    /// What the menu offers is what was in memory, to the last record.
    void ExpectBack(const DrawDatabase& lost)
    {
        ASSERT_TRUE(IsOffering());
        Click(u"OfferOpen"_s);
        Settle();
        EXPECT_EQ(FrontForm(), u"LDbase"_s);
        EXPECT_EQ(LotteryBytes(m_shared.database), LotteryBytes(lost));
        EXPECT_EQ(m_shared.database.fileName, lost.fileName);
        EXPECT_EQ(m_shared.database.modified, 1);
        Click(u"DExit"_s);
        EXPECT_FALSE(IsOffering());
        EXPECT_EQ(Names().filter(u".Lto"_s).size(), 1) << "this run's own";
        EXPECT_TRUE(m_prompts.notices.isEmpty());
    }
    void FillUnsaved(const QString& fileName = u"Mine.Lto"_s)
    {
        FillDatabase(30);
        m_shared.database.fileName = fileName;
    }
};

TEST_F(SettingAside, AnotherFileOpenedOverRecordsThatAreNotSavedLosesNone)
{
    Run();
    FillUnsaved();
    const DrawDatabase lost = m_shared.database;
    OpenAndComeBack(Another());
    EXPECT_EQ(m_shared.database.count, 7) << "it was opened as ever";
    EXPECT_EQ(m_shared.database.fileName, u"Another.Lto"_s);
    ASSERT_TRUE(IsOffering());
    EXPECT_EQ(TextOf(u"OfferTitle"_s), u"This was not saved:"_s);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Mine.Lto, 30 records, "_s))
        << TextOf(u"OfferText"_s).toStdString();
    ExpectBack(lost);
}

TEST_F(SettingAside, AFileThatIsMissingLosesNone)
{
    Run();
    FillUnsaved();
    ASSERT_TRUE(WaitForCopies(1));
    const DrawDatabase lost = m_shared.database;
    m_prompts.expectedMessages = {13};
    OpenAndComeBack(m_folder.filePath(u"Nowhere.Lto"_s));
    EXPECT_EQ(m_shared.database.count, 0);
    ExpectBack(lost);
}

TEST_F(SettingAside, AFileThatIsDamagedLosesNone)
{
    Run();
    FillUnsaved(QString());
    const DrawDatabase lost = m_shared.database;
    const QString damaged = m_folder.filePath(u"Damaged.Lto"_s);
    Place(damaged, "12,7,36,\"Lotto");
    m_prompts.expectedMessages = {16, 13};
    OpenAndComeBack(damaged);
    EXPECT_EQ(m_shared.database.count, 0);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"A new lottery database, 30 records, "_s));
    ExpectBack(lost);
}

TEST_F(SettingAside, WhatChangedSinceTheLastCopyIsInItToo)
{
    Start();
    m_recovery.Start(1h);
    FillUnsaved();
    ASSERT_TRUE(m_recovery.Keeper().KeepNow().ok);
    m_shared.database.records.at(30).drawn.at(0) = 49;
    const DrawDatabase lost = m_shared.database;
    OpenAndComeBack(Another());
    ExpectBack(lost);
}

TEST_F(SettingAside, WhereNothingIsUnsavedNothingIsOffered)
{
    Run();
    const QString another = Another();
    OpenAndComeBack(another); // over the empty database
    OpenAndComeBack(another); // over one that is as its file, and was looked at in the editor
    m_prompts.expectedMessages = {13};
    OpenAndComeBack(m_folder.filePath(u"Nowhere.Lto"_s));
    FillUnsaved();
    m_prompts.files = {m_folder.filePath(u"Mine.Lto"_s)};
    Click(u"SaveFile"_s);
    OpenAndComeBack(another);
    m_prompts.files = {QString()};
    Click(u"LoadFile"_s); // a cancel, over a change
    m_shared.database.title = u"x"_s;
    Click(u"DExit"_s);
    EXPECT_EQ(m_window.findChild<RecoveryOffer*>(), nullptr);
    m_recovery.EndCleanly();
    EXPECT_TRUE(!QDir(m_copies).exists() || Names().isEmpty());
}

TEST_F(SettingAside, ACleanEndLeavesItAndTheNextStartOffersIt)
{
    Run();
    FillUnsaved();
    const DrawDatabase lost = m_shared.database;
    OpenAndComeBack(Another());
    m_recovery.EndCleanly();
    EXPECT_EQ(Names().size(), 1) << "and no lock";
    Recovery next(m_shared, m_prompts, m_window, m_copies, {KeptDatabase(m_shared)});
    next.Start(kPause);
    Settle();
    EXPECT_EQ(m_window.findChildren<RecoveryOffer*>().size(), 2) << "that of the run before, and its own";
    EXPECT_TRUE(InLastOffer<QLabel>(u"OfferText"_s).text().startsWith(u"Mine.Lto, 30 records, "_s));
    const std::vector<LeftCopy> left = FindLeftCopies(m_copies, Host(), QDateTime::currentDateTimeUtc());
    ASSERT_EQ(left.size(), 1U);
    RecoveredWork work;
    ASSERT_TRUE(ReadLeftCopy(left.at(0), work).ok);
    EXPECT_EQ(work.bytes, LotteryBytes(lost));
}

TEST_F(SettingAside, LaterKeepsItForTheNextStartAndDiscardGivesItUp)
{
    Run();
    FillUnsaved();
    OpenAndComeBack(Another());
    Click(u"OfferLater"_s);
    EXPECT_FALSE(IsOffering());
    EXPECT_EQ(Names().size(), 1);
    FillUnsaved(u"Second.Lto"_s);
    OpenAndComeBack(Another());
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Second.Lto, "_s));
    Click(u"OfferDiscard"_s);
    Click(u"OfferDiscard"_s);
    EXPECT_FALSE(IsOffering());
    EXPECT_EQ(Names().size(), 1) << "that for later";
}

TEST_F(SettingAside, TheLatestIsOfferedBeforeWhatWasFoundAtTheStart)
{
    LeaveDatabase(MadeUpDatabase(5, 36, 12), u"Found.Lto"_s);
    Run();
    FillUnsaved();
    OpenAndComeBack(Another());
    EXPECT_EQ(TextOf(u"OfferTitle"_s), u"This was not saved (and 1 more):"_s);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Mine.Lto, "_s));
    Click(u"OfferLater"_s);
    EXPECT_TRUE(TextOf(u"OfferText"_s).startsWith(u"Found.Lto, "_s));
}

TEST_F(SettingAside, WhereNoCopyCanBeKeptTheMenuSaysSoAndTheFileIsOpened)
{
    Place(m_folder.filePath(u"state"_s), "a file where the folder should be");
    Start();
    m_recovery.Start(1h);
    FillUnsaved();
    OpenAndComeBack(Another());
    EXPECT_EQ(m_shared.database.count, 7);
    EXPECT_FALSE(IsOffering());
    EXPECT_TRUE(Find<QLabel>(u"RecoveryTrouble"_s).isVisible());
    EXPECT_TRUE(TextOf(u"RecoveryTrouble"_s).contains(u"cannot be made"_s));
}

TEST_F(SettingAside, AFileNamedOutsideSetsAsideAsWell)
{
    Run();
    FillUnsaved();
    const DrawDatabase lost = m_shared.database;
    m_window.OpenNamedFile(Another());
    Settle();
    EXPECT_EQ(m_shared.database.count, 7);
    Click(u"DExit"_s);
    ExpectBack(lost);
}

TEST_F(Offering, AFormThatHoldsNoWorkRefusesIt)
{
    Start();
    EXPECT_FALSE(m_window.Menu().TakeRecovered({}).ok);
}

} // namespace
