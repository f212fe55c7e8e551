#include "help/HelpStyle.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace {

struct PageColors {
    QColor link;
    QColor heading;
    QColor line;
    QColor shade; ///< behind the headings of tables
};

/// @param family  of the letters; keys would be written like a typewriter without it
QString StyleSheet(const PageColors& colors, const QString& family)
{
    // Sizes are left to the elements, so that all of a page grows with the reader's text size.
    return u"h1 { color: %2; margin-top: 4px; margin-bottom: 10px; }"
           "h2 { color: %2; margin-top: 20px; margin-bottom: 6px; }"
           "p { margin-top: 0px; margin-bottom: 9px; }"
           "ol, ul { margin-top: 0px; margin-bottom: 9px; }"
           "li { margin-bottom: 5px; }"
           "a { color: %1; }"
           "kbd { font-family: \"%5\"; font-weight: bold; }"
           "table { border-collapse: collapse; border-style: solid; border-color: %3; margin-top: 4px;"
           " margin-bottom: 12px; }"
           "th { background-color: %4; }"_s.arg(colors.link.name(), colors.heading.name(), colors.line.name(),
                                                colors.shade.name(), family);
}

QColor Mixed(const QColor& first, const QColor& second, qreal share)
{
    const auto mix = [share](int from, int to) { return int(from + share * (to - from)); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

} // namespace

QString StyleOnScreen(const QPalette& palette, const QString& family)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const bool dark = qGray(base.rgb()) < qGray(text.rgb());
    // A palette's own colour of links is often the dark blue of white pages on a dark ground too.
    return StyleSheet({.link = dark ? QColor(0x8C, 0xC4, 0xFF) : QColor(0x0B, 0x4F, 0xA8),
                       .heading = dark ? QColor(0xFF, 0xD0, 0x80) : QColor(0x7A, 0x2E, 0x0E),
                       .line = Mixed(base, text, 0.45),
                       .shade = Mixed(base, text, 0.1)},
                      family);
}

QString HtmlOnPaper(const QString& html)
{
    const QString style = StyleSheet({.link = Qt::black,
                                      .heading = Qt::black,
                                      .line = QColor(0x80, 0x80, 0x80),
                                      .shade = QColor(0xEE, 0xEE, 0xEE)},
                                     u"sans-serif"_s);
    QString onPaper = html;
    return onPaper.replace(u"</head>"_s, u"<style type=\"text/css\">"_s + style +
                                             u"a { text-decoration: none; }</style></head>"_s);
}
