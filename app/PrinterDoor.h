#pragma once

#include "app/Outcome.h"
#include "app/PagePainter.h"
#include "app/Printout.h"

#include <QPageSize>
#include <QString>

#include <memory>

/// The printer that takes what is printed without asking for one.
struct DefaultPrinter {
    QString name;       ///< "" when there is none
    QString instance{}; ///< the set of options that the user made the default; "" for the queue's own
    QPageSize paper;
    QString reason; ///< why there is none

    [[nodiscard]] bool Exists() const { return !name.isEmpty(); }
};

/// The one door to paper. Default and Print may take as long as the system needs to answer, so they are
/// called on a thread of their own where the system allows it. They touch nothing but their arguments.
class PrinterDoor
{
public:
    virtual ~PrinterDoor() = default;

    /// Whether the functions below may be called on any thread, or only on that of the windows.
    [[nodiscard]] virtual bool WorksOnAnyThread() const = 0;

    /// The default printer as it is at this moment.
    [[nodiscard]] virtual DefaultPrinter Default() = 0;

    /// Hands the document to the printer. On failure the reason says why, in the system's words where it
    /// gives any; what the printer's system keeps of a job that failed is taken back as far as it lets
    /// itself.
    [[nodiscard]] virtual Outcome Print(const PrintedDocument& document, const DefaultPrinter& printer,
                                        const PagesDone& pagesDone) = 0;

protected:
    PrinterDoor() = default;
    PrinterDoor(const PrinterDoor&) = default;
    PrinterDoor(PrinterDoor&&) = default;
    PrinterDoor& operator=(const PrinterDoor&) = default;
    PrinterDoor& operator=(PrinterDoor&&) = default;
};

/// The printers of this system. Nothing is loaded or asked before a function is called.
[[nodiscard]] std::unique_ptr<PrinterDoor> SystemPrinters();

/// The paper that is usual where the locale is spoken: Letter or A4.
[[nodiscard]] QPageSize UsualPaper(const QLocale& locale);
