#pragma once

#include "app/Outcome.h"
#include "app/Printout.h"

#include <QByteArray>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>

#include <functional>

/// One unit of a painted page is 1/720 inch, so that a column of the standard font is 72 units wide and a
/// line of either font 120 units high.
inline constexpr int kPageUnitsPerInch = 720;

/// How that paper lies for a page of the document: for a chart it is wider than high. @param page  0 for the
/// first
[[nodiscard]] QPageLayout::Orientation OrientationOf(const PrintedDocument& document, int page,
                                                     const QPageSize& paper);

/// That page in page units, as it lies.
[[nodiscard]] QSizeF SizeOfPage(const PrintedDocument& document, int page, const QPageSize& paper);

/// Paints a page of a document as it looks on that paper. The painter's units are page units and its origin
/// is the left upper corner of the paper as it lies. Paper smaller than A4 or Letter gets a smaller picture
/// of the page, so that nothing is cut off.
///
/// @param page  0 for the first
void PaintPage(QPainter& painter, const PrintedDocument& document, int page, const QPageSize& paper);

/// Told how many pages are done while a document is painted; called on the thread that paints.
using PagesDone = std::function<void(int pages)>;

/// The document as a PDF file, which it is only if nothing went wrong.
[[nodiscard]] Outcome MakePdf(const PrintedDocument& document, const QPageSize& paper, QByteArray& pdf,
                              const PagesDone& pagesDone = {});
