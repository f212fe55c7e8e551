#include "app/Printing.h"

namespace {

constexpr qint16 kContinueWithPrintout = 1;
constexpr int kPrintInColor = 2;

} // namespace

PrintedDocument MakeDocument(LGLOBAL& shared, const QString& name, const WriteReport& write)
{
    Printout printout(name, shared.settings.printerFont);
    printout.PreparePrinter();
    shared.linesPerPage = qint16(printout.LinesPerPage());
    write(printout);
    printout.FinishPrinting();
    return printout.Document();
}

void PrintOnRequest(LGLOBAL& shared, Prompts& prompts, const QString& name, const WriteReport& write)
{
    const auto document = [&] { return MakeDocument(shared, name, write); };
    shared.questionNumber = kContinueWithPrintout;
    prompts.AskToPrint(document);
    if (shared.questionNumber == kAnsweredYes) {
        prompts.PrintDocument(document());
    }
}

void PrintDocumentOnRequest(LGLOBAL& shared, Prompts& prompts, const PrintedDocument& document)
{
    shared.questionNumber = kContinueWithPrintout;
    prompts.AskToPrint([&document] { return document; });
    if (shared.questionNumber == kAnsweredYes) {
        prompts.PrintDocument(document);
    }
}

PrintedDocument ChartDocument(const BarChart& chart)
{
    return {.name = DocumentName(chart.title), .pages = {}, .charts = {chart}};
}

void PrintChartOnRequest(LGLOBAL& shared, Prompts& prompts, const BarChart& chart)
{
    BarChart printed = chart;
    printed.ink = ChartInk::Color;
    shared.questionNumber = kContinueWithPrintout;
    prompts.AskToPrint([&] { return ChartDocument(printed); });
    if (shared.questionNumber != kAnsweredYes) {
        return;
    }
    printed.ink = Ask(shared, prompts, kPrintInColor) ? ChartInk::Color : ChartInk::BlackAndWhite;
    prompts.PrintDocument(ChartDocument(printed));
}
