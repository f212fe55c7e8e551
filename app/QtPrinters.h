#pragma once

#include "app/PrinterDoor.h"

/// The printers as the toolkit drives them: for Windows and macOS. (Where CUPS is, it reports every job as
/// printed, also those that were refused.)
class QtPrinters : public PrinterDoor
{
public:
    [[nodiscard]] bool WorksOnAnyThread() const override { return false; }
    [[nodiscard]] DefaultPrinter Default() override;
    [[nodiscard]] Outcome Print(const PrintedDocument& document, const DefaultPrinter& printer,
                                const PagesDone& pagesDone) override;
};
