#include "app/PaperPrinting.h"

#include "app/LongWork.h"
#include "app/SafeFile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// A name that every file system takes.
QString PdfNameOf(const PrintedDocument& document)
{
    constexpr qsizetype kLongest = 60;
    QString name;
    for (const QChar character : document.name.left(kLongest)) {
        const bool fit = character.isLetterOrNumber() || character == u' ' || character == u'-';
        name += fit ? character : QChar(u'-');
    }
    name = name.simplified();
    return (name.isEmpty() ? u"Printout"_s : name) + u".pdf"_s;
}

Outcome WritePdf(const PrintedDocument& document, const QPageSize& paper, const QString& path,
                 const StepsDone& done)
{
    QByteArray pdf;
    const Outcome painted = MakePdf(document, paper, pdf, done);
    return painted.ok ? SaveFileBytes(path, pdf) : painted;
}

} // namespace

Outcome PaperPrinting::Run(const QString& text, int steps,
                           const std::function<Outcome(const PagesDone&)>& work)
{
    m_prompts.SetBusyPointer(true);
    Outcome outcome = m_printers.WorksOnAnyThread() ? RunLongWork(m_mainWindow, text, steps, work)
                                                    : RunWorkHere(m_mainWindow, text, steps, work);
    m_prompts.SetBusyPointer(false); // before anything is told
    return outcome;
}

DefaultPrinter PaperPrinting::FindPrinter()
{
    DefaultPrinter printer;
    Run(u"Asking for the default printer..."_s, 0, [&](const StepsDone&) {
        printer = m_printers.Default();
        return Outcome{};
    });
    return printer;
}

QPageSize PaperPrinting::Paper()
{
    return FindPrinter().paper;
}

void PaperPrinting::Print(const PrintedDocument& document)
{
    const DefaultPrinter printer = FindPrinter();
    if (!printer.Exists()) {
        m_prompts.Notice(u"There is no printer to print on. You can print to a PDF file instead.\n\n%1"_s.arg(
            printer.reason));
        SaveAsPdf(document, printer.paper);
        return;
    }
    const Outcome printed =
        Run(u"Printing on %1..."_s.arg(printer.name), PageCount(document),
            [&](const PagesDone& done) { return m_printers.Print(document, printer, done); });
    if (!printed.ok) {
        m_prompts.Notice(u"Nothing was printed on %1.\n\n%2"_s.arg(printer.name, printed.reason));
    }
}

void PaperPrinting::SaveAsPdf(const PrintedDocument& document, const QPageSize& paper)
{
    m_shared.fileDialogMode = kSavePdfFile;
    m_shared.pdfFileName = PdfNameOf(document);
    m_prompts.FileDirectory();
    const bool chosen = m_shared.fileDialogMode != kFileDialogCancelled;
    const QString path = m_shared.chosenPath;
    m_shared.fileDialogMode = kFileDialogIdle;
    m_shared.chosenPath.clear();
    if (!chosen) {
        return;
    }
    m_prompts.SetBusyPointer(true);
    const Outcome saved =
        RunLongWork(m_mainWindow, u"Printing to a PDF file..."_s, PageCount(document),
                    [&](const StepsDone& done) { return WritePdf(document, paper, path, done); });
    m_prompts.SetBusyPointer(false);
    const QString shownPath = QDir::toNativeSeparators(path);
    if (saved.ok) {
        m_prompts.Notice(u"The pages are in this file now:\n%1"_s.arg(shownPath));
    } else {
        m_prompts.Notice(u"The PDF file was not written.\n%1\n\n%2"_s.arg(shownPath, saved.reason));
    }
}
