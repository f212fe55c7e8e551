// A walk through the editor: the bytes say what is done next and with what. Beside the program's own records
// stands a plain list of draws (EditorModel), to which the same is done the long way, and after each step
// both must agree: records, messages, counts, dates, and what a file gives back.

#include "app/LotteryFile.h"
#include "app/ShortDate.h"
#include "database/DateSort.h"
#include "database/ExtractRecords.h"
#include "database/NumberStatistics.h"
#include "database/RecordTasks.h"
#include "fuzz/EditorModel.h"
#include "fuzz/FuzzCheck.h"

#include <QByteArray>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QLocale& WalkLocale()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

QDate Today()
{
    return {2004, 3, 13};
}

/// The bytes of the input, front to back; 0 once they are used up.
class Steps
{
public:
    Steps(const unsigned char* data, std::size_t size) : m_data(data), m_left(size) {}

    [[nodiscard]] bool AtEnd() const { return m_left == 0; }

    int Byte()
    {
        if (m_left == 0) {
            return 0;
        }
        --m_left;
        return *m_data++;
    }

    int TwoBytes()
    {
        const int high = Byte();
        return high * 256 + Byte();
    }

    QByteArray Bytes(int most)
    {
        const std::size_t count = std::min(static_cast<std::size_t>(most), m_left);
        const QByteArray bytes(reinterpret_cast<const char*>(m_data), static_cast<qsizetype>(count));
        m_data += count;
        m_left -= count;
        return bytes;
    }

private:
    const unsigned char* m_data;
    std::size_t m_left;
};

/// Made once, and its table is only as large as it has to be: to make and empty 2,003 rows for each input
/// would take most of the time.
DrawDatabase& Database()
{
    static DrawDatabase database;
    return database;
}

class Walk
{
public:
    Walk(const unsigned char* data, std::size_t size) : m_steps(data, size)
    {
        ClearUsedRows();
        m_database.drawDays = {};
        m_database.title.clear();
        m_database.fileName.clear();
        m_database.modified = 0;
        TakeShape(m_database, 6, 49);
        m_model = EditorModel::Of(m_database, WalkLocale());
        ProposeDate();
    }

    ~Walk() { ClearUsedRows(); }
    Walk(const Walk&) = delete;
    Walk(Walk&&) = delete;
    Walk& operator=(const Walk&) = delete;
    Walk& operator=(Walk&&) = delete;

    void Run()
    {
        constexpr int kMostSteps = 200;
        constexpr int kOnMany = 10; // steps on many records take their time
        for (int step = 0; step < kMostSteps && !m_steps.AtEnd();
             step += m_database.count > 500 ? kOnMany : 1) {
            MakeRoom(m_database.count);
            Step(m_steps.Byte());
            CheckSame();
            CheckCounts();
        }
        Save();
        LoadSaved();
        CheckSame();
    }

private:
    void ClearUsedRows()
    {
        m_database.records.clear();
        m_database.records.resize(kSpareRows);
        m_database.count = 0;
    }

    /// Rows for so many records and some more.
    void MakeRoom(int records)
    {
        const auto rows = static_cast<std::size_t>(std::min(records + kSpareRows, kRecordRows));
        if (m_database.records.size() < rows) {
            m_database.records.resize(rows);
        }
    }

    void Step(int choice)
    {
        switch (choice % 16) {
        case 0:
        case 1:
        case 2:
            AddRecord();
            break;
        case 3:
        case 4:
            CorrectRecord();
            break;
        case 5:
        case 6:
            InsertRecord();
            break;
        case 7:
            Delete();
            break;
        case 8:
            Sort();
            break;
        case 9:
            Extract();
            break;
        case 10:
            Save();
            break;
        case 11:
            LoadSaved();
            break;
        case 12:
            LoadForeign();
            break;
        case 13:
            TypeShape();
            break;
        case 14:
            CheckDay();
            break;
        default:
            RareStep(m_steps.Byte());
        }
    }

