#pragma once

#include "app/Printout.h"

#include <QPageSize>
#include <QWidget>

/// One page of a document as it will look on paper, in the size that its zoom asks for.
class PageView : public QWidget
{
    Q_OBJECT

public:
    explicit PageView(QWidget* parent = nullptr);

    void SetDocument(const PrintedDocument& document, const QPageSize& paper);

    /// @param page  0 for the first
    void ShowPage(int page);

    /// @param zoom  1 for the size on paper, as far as the screen knows its own size
    void SetZoom(qreal zoom);

    /// The zoom under which the whole page, or its whole width, has that room.
    [[nodiscard]] qreal ZoomForPage(QSize room) const;
    [[nodiscard]] qreal ZoomForWidth(int width) const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QSizeF SizeAt(qreal zoom) const;

    PrintedDocument m_document;
    QPageSize m_paper{QPageSize::A4};
    int m_page = 0;
    qreal m_zoom = 1;
};
