#include "app/Printout.h"

#include "app/TextPictures.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStandardLinesPerPage = 53;
constexpr int kCourierNewLinesPerPage = 56;
constexpr int kPageNumberColumn = 40;

qsizetype LengthWithoutTrailingBlanks(const QString& text)
{
    qsizetype length = text.size();
    while (length > 0 && text.at(length - 1) == u' ') {
        --length;
    }
    return length;
}

/// How many characters of a text longer than @p width go into a line of that width; the rest goes on in the
/// next. Words and numbers stay whole where a blank allows it.
qsizetype LengthOfFirstLine(const QString& text, qsizetype width)
{
    const qsizetype blank = text.lastIndexOf(u' ', width);
    return blank > 0 ? std::min(blank + 1, width) : width;
}

/// True for a character that a fixed-pitch font has and that is one column wide.
bool IsOneColumnWide(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        break;
    default:
        return false;
    }
    // Signs that are written for ideographs are two columns wide.
    constexpr char16_t kFirstWide = 0x2E80;
    return character.unicode() < kFirstWide && !character.isSurrogate();
}

/// The text in characters of one column each: a blank for a control character, nothing for a mark without a
/// width of its own, and a question mark for what has no column of its own.
QString Printable(const QString& text)
{
    const QString composed = text.normalized(QString::NormalizationForm_C);
    QString printable;
    printable.reserve(composed.size());
    for (const QChar character : composed) {
        if (character.category() == QChar::Other_Control) {
            printable += u' ';
        } else if (character.isMark() || character.category() == QChar::Other_Format ||
                   character.isLowSurrogate()) {
            continue; // a pair of surrogates is one character
        } else if (character.isDigit()) {
            printable += QChar(u'0' + character.digitValue()); // a date in the digits of another script
        } else {
            printable += IsOneColumnWide(character) ? character : QChar(u'?');
        }
    }
    return printable;
}

} // namespace

QString DocumentName(const QString& name)
{
    constexpr qsizetype kLongest = 100;
    return name.left(kLongest).simplified();
}

int PageCount(const PrintedDocument& document)
{
    return int(document.pages.size() + document.charts.size()) + document.htmlPages;
}

const BarChart* ChartOnPage(const PrintedDocument& document, int page)
{
    const qsizetype chart = page - qsizetype(document.pages.size());
    return chart >= 0 && chart < qsizetype(document.charts.size()) ? &document.charts[size_t(chart)]
                                                                   : nullptr;
}

int HtmlPageOnPage(const PrintedDocument& document, int page)
{
    const int htmlPage = page - int(document.pages.size() + document.charts.size());
    return htmlPage >= 0 && htmlPage < document.htmlPages ? htmlPage : -1;
}

Printout::Printout(const QString& name, qint16 printerFont) : m_linesPerPage(kStandardLinesPerPage)
{
    m_document.name = DocumentName(name);
    m_document.printerFont = printerFont == kCourierNewFont ? kCourierNewFont : kStandardFont;
}

void Printout::PreparePrinter()
{
    PrintEmptyLines();
    m_linesPerPage =
        m_document.printerFont == kCourierNewFont ? kCourierNewLinesPerPage : kStandardLinesPerPage;
}

void Printout::FinishPrinting()
{
    EndPage();
}

int Printout::LinesOnPage() const
{
    const qsizetype ended = m_pageOpen ? qsizetype(m_document.pages.back().size()) : 0;
    return int(ended) + (m_line.empty() ? 0 : 1);
}

int Printout::PageNumber() const
{
    return int(m_document.pages.size()) + (m_pageOpen ? 0 : 1);
}

PrintedPage& Printout::OpenPage()
{
    if (m_pageOpen && m_document.pages.back().size() >= kSheetLines) {
        m_pageOpen = false;
    }
    if (!m_pageOpen) {
        m_document.pages.emplace_back();
        m_pageOpen = true;
    }
    return m_document.pages.back();
}

int Printout::NextColumn() const
{
    return m_line.empty() ? 1 : m_line.back().column + int(m_line.back().text.size());
}

void Printout::PrintAt(int column, const QString& text)
{
    column = std::clamp(column, 1, kPrintColumns);
    if (column < NextColumn()) {
        EndLine();
    }
    const qsizetype width = kPrintColumns - column + 1;
    QString rest = Printable(text);
    while (LengthWithoutTrailingBlanks(rest) > width) {
        const qsizetype length = LengthOfFirstLine(rest, width);
        m_line.push_back({column, rest.first(length)});
        EndLine();
        rest = rest.sliced(length);
    }
    rest.truncate(width); // blanks need no line of their own
    m_line.push_back({column, rest});
}

void Printout::EndLine()
{
    OpenPage().push_back(std::exchange(m_line, {}));
}

void Printout::PrintLine(const QString& text, int column)
{
    PrintAt(column, text);
    EndLine();
}

void Printout::PrintEmptyLines(int count)
{
    for (int i = 0; i < count; ++i) {
        EndLine();
    }
}

void Printout::EndNumberedPage()
{
    PrintEmptyLines(2);
    PrintLine(u"Page"_s + Str(PageNumber()), kPageNumberColumn);
    EndPage();
    PreparePrinter();
}

void Printout::EndPage()
{
    if (!m_line.empty()) {
        EndLine();
    }
    m_pageOpen = false;
}
