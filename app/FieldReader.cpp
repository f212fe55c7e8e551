#include "app/FieldReader.h"

#include "app/ShortDate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool EndsLine(char byte)
{
    return byte == '\r' || byte == '\n';
}

bool IsSeparator(char byte)
{
    return byte == ',' || EndsLine(byte);
}

bool IsBlank(char byte)
{
    return byte == ' ' || byte == '\t';
}

QByteArrayView WithoutTrailingBlanks(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && IsBlank(bytes.back())) {
        bytes.chop(1);
    }
    return bytes;
}

} // namespace

FieldReader::FieldReader(const QByteArray& bytes, QuotedText quotedText)
    : m_bytes(bytes), m_quotedText(quotedText)
{
    constexpr QByteArrayView kUtf8Mark("\xEF\xBB\xBF");
    if (m_bytes.startsWith(kUtf8Mark)) {
        m_place = kUtf8Mark.size();
        m_utf8 = true;
    }
}

void FieldReader::SkipBlanks()
{
    while (m_place < m_bytes.size() && IsBlank(m_bytes.at(m_place))) {
        ++m_place;
    }
}

void FieldReader::SkipToSeparator()
{
    while (m_place < m_bytes.size() && !IsSeparator(m_bytes.at(m_place))) {
        ++m_place;
    }
    m_endedByFileEnd = m_place == m_bytes.size();
    if (m_endedByFileEnd) {
        return;
    }
    const char separator = m_bytes.at(m_place++);
    if (separator == '\r' && m_place < m_bytes.size() && m_bytes.at(m_place) == '\n') {
        ++m_place;
    }
}

Field FieldReader::NextQuoted()
{
    const qsizetype begin = m_place + 1;
    const auto last = m_quotedText == QuotedText::SpansLines
                          ? m_bytes.cend()
                          : std::find_if(m_bytes.cbegin() + begin, m_bytes.cend(), EndsLine);
    const auto quote = std::find(m_bytes.cbegin() + begin, last, '"');
    const qsizetype end = std::distance(m_bytes.cbegin(), quote);
    m_quoteWasLeftOpen = quote == last;
    m_place = m_quoteWasLeftOpen ? end : end + 1;
    SkipToSeparator(); // what stands behind the closing quote is not part of the field
    return Field{Field::Kind::Quoted, m_bytes.sliced(begin, end - begin)};
}

std::optional<Field> FieldReader::Next()
{
    m_quoteWasLeftOpen = false;
    SkipBlanks();
    if (m_place >= m_bytes.size()) {
        return std::nullopt;
    }
    const char first = m_bytes.at(m_place);
    if (first == '"') {
        return NextQuoted();
    }
    const qsizetype begin = m_place;
    const auto separator = std::find_if(m_bytes.cbegin() + begin, m_bytes.cend(), IsSeparator);
    const qsizetype end = std::distance(m_bytes.cbegin(), separator);
    const QByteArrayView bytes = WithoutTrailingBlanks(m_bytes.sliced(begin, end - begin));
    m_place = end;
    SkipToSeparator();
    if (first == '#' && bytes.size() >= 2 && bytes.back() == '#') {
        return Field{Field::Kind::Dated, bytes.sliced(1, bytes.size() - 2)};
    }
    return Field{Field::Kind::Bare, bytes};
}

QString FieldReader::Text(const Field& field) const
{
    return m_utf8 ? QString::fromUtf8(field.bytes) : QString::fromLatin1(field.bytes);
}

Cell FieldReader::AsCell(const Field& field) const
{
    if (field.kind == Field::Kind::Quoted) {
        return Text(field);
    }
    if (field.kind == Field::Kind::Dated) {
        const std::optional<QDate> date = FieldDate(field);
        return date ? Cell(*date) : Cell(Text(field));
    }
    if (field.bytes.isEmpty()) {
        return {};
    }
    const std::optional<double> number = FieldNumber(field);
    if (!number) {
        return Text(field);
    }
    const bool whole = *number == std::trunc(*number) && *number >= std::numeric_limits<int>::min() &&
                       *number <= std::numeric_limits<int>::max();
    return whole ? Cell(static_cast<int>(*number)) : Cell(*number);
}

std::optional<double> FieldNumber(const Field& field)
{
    if (field.kind != Field::Kind::Bare || field.bytes.isEmpty()) {
        return std::nullopt;
    }
    const char* begin = field.bytes.cbegin();
    const char* const end = field.bytes.cend();
    if (*begin == '+' && end - begin > 1 && begin[1] != '-') {
        ++begin;
    }
    // Nearly every field of a file is a short whole number.
    int whole = 0;
    const auto asWhole = std::from_chars(begin, end, whole);
    if (asWhole.ec == std::errc() && asWhole.ptr == end) {
        return whole;
    }
    bool understood = false;
    const double number = field.bytes.toDouble(&understood);
    if (!understood || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

std::optional<QDate> FieldDate(const Field& field)
{
    if (field.kind != Field::Kind::Dated) {
        return std::nullopt;
    }
    const qsizetype blank = field.bytes.indexOf(' ');
    const QByteArrayView day = blank < 0 ? field.bytes : field.bytes.first(blank);
    std::array<int, 3> parts{};
    const char* place = day.cbegin();
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0 && (place == day.cend() || *place++ != '-')) {
            return std::nullopt;
        }
        const char* const begin = place;
        const auto [end, error] = std::from_chars(begin, day.cend(), parts.at(i));
        if (error != std::errc() || *begin == '-' || end - begin > 4) {
            return std::nullopt;
        }
        place = end;
    }
    return place == day.cend() ? DateWithinRange(parts[0], parts[1], parts[2]) : std::nullopt;
}
