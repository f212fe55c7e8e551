// The program with a user inside who types all the time, so that recovery_kills.sh can kill it at any moment,
// and who looks afterwards what came back.
//
//   recovery_probe draws FOLDER SAMPLE     opens the sample and adds draws until it is killed
//   recovery_probe rows FOLDER SAMPLE      types into a statement until it is killed
//   recovery_probe open-draws FOLDER SAMPLE, open-rows FOLDER SAMPLE
//                                          starts, presses Open on what the menu offers, and ends cleanly
//
// The first two print "typed N" for everything typed and "kept N" for every copy that is on the disk. The
// others print how many came back; they exit 3 when what came back is not what was typed, and 4 when nothing
// was offered.

#include "app/DatabaseRecovery.h"
#include "app/DialogPrompts.h"
#include "app/InputBox.h"
#include "app/LotteryFile.h"
#include "app/Recovery.h"
#include "app/RecoveryOffer.h"
#include "app/SafeFile.h"
#include "invest/InvestmentCalculation.h"
#include "invest/StatementRecovery.h"
#include "invest/StatementView.h"
#include "tests/AllForms.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <string_view>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kDone = 0;
constexpr int kUsage = 2;
constexpr int kNotWhatWasTyped = 3;
constexpr int kNothingOffered = 4;

/// What is typed as draw or row number @p index, from 1.
QStringList NumbersOf(int index)
{
    QStringList numbers;
    for (int k = 0; k < 6; ++k) {
        numbers << QString::number((index + k * 7) % 49 + 1);
    }
    return numbers;
}

QString RowOf(int index)
{
    return u"Tickets of week %1"_s.arg(index);
}

void Tell(const char* what, int count)
{
    std::printf("%s %d\n", what, count);
    std::fflush(stdout);
}

class Program
{
public:
    Program(const QString& folder, WorkKind kind, const QByteArray& sample)
        : m_folder(folder), m_kind(kind), m_sample(sample)
    {
        m_prompts.SetMainWindow(&m_window);
        m_prompts.SetUnattended();
        AddAllForms(m_window, m_shared, m_prompts);
        m_window.Start();
        m_window.show();
        QObject::connect(&m_recovery.Keeper(), &RecoveryKeeper::Kept, [this] { Tell("kept", m_inCopy); });
    }

    int TypeUntilKilled(const QString& samplePath)
    {
        if (m_kind == WorkKind::Database) {
            m_window.OpenNamedFile(samplePath);
        } else {
            m_window.ShowForm(FormName::LInvTrack);
        }
        m_recovery.Start(1ms);
        Tell("typed", 0);
        for (int index = 1;; ++index) {
            if (m_kind == WorkKind::Database && m_shared.database.count < kAnnouncedRecords) {
                TypeDraw(index);
                Tell("typed", index);
            } else if (m_kind == WorkKind::Statement && index <= kMostStatementRows) {
                TypeRow(index);
                Tell("typed", index);
            }
            QCoreApplication::processEvents();
        }
    }

    int OpenWhatIsOffered()
    {
        m_recovery.Start(1ms);
        const bool offered =
            QTest::qWaitFor([this] { return m_window.findChild<RecoveryOffer*>() != nullptr; }, 500);
        if (!offered) {
            m_recovery.EndCleanly();
            return kNothingOffered;
        }
        QTest::mouseClick(m_window.findChild<QPushButton*>(u"OfferOpen"_s), Qt::LeftButton);
        QCoreApplication::processEvents();
        const int back = m_kind == WorkKind::Database ? DrawsThatCameBack() : RowsThatCameBack();
        m_recovery.EndCleanly();
        if (back < 0) {
            return kNotWhatWasTyped;
        }
        std::printf("%d\n", back);
        return kDone;
    }

private:
    /// The work as the program keeps it; takes down how much each copy holds.
    KeptWork Watched(KeptWork work)
    {
        const auto write = work.write;
        work.write = [this, write](QByteArray& bytes, RecoveryNote& note) {
            const Outcome written = write(bytes, note);
            m_inCopy = note.records - (m_kind == WorkKind::Database ? SampleRecords() : 0);
            return written;
        };
        return work;
    }

