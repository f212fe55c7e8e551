#pragma once

#include "app/LGLOBAL.h"
#include "app/PrinterDoor.h"
#include "app/Prompts.h"

#include <QWidget>

/// Brings a document to paper, or into a PDF file, and tells the user what went wrong. Nothing in memory is
/// changed by it, and the program goes on.
class PaperPrinting
{
public:
    /// @param mainWindow  the window that waits meanwhile
    PaperPrinting(LGLOBAL& shared, Prompts& prompts, PrinterDoor& printers, QWidget* mainWindow)
        : m_shared(shared), m_prompts(prompts), m_printers(printers), m_mainWindow(mainWindow)
    {}

    /// Prints on the default printer. Where there is none, says so with the system's reason and offers a PDF
    /// file instead.
    void Print(const PrintedDocument& document);

    /// Asks for a file and writes the document into it as PDF; an old file of that name is whole until the
    /// new one is.
    void SaveAsPdf(const PrintedDocument& document, const QPageSize& paper);

    /// The paper that the document would be printed on.
    [[nodiscard]] QPageSize Paper();

private:
    [[nodiscard]] DefaultPrinter FindPrinter();
    /// Lets the door work under the busy pointer, on a thread of its own if it can.
    Outcome Run(const QString& text, int steps, const std::function<Outcome(const PagesDone&)>& work);

    LGLOBAL& m_shared;
    Prompts& m_prompts;
    PrinterDoor& m_printers;
    QWidget* m_mainWindow;
};
