#include "app/PrinterDoor.h"

#include <QLocale>

QPageSize UsualPaper(const QLocale& locale)
{
    return QPageSize(locale.measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                             : QPageSize::A4);
}
