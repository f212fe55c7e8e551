#include "app/PrinterDoor.h"

#ifdef QUILLABY_CUPS
#include "app/CupsPrinters.h"
#else
#include "app/QtPrinters.h"
#endif

#include <QLocale>

QPageSize UsualPaper(const QLocale& locale)
{
    const bool usesLetter = locale.measurementSystem() == QLocale::ImperialUSSystem;
    return {usesLetter ? QPageSize::Letter : QPageSize::A4};
}

std::unique_ptr<PrinterDoor> SystemPrinters()
{
#ifdef QUILLABY_CUPS
    return std::make_unique<CupsPrinters>();
#else
    return std::make_unique<QtPrinters>();
#endif
}
