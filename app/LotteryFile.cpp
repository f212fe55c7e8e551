#include "app/LotteryFile.h"

#include "app/FieldReader.h"
#include "app/FieldWriter.h"
#include "app/TextPictures.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDrawDayLines = 10;
constexpr int kLastRow = kRecordRows - 1;

/// Reads one file front to back; the first fault ends it.
class LotteryFileReader
{
public:
    LotteryFileReader(const QByteArray& bytes, LotteryLayout layout, const QLocale& locale)
        : m_fields(bytes), m_layout(layout), m_locale(locale)
    {}

    LotteryReading Read()
    {
        const bool whole = ReadHeader() && ReadDrawDays() && ReadRecords();
        if (!whole) {
            return {std::nullopt, m_reason};
        }
        return {std::move(m_content), {}};
    }

private:
    bool Refuse(const QString& reason)
    {
        m_reason = reason;
        return false;
    }

    bool RefuseShortFile() { return Refuse(u"The file ends before everything it announces."_s); }

    bool ReadHeaderNumber(qint16& value, const QString& name)
    {
        const std::optional<Field> field = m_fields.Next();
        if (!field) {
            return RefuseShortFile();
        }
        const std::optional<double> number = FieldNumber(*field);
        const std::optional<qint16> fits = number ? ToInt16(*number) : std::nullopt;
        if (!fits) {
            return Refuse(name + u" in the first line is not a number that a lottery file can hold."_s);
        }
        value = *fits;
        return true;
    }

    bool ReadHeader()
    {
        if (!ReadHeaderNumber(m_content.count, u"The number of records"_s) ||
            !ReadHeaderNumber(m_content.columns, u"The number of columns"_s) ||
            !ReadHeaderNumber(m_content.highest, u"The highest number"_s)) {
            return false;
        }
        const std::optional<Field> title = m_fields.Next();
        if (!title) {
            return RefuseShortFile();
        }
        m_content.title = m_fields.Text(*title);
        if (m_content.count < 0 || m_content.count > kLastRow) {
            return Refuse(
                u"The file announces %1 records; a database holds 0 to 2000."_s.arg(m_content.count));
        }
        return true;
    }

    bool ReadDrawDays()
    {
        if (m_layout == LotteryLayout::Older) {
            // The header's last three values meant something once. Only Sunday is marked.
            for (int i = 0; i < 3; ++i) {
                if (!m_fields.Next()) {
                    return RefuseShortFile();
                }
            }
            for (std::size_t day = 1; day <= kDrawDayLines; ++day) {
                m_content.drawDays.at(day).weekday = day == 1 ? 1 : 0;
            }
            return true;
        }
        for (std::size_t day = 1; day <= kDrawDayLines; ++day) {
            DrawDay& row = m_content.drawDays.at(day);
            if (!ReadCell(row.carried) || !ReadCell(row.weekday)) {
                return false;
            }
        }
        return true;
    }

    bool ReadCell(Cell& cell)
    {
        const std::optional<Field> field = m_fields.Next();
        if (!field) {
            return RefuseShortFile();
        }
        cell = m_fields.AsCell(*field);
        m_lastField = *field;
        return true;
    }

    bool ReadRecords()
    {
        m_content.records.reserve(static_cast<std::size_t>(m_content.count));
        for (int row = 1; row <= m_content.count; ++row) {
            if (!ReadRecord(row)) {
                return false;
            }
        }
        // "42" cut to "4" at the end of a file looks whole, and "-4" cut to "-" has the value 0; a plain 0
        // cannot have been longer.
        const bool plainZero = m_lastField.kind == Field::Kind::Bare && m_lastField.bytes == "0";
        const bool lastNumberMayBeCut = m_content.count > 0 && m_fields.EndedByFileEnd() && !plainZero;
        return lastNumberMayBeCut ? Refuse(u"The last line is not finished, so its last number may be cut."_s)
                                  : true;
    }

    bool ReadRecord(int row)
    {
        DrawRecord& record = m_content.records.emplace_back();
        if (!ReadCell(record.number) || !ReadCell(record.date)) {
            return false;
        }
        for (Cell& drawn : record.drawn) {
            if (!ReadCell(drawn)) {
                return false;
            }
        }
        const double number = CellNumber(record.number);
        if (number < 0 || number > kLastRow) {
            return Refuse(u"Record %1 carries a number that no database has."_s.arg(row));
        }
        if (m_layout == LotteryLayout::Older && !CellDate(record.date, m_locale)) {
            return Refuse(u"Record %1 has no date."_s.arg(row));
        }
        record.number = row; // every other place of the program relies on number and row being the same
        return true;
    }

