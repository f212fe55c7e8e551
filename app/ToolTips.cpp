#include "app/ToolTips.h"

using namespace Qt::StringLiterals;

QString LiteralToolTip(const QString& text)
{
    // A tip is taken for markup when it looks like it, and long lines are broken only then: so it always is.
    return text.isEmpty() ? QString()
                          : u"<span style=\"white-space:pre-wrap\">"_s + text.toHtmlEscaped() + u"</span>"_s;
}

void SetLiteralToolTip(QWidget& widget, const QString& text)
{
    widget.setToolTip(LiteralToolTip(text));
    widget.setAccessibleDescription(text); // where there is none, the tip is said with all its markup
}