    void RareStep(int choice)
    {
        switch (choice % 4) {
        case 0:
            DeleteAll();
            break;
        case 1:
            Fill();
            break;
        case 2:
            m_database.title = QString::fromLatin1(m_steps.Bytes(m_steps.Byte() % 8)).remove(u'"');
            m_model.title = m_database.title;
            break;
        default:
            TypeDate();
        }
    }

    // What the user types

    /// Boxes as they can be typed: nothing but figures, mostly numbers of the lottery.
    TypedRow TypeRow(TypedRow row)
    {
        const int how = m_steps.Byte();
        row.allowDuplicates = (how & 1) != 0;
        const int first = m_steps.Byte();
        row.boxes.resize(m_model.picks);
        for (int pick = 0; pick < m_model.picks; ++pick) {
            row.boxes[pick] = QString::number((first + pick * 7) % m_model.highest + 1);
        }
        if ((how & 2) != 0) {
            const int value = m_steps.TwoBytes() % 12000;
            const QString text = value < 10000 ? QString::number(value) : QString(value % 5, u'0');
            row.boxes[m_steps.Byte() % m_model.picks] = text;
        }
        if ((how & 4) != 0) {
            TypeDate();
        }
        row.date = m_newDate;
        return row;
    }

    /// What leaving the date box does: a text that is no date leaves the date that stood there.
    void TypeDate()
    {
        const int how = m_steps.Byte();
        const QDate date = how % 16 == 0 ? QDate::fromJulianDay(ModelDraw::kMarkedDay + how / 16 % 3 - 1)
                                         : QDate(2004, 1, 1).addDays(how % 16 * m_steps.Byte());
        const QString text =
            how % 16 == 15 ? QString::fromLatin1(m_steps.Bytes(8)) : ShortDate(date, WalkLocale());
        const std::optional<QDate> read = ParseDrawDate(text, WalkLocale());
        if (how % 16 != 15) {
            FUZZ_CHECK(read.has_value() == (date.toJulianDay() != ModelDraw::kMarkedDay));
            FUZZ_CHECK(!read || *read == date);
        }
        m_newDate = read.value_or(m_newDate);
    }

    void ProposeDate()
    {
        m_newDate = DateOfNewRow(m_database, Today(), WalkLocale());
        FUZZ_CHECK(m_newDate == m_model.ExpectedDate(Today()));
    }

    // What the buttons do

    /// "Add Record": the row is checked and, when nothing is wrong with it, taken.
    /// @return whether the task is over
    bool Press(EditMode task, int record, const TypedRow& row)
    {
        const int expected = m_model.ExpectedMessage(task, row);
        const RowCheck check = CheckRow(m_database, task, row, WalkLocale());
        FUZZ_CHECK((check.fault ? check.fault->message : 0) == expected);
        FUZZ_CHECK(check.endsTask == (expected == 39));
        m_model.modified = m_model.modified || (task == EditMode::Normal && expected != 36 && expected != 37);
        if (check.fault) {
            return check.endsTask;
        }
        EnterRow(m_database, task, record, row);
        if (task == EditMode::Correct) {
            ModelDraw& draw = m_model.draws.at(static_cast<std::size_t>(record) - 1);
            draw = m_model.DrawOf(row, draw);
        } else {
            m_model.draws.push_back(m_model.DrawOf(row, {}));
        }
        return true;
    }

    void AddRecord()
    {
        if (Press(EditMode::Normal, 0, TypeRow({}))) {
            ProposeDate();
        }
    }

    /// @return the record that a task is for, after the message it must bring; 0 when it cannot begin.
    int Begin(EditMode task)
    {
        const int record = task == EditMode::Insert ? 1 : m_steps.TwoBytes() % 4096 + 1;
        const int count = static_cast<int>(m_model.draws.size());
        const std::optional<EntryFault> fault = CheckTask(m_database, task, record);
        const int expected = record > count ? 41 : task == EditMode::Insert && count > 2000 ? 45 : 0;
        FUZZ_CHECK((fault ? fault->message : 0) == expected);
        return fault ? 0 : record;
    }

