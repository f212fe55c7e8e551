#include "invest/InvestmentFileCommands.h"

#include "invest/InvestmentCalculation.h"
#include "tests/CannedPrompts.h"
#include "tests/Statements.h"
#include "tests/TestFiles.h"

#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int kBadFileName = 25;

InvestmentStatement Statement(int rows)
{
    return CalculateStatement(NumberedRows(rows)).value_or(InvestmentStatement());
}

QByteArray Written(const InvestmentStatement& statement)
{
    QByteArray bytes;
    EXPECT_TRUE(WriteInvestmentFile(statement, bytes).ok);
    return bytes;
}

class InvestmentFileCommands : public testing::Test
{
protected:
    void SetUp() override
    {
        shared.investmentFileName = u"Before.inv"_s;
        shared.dialogFolder = u"/where it was"_s;
    }

    void TearDown() override
    {
        EXPECT_TRUE(prompts.expectedMessages.empty()) << "a message did not come";
        EXPECT_TRUE(prompts.files.empty()) << "the file dialog did not come";
        EXPECT_EQ(shared.fileDialogMode, kFileDialogIdle);
        EXPECT_EQ(shared.chosenPath, QString());
    }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }

    /// Opens a file. @param mayReplace  what the user says when there is something to replace
    InvestmentReading Open(const QString& name, bool mayReplace = true)
    {
        prompts.files = {name.isEmpty() ? QString() : Path(name)};
        return OpenInvestmentFile(shared, prompts, [this, mayReplace] {
            ++m_asked;
            return mayReplace;
        });
    }

    /// Nothing was opened: the statement of before is still the one in memory.
    void ExpectAsBefore() const
    {
        EXPECT_EQ(shared.investmentFileName, u"Before.inv"_s);
        EXPECT_EQ(shared.dialogFolder, u"/where it was"_s);
    }

    LGLOBAL shared;
    CannedPrompts prompts{shared};
    int m_asked = 0; ///< whether the file may replace what is there

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(InvestmentFileCommands, AGoodFileIsRememberedWithItsFolder)
{
    Place(Path(u"Mine.inv"_s), Written(Statement(3)));
    const InvestmentReading opened = Open(u"Mine.inv"_s);
    EXPECT_EQ(opened.statement, Statement(3));
    EXPECT_TRUE(opened.isCalculated);
    EXPECT_EQ(shared.investmentFileName, u"Mine.inv"_s);
    EXPECT_EQ(shared.dialogFolder, Folder());
    EXPECT_EQ(m_asked, 1);
}

TEST_F(InvestmentFileCommands, AFailedOpenLeavesTheFolderOfTheFileDialogAndAsksNothing)
{
    Place(Path(u"TooMuch.inv"_s), "2\r\n\"a\",922337203685477.5807\r\n\"b\",1\r\n");
    Place(Path(u"Lottery.Lto"_s), "2,8,49,\"Lotto\"\r\n");
    for (const QString& name : {u"missing.inv"_s, u"TooMuch.inv"_s, u"Lottery.Lto"_s}) {
        prompts.expectedMessages = {kBadFileName};
        EXPECT_FALSE(Open(name).statement.has_value()) << name.toStdString();
        ExpectAsBefore();
    }
    EXPECT_EQ(m_asked, 0);
    EXPECT_FALSE(Open(QString()).statement.has_value()) << "cancelled";
    ExpectAsBefore();
}

TEST_F(InvestmentFileCommands, AFileThatMayNotReplaceTheStatementIsNotRemembered)
{
    Place(Path(u"Mine.inv"_s), Written(Statement(3)));
    EXPECT_FALSE(Open(u"Mine.inv"_s, false).statement.has_value());
    EXPECT_EQ(m_asked, 1);
    ExpectAsBefore();
}

TEST_F(InvestmentFileCommands, ABadNameIsRefusedByTheMessageAloneAndNothingIsWritten)
{
    for (const QString& name : {u"Mine"_s, u"Mine.Lto"_s, u".inv"_s}) {
        prompts.files = {Path(name)};
        prompts.expectedMessages = {kBadFileName};
        EXPECT_FALSE(SaveInvestmentFile(shared, prompts, Statement(3)));
        EXPECT_EQ(prompts.shownTexts.last(), u"Bad filename, must be in the form MYFILE.INV"_s);
        EXPECT_EQ(prompts.shownReasons.last(), QString());
        EXPECT_EQ(shared.investmentFileName, u"Before.inv"_s);
    }
    EXPECT_EQ(NamesIn(Folder()), QStringList());
}

#ifdef Q_OS_UNIX

TEST_F(InvestmentFileCommands, AnOldFileIsWholeAfterASaveThatFailed)
{
    if (!IsReachableWithoutPrivileges(Folder(), 0777)) {
        GTEST_SKIP() << "an ordinary user cannot reach the temporary folder";
    }
    const QByteArray old = Written(Statement(3));
    Place(Path(u"Mine.inv"_s), old);
    ASSERT_EQ(chmod(QFile::encodeName(Path(u"Mine.inv"_s)).constData(), 0666), 0);
    const auto save = [&] {
        return WithoutPrivileges([&] {
            prompts.files = {Path(u"Mine.inv"_s)};
            prompts.expectedMessages = {kBadFileName};
            const bool saved = SaveInvestmentFile(shared, prompts, Statement(5));
            const bool told = prompts.expectedMessages.empty() && !prompts.shownReasons.last().isEmpty();
            return saved ? 1 : told ? 2 : 3;
        });
    };
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0555), 0);
    EXPECT_EQ(save(), 2) << "refused, and told why";
    EXPECT_EQ(BytesOf(Path(u"Mine.inv"_s)), old);
    EXPECT_EQ(NamesIn(Folder()), QStringList{u"Mine.inv"_s});
    ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0777), 0);
    EXPECT_EQ(save(), 1) << "the same user saves where he may";
    EXPECT_EQ(BytesOf(Path(u"Mine.inv"_s)), Written(Statement(5)));
}

#endif