    FieldReader m_fields;
    LotteryLayout m_layout;
    const QLocale& m_locale;
    LotteryFileContent m_content;
    Field m_lastField;
    QString m_reason;
};

/// Writes one file front to back.
class LotteryFileWriter
{
public:
    LotteryFileWriter(const DrawDatabase& database, const QLocale& locale, WrittenFor purpose,
                      FileText fileText)
        : m_database(database), m_locale(locale), m_purpose(purpose), m_fields(fileText)
    {}

    Outcome Write(QByteArray& bytes)
    {
        WriteHeader();
        for (int row = 1; row <= m_database.count; ++row) {
            if (!WriteRecord(m_database.records.at(static_cast<std::size_t>(row)))) {
                const Cell& date = m_database.records.at(static_cast<std::size_t>(row)).date;
                return Outcome::Failure(
                    u"Record %1 has no date that could be written: \"%2\"."_s.arg(row).arg(CellText(date)));
            }
        }
        if (!m_fields.EverythingHadAPlace()) {
            return Outcome::Failure(FitsFileText(m_database.title)
                                        ? u"A field has a value that a lottery file cannot hold."_s
                                        : u"The title has a character that a lottery file cannot hold."_s);
        }
        bytes = m_fields.Bytes();
        return {};
    }

private:
    void WriteHeader()
    {
        m_fields.Number(m_database.count);
        m_fields.Number(m_database.columns);
        m_fields.Number(m_database.highest);
        m_fields.Text(m_database.title);
        m_fields.EndLine();
        for (std::size_t day = 1; day <= kDrawDayLines; ++day) {
            WriteText(m_database.drawDays.at(day).carried);
            WriteNumber(m_database.drawDays.at(day).weekday);
            m_fields.EndLine();
        }
    }

    /// @return false when the date is none and a user's file would not be a lottery file with it
    bool WriteRecord(const DrawRecord& record)
    {
        const std::optional<QDate> date = CellDate(record.date, m_locale);
        if (!date && m_purpose == WrittenFor::TheUser) {
            return false;
        }
        m_fields.AsHeld(record.number);
        if (m_purpose == WrittenFor::TheUser) {
            m_fields.Date(*date);
        } else {
            m_fields.Exactly(record.date);
        }
        for (const Cell& drawn : record.drawn) {
            WriteNumber(drawn);
        }
        m_fields.EndLine();
        return true;
    }

    void WriteText(const Cell& cell)
    {
        if (m_purpose == WrittenFor::TheUser) {
            m_fields.AsHeld(cell);
        } else {
            m_fields.Exactly(cell);
        }
    }

    /// A user's file holds the number that the cell stands for.
    void WriteNumber(const Cell& cell)
    {
        const bool isOne = !std::holds_alternative<QString>(cell) && !std::holds_alternative<QDate>(cell);
        if (isOne || m_purpose == WrittenFor::TheUser) {
            m_fields.Number(CellNumber(cell));
        } else {
            m_fields.Exactly(cell);
        }
    }

    const DrawDatabase& m_database;
    const QLocale& m_locale;
    WrittenFor m_purpose;
    FieldWriter m_fields;
};

} // namespace

LotteryReading ReadLotteryFile(const QByteArray& bytes, LotteryLayout layout, const QLocale& locale)
{
    return LotteryFileReader(bytes, layout, locale).Read();
}

Outcome WriteLotteryFile(const DrawDatabase& database, const QLocale& locale, QByteArray& bytes,
                         WrittenFor purpose)
{
    Outcome written = LotteryFileWriter(database, locale, purpose, FileText::Iso8859).Write(bytes);
    if (!written.ok && purpose == WrittenFor::ARecoveryCopy) {
        written = LotteryFileWriter(database, locale, purpose, FileText::Utf8).Write(bytes);
    }
    return written;
}

void ReplaceDatabase(DrawDatabase& database, LotteryFileContent&& content, const QString& fileName)
{
    database.Empty();
    database.count = content.count;
    database.columns = content.columns;
    database.highest = content.highest;
    database.title = std::move(content.title);
    database.drawDays = std::move(content.drawDays);
    database.fileName = fileName;
    std::move(content.records.begin(), content.records.end(), database.records.begin() + 1);
}
