#include "help/HelpBook.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whether an element stands on lines of its own.
bool IsBlock(QStringView element)
{
    static const QStringList kBlocks{u"h1"_s, u"h2"_s, u"h3"_s,  u"p"_s,   u"li"_s,
                                     u"tr"_s, u"br"_s, u"div"_s, u"pre"_s, u"table"_s};
    return kBlocks.contains(element);
}

bool IsCell(QStringView element)
{
    return element == u"td" || element == u"th";
}

/// Ends the line that is being written, if anything stands in it.
void EndLine(QString& text)
{
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    if (!text.isEmpty() && !text.endsWith(u'\n')) {
        text += u'\n';
    }
}

/// Appends words as a reader sees them: any run of blanks and line ends is one blank.
void AddWords(QString& text, QStringView words)
{
    for (const QChar character : words) {
        const bool atBegin = text.isEmpty() || text.endsWith(u'\n') || text.endsWith(u' ');
        if (!character.isSpace()) {
            text += character;
        } else if (!atBegin) {
            text += u' ';
        }
    }
}

/// The number of blanks a line begins with.
qsizetype Indent(const QString& line)
{
    qsizetype blanks = 0;
    while (blanks < line.size() && line.at(blanks) == u' ') {
        ++blanks;
    }
    return blanks;
}

HelpPage ReadContentsLine(const QString& line)
{
    constexpr qsizetype kBlanksToALevel = 2;
    HelpPage page;
    page.level = int(Indent(line) / kBlanksToALevel);
    page.name = line.section(u':', 0, 0).trimmed();
    page.forms = line.section(u':', 1).simplified().split(u' ', Qt::SkipEmptyParts);
    return page;
}

Outcome ReadFile(const QString& path, QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Outcome::Failure(path + u": "_s + file.errorString());
    }
    bytes = file.readAll();
    return {};
}

} // namespace

int HelpBook::IndexOf(const QString& name) const
{
    const auto found =
        std::find_if(pages.begin(), pages.end(), [&name](const HelpPage& page) { return page.name == name; });
    return found == pages.end() ? -1 : int(found - pages.begin());
}

QString HelpBook::PageOfForm(const QString& form) const
{
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [&form](const HelpPage& page) { return page.forms.contains(form); });
    return found == pages.end() ? QString() : found->name;
}

Outcome ReadHelpPage(const QByteArray& html, HelpPage& page)
{
    QXmlStreamReader reader(html);
    page.title.clear();
    page.text.clear();
    bool inHead = false;
    bool inTitle = false;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            inHead = inHead || reader.name() == u"head";
            inTitle = reader.name() == u"title";
            if (IsBlock(reader.name())) {
                EndLine(page.text);
            }
            break;
        case QXmlStreamReader::EndElement:
            inHead = inHead && reader.name() != u"head";
            inTitle = false;
            if (IsBlock(reader.name())) {
                EndLine(page.text);
            } else if (IsCell(reader.name())) {
                AddWords(page.text, u" ");
            }
            break;
        case QXmlStreamReader::Characters:
            if (inTitle) {
                AddWords(page.title, reader.text());
            } else if (!inHead) {
                AddWords(page.text, reader.text());
            }
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        return Outcome::Failure(u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString()));
    }
    return page.title.isEmpty() ? Outcome::Failure(u"no title"_s) : Outcome{};
}

Outcome ReadHelpBook(const QString& folder, HelpBook& book)
{
    book.pages.clear();
    QByteArray contents;
    if (Outcome read = ReadFile(folder + u"/contents.txt"_s, contents); !read.ok) {
        return read;
    }
    const QStringList lines = QString::fromUtf8(contents).split(u'\n');
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty() || line.startsWith(u'#')) {
            continue;
        }
        HelpPage page = ReadContentsLine(line);
        if (page.level > (book.pages.empty() ? 0 : book.pages.back().level + 1)) {
            return Outcome::Failure(page.name + u": a level is skipped"_s);
        }
        QByteArray html;
        if (Outcome read = ReadFile(folder + u'/' + page.name + u".html"_s, html); !read.ok) {
            return read;
        }
        if (const Outcome read = ReadHelpPage(html, page); !read.ok) {
            return Outcome::Failure(page.name + u": "_s + read.reason);
        }
        book.pages.push_back(std::move(page));
    }
    return {};
}
