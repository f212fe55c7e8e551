#include "app/QtPrinters.h"

#include <QLocale>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace {

void PaintOn(const QPrinter& device, QPainter& painter, const PrintedDocument& document, int page)
{
    painter.save();
    const qreal scale = qreal(device.resolution()) / kPageUnitsPerInch;
    painter.scale(scale, scale);
    PaintPage(painter, document, page, device.pageLayout().pageSize());
    painter.restore();
}

} // namespace

DefaultPrinter QtPrinters::Default()
{
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    if (printer.isNull()) {
        return {
            .name = {}, .instance = {}, .paper = UsualPaper(QLocale()), .reason = u"No default printer."_s};
    }
    const QPageSize paper = printer.defaultPageSize();
    return {.name = printer.printerName(),
            .instance = {},
            .paper = paper.isValid() ? paper : UsualPaper(QLocale()),
            .reason = {}};
}

Outcome QtPrinters::Print(const PrintedDocument& document, const DefaultPrinter& printer,
                          const PagesDone& pagesDone)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(printer.name);
    if (info.isNull()) {
        return Outcome::Failure(u"The printer is not there any more."_s);
    }
    if (info.state() == QPrinter::Error) {
        return Outcome::Failure(u"The printer is stopped."_s);
    }
    QPrinter device(info, QPrinter::HighResolution);
    device.setDocName(document.name);
    device.setFullPage(true);
    device.setPageSize(printer.paper);
    device.setPageOrientation(OrientationOf(document, 0, printer.paper));
    QPainter painter;
    bool painted = painter.begin(&device);
    for (int page = 0; painted && page < PageCount(document); ++page) {
        if (page > 0) { // it counts from the next page on
            device.setPageOrientation(OrientationOf(document, page, printer.paper));
        }
        painted = page == 0 || device.newPage();
        if (painted) {
            PaintOn(device, painter, document, page);
            pagesDone(page + 1);
        }
    }
    if (!painted) {
        device.abort();
    }
    const bool ended = painter.isActive() && painter.end();
    const bool taken = device.printerState() != QPrinter::Error && device.printerState() != QPrinter::Aborted;
    return painted && ended && taken ? Outcome{}
                                     : Outcome::Failure(u"The printer does not take the pages."_s);
}
