#pragma once

#include "app/BarChart.h"

#include <QString>

#include <vector>

/// A text at a print column of its line, counted from 1.
struct PrintedText {
    int column = 1;
    QString text;

    bool operator==(const PrintedText&) const = default;
};

/// One line of a page; no texts is an empty line. Texts stand from left to right and do not overlap.
using PrintedLine = std::vector<PrintedText>;

/// One page, from its first line down.
using PrintedPage = std::vector<PrintedLine>;

/// The printer font of the settings.
enum PrinterFont : qint16 {
    kStandardFont = 0,   ///< the fixed-pitch standard font: 12 points, 10 columns an inch
    kCourierNewFont = 1, ///< "Courier New", 11 points
};

/// What goes to paper: pages of text lines, charts, each on a whole page in landscape, and formatted text. A
/// plain value, so that it can be compared and kept.
struct PrintedDocument {
    QString name; ///< what the print queue and the preview call it
    qint16 printerFont = kStandardFont;
    std::vector<PrintedPage> pages;
    std::vector<BarChart> charts; ///< the pages that come after those of text
    QString html{};               ///< formatted text, on the pages that come last
    int htmlPages = 0;            ///< how many pages that is

    bool operator==(const PrintedDocument&) const = default;
};

/// The name as every queue and window takes it: one line, cut after a hundred characters.
[[nodiscard]] QString DocumentName(const QString& name);

/// How many pages a document has, charts and formatted text included.
[[nodiscard]] int PageCount(const PrintedDocument& document);

/// The chart that is a page of the document. @param page  0 for the first
/// @return nullptr for a page of text, and for a page that the document does not have.
[[nodiscard]] const BarChart* ChartOnPage(const PrintedDocument& document, int page);

/// Which page of its formatted text a page of the document is, both from 0. @return -1 for any other page.
[[nodiscard]] int HtmlPageOnPage(const PrintedDocument& document, int page);

inline constexpr int kPrintColumns = 75; ///< columns that A4 and Letter hold in either font
inline constexpr int kSheetLines =
    60; ///< lines that A4 and Letter hold: 56, two empty ones, the footer, one more

/// Writes a document line by line, the way a line printer is driven.
///
/// Nothing runs off the paper: a text too long for its line goes on in the next line at the same column (from
/// a blank where there is one), and a line that no longer fits the sheet starts a new page. A character that
/// is not exactly one column wide is printed as a question mark.
class Printout
{
public:
    /// @param name  cut after a hundred characters
    /// @param printerFont  as in the settings; any other than kCourierNewFont prints in the standard font
    Printout(const QString& name, qint16 printerFont);

    /// Prints an empty line, which opens the document or the next page, and takes the font and with it the
    /// lines to a page. Called at the start of every printout and after every page break.
    void PreparePrinter();

    /// Ends the current page and the document. A page that has just been ended is not followed by a blank
    /// one.
    void FinishPrinting();

    /// Lines after which a report ends its page: 53, or 56 in "Courier New".
    [[nodiscard]] int LinesPerPage() const { return m_linesPerPage; }

    /// Lines begun on the current page, that of PreparePrinter included. A report compares it to
    /// LinesPerPage.
    [[nodiscard]] int LinesOnPage() const;

    /// Number of the current page, from 1.
    [[nodiscard]] int PageNumber() const;

    /// True when that many more lines fit the current sheet.
    [[nodiscard]] bool HasRoomFor(int lines) const { return LinesOnPage() + lines <= kSheetLines; }

    /// Puts a text into the current line, which stays open. A column that is passed already is taken on a new
    /// line.
    /// @param column  1..kPrintColumns; others are held to that range
    void PrintAt(int column, const QString& text);

    /// Ends the line; with nothing in it, it is an empty one.
    void EndLine();

    /// A line of its own.
    void PrintLine(const QString& text, int column = 1);

    void PrintEmptyLines(int count = 1);

    /// The end of a page of a longer report: two empty lines and "Page" with its number at column 40; then a
    /// new page is begun and prepared.
    void EndNumberedPage();

    /// Ends the page; the next line opens a new one.
    void EndPage();

    /// What has been printed.
    [[nodiscard]] const PrintedDocument& Document() const { return m_document; }

private:
    PrintedPage& OpenPage();
    [[nodiscard]] int NextColumn() const;

    PrintedDocument m_document;
    PrintedLine m_line; ///< the line that is not ended yet
    bool m_pageOpen = false;
    int m_linesPerPage;
};