    int SampleRecords()
    {
        if (m_sampleRecords.empty()) {
            LotteryReading reading = ReadLotteryFile(m_sample, LotteryLayout::Current, m_shared.locale);
            m_sampleRecords = reading.content.value_or(LotteryFileContent{}).records;
        }
        return static_cast<int>(m_sampleRecords.size());
    }

    void TypeDraw(int index)
    {
        const QStringList numbers = NumbersOf(index);
        for (int k = 0; k < numbers.size(); ++k) {
            auto* box = m_window.findChild<InputBox*>(u"DYourNumIn%1"_s.arg(k));
            box->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(box, numbers.at(k));
        }
        QTest::mouseClick(m_window.findChild<QPushButton*>(u"DCalc"_s), Qt::LeftButton);
    }

    void TypeRow(int index)
    {
        auto* grid = m_window.findChild<StatementView*>(u"IGrid"_s);
        grid->setCurrentIndex(grid->model()->index(index - 1, 0));
        for (const QChar character : RowOf(index)) {
            QTest::keyClicks(grid, QString(character));
            QCoreApplication::processEvents(); // so that half a row is kept as well
        }
        grid->setCurrentIndex(grid->model()->index(index - 1, 1));
        QTest::keyClicks(grid, QString::number(-index));
    }

    /// @return how many draws were added to those of the sample; -1 when one is not what was typed
    int DrawsThatCameBack()
    {
        const DrawDatabase& database = m_shared.database;
        const int before = SampleRecords();
        for (int row = 1; row <= database.count; ++row) {
            const DrawRecord& record = database.records.at(static_cast<std::size_t>(row));
            if (row <= before && record != m_sampleRecords.at(static_cast<std::size_t>(row) - 1)) {
                return -1;
            }
            const QStringList typed = NumbersOf(row - before);
            for (int k = 0; row > before && k < typed.size(); ++k) {
                if (CellText(record.drawn.at(static_cast<std::size_t>(k))) != typed.at(k)) {
                    return -1;
                }
            }
        }
        return database.modified == 1 ? database.count - before : -1;
    }

    /// @return how many rows came back, the last of them perhaps half typed; -1 when one is not what was
    /// typed
    int RowsThatCameBack()
    {
        const int last = LastRowInUse(m_shared.InvestmentRows);
        for (int row = 1; row <= last; ++row) {
            const InvestmentRow& item = m_shared.InvestmentRows.at(static_cast<std::size_t>(row));
            const bool whole = item.description == RowOf(row) &&
                               item.amount == Currency::FromTenThousandths(-row * qint64{10000});
            if (!whole && (row < last || !RowOf(row).startsWith(item.description))) {
                return -1;
            }
        }
        return last;
    }

    QString m_folder;
    WorkKind m_kind;
    QByteArray m_sample;
    std::vector<DrawRecord> m_sampleRecords;
    int m_inCopy = 0; ///< what the last copy holds of what was typed
    LGLOBAL m_shared;
    DialogPrompts m_prompts{m_shared};
    QTemporaryDir m_programFolder;
    MDIContainer m_window{m_shared, m_prompts, m_programFolder.path()};
    Recovery m_recovery{m_shared,
                        m_prompts,
                        m_window,
                        m_folder,
                        {Watched(KeptDatabase(m_shared)), Watched(KeptStatement(m_shared))}};
};

} // namespace

int main(int argc, char** argv)
{
    constexpr int kArguments = 4;
    if (argc != kArguments) {
        std::fputs("recovery_probe draws|rows|open-draws|open-rows FOLDER SAMPLE\n", stderr);
        return kUsage;
    }
    const std::string_view verb = argv[1];
    const QString folder = QFile::decodeName(argv[2]);
    const QString samplePath = QFile::decodeName(argv[3]);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QApplication application(argc, argv);
    QByteArray sample;
    if (!ReadFileBytes(samplePath, sample).ok) {
        return kUsage;
    }
    Program program(folder, verb.ends_with("draws") ? WorkKind::Database : WorkKind::Statement, sample);
    return verb.starts_with("open-") ? program.OpenWhatIsOffered() : program.TypeUntilKilled(samplePath);
}
