#include "tests/faults/SavedFiles.h"

#include "app/LotteryFile.h"
#include "app/LotteryFileCommands.h"
#include "app/StartUp.h"
#include "invest/InvestmentCalculation.h"
#include "invest/InvestmentFile.h"
#include "invest/InvestmentFileCommands.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Chooses the file that is wanted and takes down what the user would be told.
class TrialPrompts : public Prompts
{
public:
    TrialPrompts(LGLOBAL& shared, QString path) : m_shared(shared), m_path(std::move(path)) {}

    void ShowMessage() override { told << CurrentMessageText(m_shared) + u'\n' + m_shared.messageReason; }
    void AskQuestion() override { told << u"a question"_s; }
    void AskToPrint(const std::function<PrintedDocument()>& /*pages*/) override { told << u"a printout"_s; }
    void PrintDocument(const PrintedDocument& /*document*/) override { told << u"a printout"_s; }
    void FileDirectory() override { m_shared.chosenPath = m_path; }
    void Notice(const QString& text) override { told << text; }
    void SetBusyPointer(bool /*busy*/) override {}

    QStringList told;

private:
    LGLOBAL& m_shared;
    QString m_path;
};

/// "Seed 7 " and letters that are others for each seed.
QString SeededText(int seed, int length)
{
    constexpr unsigned kMultiplier = 1664525U;
    constexpr unsigned kIncrement = 1013904223U;
    QString text = u"Seed %1 "_s.arg(seed);
    unsigned state = static_cast<unsigned>(seed);
    while (text.size() < length) {
        state = state * kMultiplier + kIncrement;
        text += QChar(u'a' + static_cast<char16_t>((state >> 24U) % 26U));
    }
    return text;
}

std::optional<int> SeedIn(const QString& text)
{
    bool isNumber = false;
    const int seed = text.section(u' ', 1, 1).toInt(&isNumber);
    return isNumber && text.startsWith(u"Seed ") ? std::optional<int>(seed) : std::nullopt;
}

DrawDatabase SeededDatabase(int seed, int size)
{
    constexpr int kHeader = 160;
    constexpr int kRecord = 40;
    constexpr int kHighest = 49;
    DrawDatabase database;
    database.columns = 8;
    database.highest = kHighest;
    database.title = SeededText(seed, 40);
    database.CheckDay(7, true);
    const int records = std::clamp((size - kHeader) / kRecord, 1, kAnnouncedRecords);
    for (int record = 1; record <= records; ++record) {
        std::vector<int> numbers;
        for (int pick = 0; pick < 6; ++pick) {
            numbers.push_back((seed + record + pick * 7) % kHighest + 1);
        }
        database.Append(QDate(1990, 1, 6).addDays(record * 7), numbers);
    }
    database.modified = 1;
    return database;
}

InvestmentStatement SeededStatement(int seed, int size)
{
    constexpr int kSmallest = 260; // 112 lines of nothing but a comma
    const int rows = size < 4000 ? 2 : kMostStatementRows;
    InvestmentTable table;
    for (int row = 1; row <= rows; ++row) {
        InvestmentRow& entry = table.at(static_cast<std::size_t>(row));
        entry.description = SeededText(seed, (size - kSmallest) / rows - 8);
        entry.amount = Currency::FromText(QString::number(seed % 1000 + row));
    }
    return CalculateStatement(table).value_or(InvestmentStatement());
}

bool SameDatabase(const DrawDatabase& a, const DrawDatabase& b)
{
    return a.records == b.records && a.count == b.count && a.columns == b.columns && a.highest == b.highest &&
           a.title == b.title && a.fileName == b.fileName && a.drawDays == b.drawDays;
}

} // namespace

QString NameOf(SavedFile file)
{
    static const std::array<QString, 3> names{u"lottery"_s, u"settings"_s, u"statement"_s};
    return names.at(static_cast<std::size_t>(file));
}

QString FileNameOf(SavedFile file)
{
    static const std::array<QString, 3> names{u"Mine.Lto"_s, u"Personal.Lot"_s, u"Mine.inv"_s};
    return names.at(static_cast<std::size_t>(file));
}

QString RefusalOf(SavedFile file)
{
    static const std::array<QString, 3> refusals{u"Bad Filename. Must be in the form MYFILE.Lto\n"_s,
                                                 u"The settings could not be saved to disk: "_s,
                                                 u"Bad filename, must be in the form MYFILE.INV\n"_s};
    return refusals.at(static_cast<std::size_t>(file));
}

SaveTrial::SaveTrial(SavedFile file, int seed, int size) : m_file(file), m_seed(seed), m_size(size)
{
    m_shared.locale = QLocale::c();
    MakeUp();
    const Outcome written = file == SavedFile::Lottery
                                ? WriteLotteryFile(m_shared.database, m_shared.locale, m_bytes)
                            : file == SavedFile::Settings ? WriteSettings(m_shared.settings, m_bytes)
                                                          : WriteInvestmentFile(m_statement, m_bytes);
    Q_ASSERT(written.ok);
}

void SaveTrial::MakeUp()
{
    m_shared.investmentFileName = u"Before.inv"_s;
    switch (m_file) {
    case SavedFile::Lottery:
        m_shared.database = SeededDatabase(m_seed, m_size);
        m_shared.database.fileName = u"Before.Lto"_s;
        break;
    case SavedFile::Settings:
        m_shared.settings.userName = SeededText(m_seed, m_size - 20);
        break;
    case SavedFile::Statement:
        m_statement = SeededStatement(m_seed, m_size);
        break;
    }
}

QStringList SaveTrial::Save(const QString& path)
{
    TrialPrompts prompts(m_shared, path);
    switch (m_file) {
    case SavedFile::Lottery:
        SaveFile(m_shared, prompts);
        break;
    case SavedFile::Settings:
        m_shared.programFolder = QFileInfo(path).path();
        SavePersonalSettings(m_shared, prompts);
        break;
    case SavedFile::Statement:
        if (SaveInvestmentFile(m_shared, prompts, m_statement) != prompts.told.isEmpty()) {
            prompts.told << u"It says one thing and returns another."_s;
        }
        break;
    }
    return prompts.told;
}

bool SaveTrial::IsAsMade() const
{
    const SaveTrial fresh(m_file, m_seed, m_size);
    return SameDatabase(m_shared.database, fresh.m_shared.database) &&
           m_shared.settings == fresh.m_shared.settings && m_statement == fresh.m_statement &&
           m_shared.investmentFileName == fresh.m_shared.investmentFileName &&
           m_shared.chosenPath.isEmpty() && m_shared.fileDialogMode == kFileDialogIdle;
}

std::optional<int> SeedOf(SavedFile file, const QByteArray& bytes, int size)
{
    std::optional<int> seed;
    if (file == SavedFile::Lottery) {
        const LotteryReading reading = ReadLotteryFile(bytes, LotteryLayout::Current, QLocale::c());
        seed = reading.content ? SeedIn(reading.content->title) : std::nullopt;
    } else if (file == SavedFile::Settings) {
        AppSettings settings;
        seed = ReadSettings(bytes, settings) ? SeedIn(settings.userName) : std::nullopt;
    } else {
        const InvestmentReading reading = ReadInvestmentFile(bytes);
        seed = reading.statement ? SeedIn(reading.statement->rows.at(1).description) : std::nullopt;
    }
    return seed && SaveTrial(file, *seed, size).Bytes() == bytes ? seed : std::nullopt;
}