    int AnyRecord(EditMode task)
    {
        if (m_model.draws.empty()) {
            return 0; // message 18 comes before anything is asked
        }
        const int record = Begin(task);
        return record != 0 || task == EditMode::Insert
                   ? record
                   : m_steps.TwoBytes() % static_cast<int>(m_model.draws.size()) + 1;
    }

    void CorrectRecord()
    {
        const int record = AnyRecord(EditMode::Correct);
        if (record == 0) {
            return;
        }
        TypedRow row = RowOfRecord(m_database, record, WalkLocale());
        FUZZ_CHECK(row.boxes.size() == m_model.picks);
        const ModelDraw& draw = m_model.draws.at(static_cast<std::size_t>(record) - 1);
        FUZZ_CHECK(row.date.isValid() ? row.date.toJulianDay() == draw.day : draw.day == ModelDraw::kNoDay);
        m_newDate = row.date;
        FinishWhenOver(Press(EditMode::Correct, record, TypeRow(row)));
    }

    void InsertRecord()
    {
        if (AnyRecord(EditMode::Insert) == 0) {
            return;
        }
        m_newDate = QDate();
        FinishWhenOver(Press(EditMode::Insert, 1, TypeRow({})));
    }

    /// After a row that was taken, or refused for its date, the records are sorted. A row that waits to be
    /// mended is given up here, as by leaving the editor.
    void FinishWhenOver(bool isOver)
    {
        if (isOver) {
            Sort();
        } else {
            ProposeDate();
        }
    }

    void Sort()
    {
        const int unreadable = SortByDate(m_database, WalkLocale());
        TakeOverOrder(unreadable, true);
    }

    void Delete()
    {
        const int record = AnyRecord(EditMode::Delete);
        if (record == 0) {
            return;
        }
        const int unreadable = DeleteRecord(m_database, record, WalkLocale());
        m_model.draws.erase(m_model.draws.begin() + record - 1);
        TakeOverOrder(unreadable, false);
    }

    /// The program's order is checked, then the model takes it over: draws of one day may stand in any.
    void TakeOverOrder(int unreadable, bool dropsTheMarked)
    {
        std::vector<ModelDraw> sorted = EditorModel::Of(m_database, WalkLocale()).draws;
        FUZZ_CHECK(m_model.SortsTo(sorted, dropsTheMarked));
        m_model.draws = std::move(sorted);
        FUZZ_CHECK(unreadable ==
                   std::count_if(m_model.draws.begin(), m_model.draws.end(),
                                 [](const ModelDraw& d) { return d.day == ModelDraw::kNoDay; }));
        ProposeDate();
    }

    void Extract()
    {
        const int low = m_steps.TwoBytes() % 2100;
        const int high = low + m_steps.TwoBytes() % 2100;
        ExtractRecords(m_database, static_cast<float>(low), static_cast<float>(high));
        std::vector<ModelDraw> kept;
        for (std::size_t i = 0; i < m_model.draws.size(); ++i) {
            const int number = static_cast<int>(i) + 1;
            if (number >= low && number <= high) {
                kept.push_back(m_model.draws.at(i));
                std::fill(kept.back().numbers.begin() + m_model.picks, kept.back().numbers.end(), 0);
            }
        }
        m_model.draws = std::move(kept);
        m_model.title = u"Extracted"_s;
        FUZZ_CHECK(m_database.fileName == u"Extract.lto");
        m_database.records.resize(std::min<std::size_t>(m_model.draws.size() + kSpareRows, kRecordRows));
        ProposeDate();
    }

    void DeleteAll()
    {
        DeleteAllRecords(m_database);
        m_model.draws.clear();
        m_model.title.clear();
        FUZZ_CHECK(m_database.fileName.isEmpty());
        ProposeDate();
    }

