#include "app/FieldWriter.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr QByteArrayView kUtf8Mark("\xEF\xBB\xBF");

void AppendWhole(QByteArray& bytes, qint64 value)
{
    std::array<char, 20> digits; // as many as the longest has, with its sign
    const char* const end = std::to_chars(digits.begin(), digits.end(), value).ptr;
    bytes.append(digits.data(), end - digits.data());
}

/// With zeros in front where it has fewer digits than @p width.
void AppendPadded(QByteArray& bytes, int value, qsizetype width)
{
    const qsizetype begin = bytes.size();
    AppendWhole(bytes, value);
    const qsizetype missing = width - (bytes.size() - begin);
    if (missing > 0) {
        bytes.insert(begin, missing, '0');
    }
}

} // namespace

bool FitsFileText(QStringView text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar ch) { return ch.unicode() <= 0xFF; });
}

FieldWriter::FieldWriter(FileText fileText) : m_fileText(fileText)
{
    if (m_fileText == FileText::Utf8) {
        m_bytes = kUtf8Mark.toByteArray();
    }
}

void FieldWriter::Begin()
{
    if (m_lineBegun) {
        m_bytes += ',';
    }
    m_lineBegun = true;
}

void FieldWriter::Number(double value)
{
    Begin();
    m_everythingHadAPlace = m_everythingHadAPlace && std::isfinite(value);
    constexpr double kLargestPlain = 1e15; // whole numbers below it are written without an exponent
    if (value == std::trunc(value) && std::abs(value) < kLargestPlain) {
        AppendWhole(m_bytes, static_cast<qint64>(value));
    } else {
        m_bytes += QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    }
}

void FieldWriter::Amount(Currency amount)
{
    Begin();
    m_bytes += amount.Plain().toLatin1();
}

/// The characters themselves, without signs around them.
void FieldWriter::Append(const QString& text)
{
    if (m_fileText == FileText::Utf8) {
        m_bytes += text.toUtf8();
        return;
    }
    m_everythingHadAPlace = m_everythingHadAPlace && FitsFileText(text);
    m_bytes += text.toLatin1();
}

void FieldWriter::Text(const QString& text)
{
    Begin();
    m_bytes += '"';
    Append(text);
    m_bytes += '"';
}

void FieldWriter::Date(QDate date)
{
    Begin();
    m_bytes += '#';
    AppendPadded(m_bytes, date.year(), 4);
    m_bytes += '-';
    AppendPadded(m_bytes, date.month(), 2);
    m_bytes += '-';
    AppendPadded(m_bytes, date.day(), 2);
    m_bytes += '#';
}

void FieldWriter::AsHeld(const Cell& cell)
{
    if (const int* whole = std::get_if<int>(&cell)) {
        Number(*whole);
    } else if (const double* real = std::get_if<double>(&cell)) {
        Number(*real);
    } else if (const QString* text = std::get_if<QString>(&cell)) {
        Text(*text);
    } else if (const QDate* date = std::get_if<QDate>(&cell)) {
        Date(*date);
    } else {
        Nothing();
    }
}

void FieldWriter::Exactly(const Cell& cell)
{
    const QString* text = std::get_if<QString>(&cell);
    if (text == nullptr || !text->contains(u'"')) {
        AsHeld(cell);
        return;
    }
    // Nothing is escaped, so such a text was read from a field without quotes around it, and goes into one.
    Begin();
    const bool isTheFieldItself =
        !QStringView(u"\"# \t").contains(text->front()) && !QStringView(u" \t").contains(text->back());
    const auto separates = [](QChar ch) { return ch == u',' || ch == u'\r' || ch == u'\n'; };
    m_everythingHadAPlace = m_everythingHadAPlace && std::none_of(text->cbegin(), text->cend(), separates);
    m_bytes += isTheFieldItself ? "" : "#";
    Append(*text);
    m_bytes += isTheFieldItself ? "" : "#";
}

void FieldWriter::EndLine()
{
    m_bytes += "\r\n";
    m_lineBegun = false;
}
