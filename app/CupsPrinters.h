#pragma once

#include "app/PrinterDoor.h"

/// The queues of CUPS. Its library is opened by each call, so it may be missing.
class CupsPrinters : public PrinterDoor
{
public:
    [[nodiscard]] bool WorksOnAnyThread() const override { return true; }
    [[nodiscard]] DefaultPrinter Default() override;
    [[nodiscard]] Outcome Print(const PrintedDocument& document, const DefaultPrinter& printer,
                                const PagesDone& pagesDone) override;
};