    /// Up to the limit in one step, which no walk would reach otherwise.
    void Fill()
    {
        if (m_fills == 2) {
            return; // enough for emptying a full database in between
        }
        ++m_fills;
        const int target = std::min(1995 + m_steps.Byte() % 8, 2001);
        MakeRoom(target);
        while (static_cast<int>(m_model.draws.size()) < target - 1) {
            const int next = static_cast<int>(m_model.draws.size()) + 1;
            m_newDate = m_newDate.addDays(1);
            FUZZ_CHECK(m_database.Append(m_newDate, {next % m_model.highest + 1}));
            m_model.draws.push_back({m_newDate.toJulianDay(), {double(next % m_model.highest + 1)}});
        }
        while (static_cast<int>(m_model.draws.size()) < target) {
            TypedRow row{QStringList(m_model.picks, u"1"_s), m_newDate, true};
            row.boxes.last() = QString::number(static_cast<int>(m_model.draws.size()) % m_model.highest + 1);
            FUZZ_CHECK(Press(EditMode::Normal, 0, row));
            m_newDate = m_newDate.addDays(1);
        }
        ProposeDate();
    }

    void TypeShape()
    {
        const int picks = m_steps.Byte() % 10 + 1;
        const int highest = m_steps.Byte() % 60 + 1;
        if (m_model.draws.empty()) {
            m_model.picks = picks;
            m_model.highest = highest;
        }
        TakeShape(m_database, picks, highest); // with records nothing changes
    }

    void CheckDay()
    {
        const int choice = m_steps.Byte();
        m_database.CheckDay(choice % 7 + 1, choice % 2 == 0);
        m_model.drawDays.at(static_cast<std::size_t>(choice % 7 + 1)) = choice % 2 == 0;
        ProposeDate();
    }

    // Files

    void Save()
    {
        QByteArray bytes("as it was");
        const bool readable =
            std::none_of(m_model.draws.begin(), m_model.draws.end(),
                         [](const ModelDraw& draw) { return draw.day == ModelDraw::kNoDay; });
        if (!WriteLotteryFile(m_database, WalkLocale(), bytes).ok) {
            FUZZ_CHECK(bytes == "as it was");
            FUZZ_CHECK(!readable ||
                       m_isForeign); // what a foreign file brought may have no place in one of ours
            return;
        }
        FUZZ_CHECK(readable);
        m_saved = bytes;
        m_savedModel = m_model;
        m_savedIsForeign = m_isForeign;
        m_database.modified = 0;
        m_model.modified = false;
    }

    /// @return whether the bytes were read. The mark of unsaved changes stays as it is.
    bool Load(const QByteArray& bytes, LotteryLayout layout)
    {
        LotteryReading reading = ReadLotteryFile(bytes, layout, WalkLocale());
        if (!reading.content) {
            return false;
        }
        MakeRoom(reading.content->count);
        ReplaceDatabase(m_database, std::move(*reading.content), u"Walk.Lto"_s);
        TakeShape(m_database, 6, 49); // as the editor does when it shows them
        return true;
    }

    void LoadSaved()
    {
        if (m_saved.isEmpty()) {
            return;
        }
        FUZZ_CHECK(Load(m_saved, LotteryLayout::Current) || m_savedIsForeign);
        if (!m_savedIsForeign) {
            const bool modified = m_model.modified;
            m_model = m_savedModel;
            m_model.modified = modified;
            if (m_model.draws.empty()) { // the boxes give it its shape, and there they are 6 and 49
                m_model.picks = 6;
                m_model.highest = 49;
            }
            m_isForeign = false;
        } else {
            m_model = EditorModel::Of(m_database, WalkLocale());
            m_isForeign = true;
        }
        ProposeDate();
    }

