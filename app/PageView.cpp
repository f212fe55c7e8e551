#include "app/PageView.h"

#include "app/PagePainter.h"

#include <algorithm>

namespace {

constexpr int kMargin = 12; ///< pixels around the page

} // namespace

PageView::PageView(QWidget* parent) : QWidget(parent) {}

void PageView::SetDocument(const PrintedDocument& document, const QPageSize& paper)
{
    m_document = document;
    m_paper = paper;
    ShowPage(0);
}

void PageView::ShowPage(int page)
{
    m_page = page;
    update();
}

void PageView::SetZoom(qreal zoom)
{
    m_zoom = zoom;
    resize(sizeHint());
    updateGeometry();
    update();
}

QSizeF PageView::SizeAt(qreal zoom) const
{
    return SizeOfPage(m_document, m_page, m_paper) * (zoom * logicalDpiX() / kPageUnitsPerInch);
}

qreal PageView::ZoomForPage(QSize room) const
{
    const QSizeF page = SizeAt(1);
    return std::max(0.05, std::min((room.width() - 2 * kMargin) / page.width(),
                                   (room.height() - 2 * kMargin) / page.height()));
}

qreal PageView::ZoomForWidth(int width) const
{
    return std::max(0.05, (width - 2 * kMargin) / SizeAt(1).width());
}

QSize PageView::sizeHint() const
{
    return SizeAt(m_zoom).toSize() + QSize(2 * kMargin, 2 * kMargin);
}

void PageView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QSizeF size = SizeAt(m_zoom);
    const QRectF sheet(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    constexpr qreal kShadow = 3;
    painter.fillRect(sheet.translated(kShadow, kShadow), QColor(0, 0, 0, 90));
    painter.fillRect(sheet, Qt::white); // paper is white under every palette
    painter.setPen(Qt::gray);
    painter.drawRect(sheet);
    if (m_page < 0 || m_page >= PageCount(m_document)) {
        return;
    }
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    const qreal scale = size.width() / SizeOfPage(m_document, m_page, m_paper).width();
    painter.scale(scale, scale);
    PaintPage(painter, m_document, m_page, m_paper);
}
