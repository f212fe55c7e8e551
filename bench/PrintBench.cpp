#include "app/DatabaseReport.h"
#include "app/PagePainter.h"
#include "app/PrintPreview.h"
#include "app/Printing.h"
#include "bench/MadeLottery.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QPdfWriter>
#include <QTextDocument>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPicks = 10;
constexpr int kHighest = 60;

PrintedDocument Report(const DrawDatabase& database, qint16 font)
{
    Printout printout(u"Database"_s, font);
    printout.PreparePrinter();
    PrintDatabaseReport(printout, database, CountMode::TimesDrawn, QLocale::c());
    printout.FinishPrinting();
    return printout.Document();
}

void LayOutDatabase(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(int(state.range(0)), kPicks, kHighest);
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(Report(database, kStandardFont));
    }
}
BENCHMARK(LayOutDatabase)->Arg(10)->Arg(200)->Arg(2001)->Unit(benchmark::kMillisecond);

/// From the records to the finished PDF.
void PrintDatabaseToPdf(benchmark::State& state)
{
    const DrawDatabase database = MadeLottery(int(state.range(0)), kPicks, kHighest);
    const auto font = qint16(state.range(1));
    for ([[maybe_unused]] auto round : state) {
        QByteArray pdf;
        const Outcome made = MakePdf(Report(database, font), QPageSize(QPageSize::A4), pdf);
        if (!made.ok) {
            state.SkipWithError("no PDF was made");
        }
        benchmark::DoNotOptimize(pdf);
    }
}
BENCHMARK(PrintDatabaseToPdf)
    ->Args({10, kStandardFont})
    ->Args({100, kStandardFont})
    ->Args({500, kStandardFont})
    ->Args({1000, kStandardFont})
    ->Args({2001, kStandardFont})
    ->Args({2001, kCourierNewFont})
    ->ArgNames({"records", "font"})
    ->Unit(benchmark::kMillisecond);

/// The same lines as padded text in the toolkit's own text document.
void PrintPlainTextToPdf(benchmark::State& state)
{
    const PrintedDocument document =
        Report(MadeLottery(int(state.range(0)), kPicks, kHighest), kStandardFont);
    QString text;
    for (const PrintedPage& page : document.pages) {
        for (const PrintedLine& line : page) {
            QString padded;
            for (const PrintedText& part : line) {
                padded = padded.leftJustified(part.column - 1) + part.text;
            }
            text += padded + u'\n';
        }
    }
    for ([[maybe_unused]] auto round : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QTextDocument plain;
        plain.setDefaultFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        plain.setPlainText(text);
        plain.print(&writer);
        benchmark::DoNotOptimize(buffer.data());
    }
}
BENCHMARK(PrintPlainTextToPdf)->Arg(2001)->Unit(benchmark::kMillisecond);

void OpenPreview(benchmark::State& state)
{
    const PrintedDocument document = Report(MadeLottery(2001, kPicks, kHighest), kStandardFont);
    for ([[maybe_unused]] auto round : state) {
        PrintPreview preview(document, QPageSize(QPageSize::A4), nullptr);
        preview.show();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(preview.grab());
    }
}
BENCHMARK(OpenPreview)->Unit(benchmark::kMillisecond);

} // namespace
