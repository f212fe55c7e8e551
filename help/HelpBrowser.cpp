#include "help/HelpBrowser.h"

#include "help/HelpBook.h"
#include "help/HelpStyle.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace {

const QString kScheme = u"qrc"_s;

/// The file of a page or picture of the help. @return "" for anything else.
QString FileOf(const QUrl& url)
{
    const QString path = u':' + url.path();
    const bool isOurs = url.scheme() == kScheme && path.startsWith(HelpBrowser::Folder() + u'/');
    return isOurs && QFile::exists(path) ? path : QString();
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setOpenExternalLinks(false);
    constexpr int kMargin = 14;
    document()->setDocumentMargin(kMargin);
    TakeStyle();
}

QString HelpBrowser::Folder()
{
    return u":/%1"_s.arg(kHelpFile);
}

QString HelpBrowser::PageAt(const QUrl& url)
{
    return url.fileName().section(u'.', 0, 0);
}

void HelpBrowser::ShowPage(const QString& name)
{
    QUrl url;
    url.setScheme(kScheme);
    url.setPath(u"/%1/%2.html"_s.arg(kHelpFile, name));
    setSource(url);
}

QString HelpBrowser::PageHtml() const
{
    QFile file(FileOf(source()));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    const QUrl url = source().isValid() ? source().resolved(name) : name;
    return FileOf(url).isEmpty() ? QVariant() : QTextBrowser::loadResource(type, url);
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    const QUrl url = source().isValid() ? source().resolved(name) : name;
    if (!FileOf(url.adjusted(QUrl::RemoveFragment)).isEmpty()) {
        QTextBrowser::doSetSource(url, type);
    }
}

void HelpBrowser::MarkWords(const QStringList& words)
{
    QTextCharFormat format; // black on yellow is legible under every palette
    format.setBackground(QColor(0xFF, 0xE9, 0x6B));
    format.setForeground(Qt::black);
    QList<QTextEdit::ExtraSelection> marks;
    int first = -1;
    for (const QString& word : words) {
        QTextCursor place = document()->find(word);
        while (!place.isNull()) {
            marks.append({place, format});
            if (first < 0 || place.selectionStart() < first) {
                first = place.selectionStart();
            }
            place = document()->find(word, place);
        }
    }
    setExtraSelections(marks);
    if (first >= 0) {
        QTextCursor cursor(document());
        cursor.setPosition(first);
        setTextCursor(cursor);
        ensureCursorVisible();
    }
}

void HelpBrowser::SetTextSize(int steps)
{
    constexpr qreal kStep = 1.15;
    QFont letters = QApplication::font(this);
    const qreal points = letters.pointSizeF() > 0 ? letters.pointSizeF() : QFontInfo(letters).pointSizeF();
    qreal size = points;
    for (int i = 0; i < std::abs(steps); ++i) {
        size = steps > 0 ? size * kStep : size / kStep;
    }
    letters.setPointSizeF(size);
    setFont(letters);
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        TakeStyle();
        reload();
    }
}

void HelpBrowser::TakeStyle()
{
    document()->setDefaultStyleSheet(StyleOnScreen(palette(), QApplication::font(this).family()));
}
