#pragma once

#include <QString>
#include <QWidget>

/// A tool tip that shows a text literally: markup in it, "&amp;" and its blanks stand as they are. A text of
/// nothing has no tip.
[[nodiscard]] QString LiteralToolTip(const QString& text);

/// Gives a widget such a tip. A screen reader says the text itself.
void SetLiteralToolTip(QWidget& widget, const QString& text);
