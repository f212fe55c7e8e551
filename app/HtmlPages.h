#pragma once

#include <QPainter>
#include <QSizeF>
#include <QString>

/// Formatted text on paper: black letters of 11 points, with the document's name and the number of the page
/// below. It is laid out for an area that A4 and Letter hold alike, so that a text has the same pages on
/// every paper.

/// How many pages the text takes; at least one.
[[nodiscard]] int CountHtmlPages(const QString& html);

/// Paints a page of the text. May be called on any thread: it shares nothing.
///
/// @param page  0 for the first
/// @param size  of the paper, in units of 1/720 inch, which are those of the painter. Smaller paper gets a
///              smaller picture.
void PaintHtmlPage(QPainter& painter, const QString& html, int page, const QString& name, const QSizeF& size);