    /// The saved file with a change, or a file out of the input.
    void LoadForeign()
    {
        const int how = m_steps.Byte();
        QByteArray bytes = m_saved;
        if (bytes.isEmpty() || how % 4 == 0) {
            bytes = m_steps.Bytes(m_steps.TwoBytes() % 2048);
        } else if (how % 4 == 1) {
            bytes.truncate(m_steps.TwoBytes() * 2 % bytes.size());
        } else {
            bytes[m_steps.TwoBytes() * 2 % bytes.size()] = static_cast<char>(m_steps.Byte());
        }
        if (Load(bytes, how % 8 < 4 ? LotteryLayout::Current : LotteryLayout::Older)) {
            m_isForeign = true;
            m_model = EditorModel::Of(m_database, WalkLocale());
            FUZZ_CHECK(m_model.draws.size() <= 2002);
        }
        ProposeDate();
    }

    // What must hold after every step

    void CheckSame() const
    {
        FUZZ_CHECK(m_database.count >= 0 && m_database.count <= (m_isForeign ? 2002 : 2001));
        FUZZ_CHECK(static_cast<std::size_t>(m_database.count) == m_model.draws.size());
        FUZZ_CHECK(m_database.records.front() == DrawRecord());
        for (int row = 1; row <= m_database.count; ++row) {
            FUZZ_CHECK(CellHolds(m_database.records.at(static_cast<std::size_t>(row)).number, row));
        }
        if (m_database.count + 1 <
            static_cast<int>(m_database.records.size())) { // nothing stays behind the last
            FUZZ_CHECK(m_database.records.at(static_cast<std::size_t>(m_database.count) + 1) == DrawRecord());
        }
        const EditorModel held = EditorModel::Of(m_database, WalkLocale());
        FUZZ_CHECK(held.draws == m_model.draws);
        FUZZ_CHECK(held.picks == m_model.picks && m_model.picks >= 1 && m_model.picks <= kMostPicks);
        FUZZ_CHECK(held.highest == m_model.highest && m_model.highest >= 1 &&
                   m_model.highest <= kMostNumbers);
        FUZZ_CHECK(held.drawDays == m_model.drawDays);
        FUZZ_CHECK(held.title == m_model.title);
        FUZZ_CHECK(held.modified == m_model.modified);
    }

    void CheckCounts() const
    {
        const EditorModel::Counts counted = m_model.CountAll();
        const NumberTable times = CountNumbers(m_database, CountMode::TimesDrawn);
        const NumberTable since = CountNumbers(m_database, CountMode::SinceLastDrawn);
        for (int number = 0; number <= kMostNumbers; ++number) {
            const auto row = static_cast<std::size_t>(number);
            const bool counts = number >= 1 && number <= m_model.highest;
            FUZZ_CHECK(times.at(row).value == (counts ? counted.timesDrawn.at(row) : 0));
            FUZZ_CHECK(since.at(row).value == (counts ? counted.sinceLastDrawn.at(row) : 0));
            FUZZ_CHECK(times.at(row).label == (times.at(row).value > 0 ? number : 0));
            FUZZ_CHECK(since.at(row).label == times.at(row).label);
        }
        const NumberTable sorted = SortNumbers(times, m_model.highest, 0);
        FUZZ_CHECK(
            std::is_sorted(sorted.begin() + 1, sorted.begin() + 1 + m_model.highest,
                           [](const NumberCount& a, const NumberCount& b) { return a.value > b.value; }));
    }

    static constexpr int kSpareRows = 16;

    Steps m_steps;
    DrawDatabase& m_database = Database();
    EditorModel m_model;
    QDate m_newDate;    ///< of the 'New' row
    QByteArray m_saved; ///< the file last saved; empty before
    EditorModel m_savedModel;
    bool m_savedIsForeign = false;
    bool m_isForeign =
        false; ///< the database holds what another's file brought, which need not be written back
    int m_fills = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    Walk(data, size).Run();
    return 0;
}
