#pragma once

#include <QPalette>
#include <QString>

/// How pages look under a palette of the desktop, light or dark: legible links, headings and tables.
///
/// @param family  of the letters
[[nodiscard]] QString StyleOnScreen(const QPalette& palette, const QString& family);

/// A page as it is printed: black on white, its links plain text.
[[nodiscard]] QString HtmlOnPaper(const QString& html);
