#pragma once

#include "app/LGLOBAL.h"
#include "app/Printout.h"
#include "app/Prompts.h"

#include <QString>

#include <functional>

/// The message of a form that has nothing to print yet.
inline constexpr int kNoDataToPrint = 1;

/// Writes the lines of one report.
using WriteReport = std::function<void(Printout&)>;

/// A report in the printer font of the settings; linesPerPage is then that of the font. The report is written
/// between PreparePrinter and FinishPrinting, so it only prints its lines.
///
/// @param name  what the print queue and the preview call it
[[nodiscard]] PrintedDocument MakeDocument(LGLOBAL& shared, const QString& name, const WriteReport& write);

/// A document of one page, which is the chart.
[[nodiscard]] PrintedDocument ChartDocument(const BarChart& chart);

/// Asks question 1, with a look at the pages offered beside its answers, and prints after Yes: for a document
/// that is made already.
void PrintDocumentOnRequest(LGLOBAL& shared, Prompts& prompts, const PrintedDocument& document);

/// Asks question 1, with a look at the page in color offered beside its answers; after Yes question 2, and
/// prints the chart as it is on a page of its own: in color after Yes, else in black and white.
void PrintChartOnRequest(LGLOBAL& shared, Prompts& prompts, const BarChart& chart);

/// Asks question 1, with a look at the pages offered beside its answers, and prints after Yes. What goes
/// wrong is told to the user; nothing in memory is changed by it.
void PrintOnRequest(LGLOBAL& shared, Prompts& prompts, const QString& name, const WriteReport& write);
