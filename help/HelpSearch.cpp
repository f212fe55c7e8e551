#include "help/HelpSearch.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Found {
    HelpHit hit;
    bool inTitle = false;
    qsizetype times = 0;
};

bool HoldsAll(const QString& text, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// What stands below the heading, which the results show already.
QString TextBelowHeading(const HelpPage& page)
{
    return page.text.startsWith(page.title + u'\n') ? page.text.sliced(page.title.size() + 1) : page.text;
}

/// Where the first of the words stands in the first of the paragraphs that hold most of them.
qsizetype BestPlace(const QString& text, const QStringList& words)
{
    qsizetype best = 0;
    qsizetype most = 0;
    qsizetype begin = 0;
    const QStringList paragraphs = text.split(u'\n');
    for (const QString& paragraph : paragraphs) {
        qsizetype found = 0;
        qsizetype first = paragraph.size();
        for (const QString& word : words) {
            if (const qsizetype place = paragraph.indexOf(word, 0, Qt::CaseInsensitive); place >= 0) {
                ++found;
                first = std::min(first, place);
            }
        }
        if (found > most) {
            most = found;
            best = begin + first;
        }
        begin += paragraph.size() + 1;
    }
    return best;
}

/// A piece of the text around that place, cut between words.
QString SnippetOf(const QString& text, const QStringList& words)
{
    constexpr qsizetype kBefore = 40;
    constexpr qsizetype kLength = 130;
    const qsizetype first = BestPlace(text, words);
    QString line = text.trimmed();
    line.replace(u'\n', u' '); // as long as it was
    qsizetype begin = std::max(qsizetype(0), first - kBefore);
    if (begin > 0) {
        const qsizetype blank = line.indexOf(u' ', begin);
        begin = blank >= 0 && blank < first ? blank + 1 : begin;
    }
    qsizetype end = std::min(line.size(), begin + kLength);
    if (end < line.size()) {
        const qsizetype blank = line.lastIndexOf(u' ', end);
        end = blank > first ? blank : end;
    }
    return (begin > 0 ? u"... "_s : QString()) + line.sliced(begin, end - begin) +
           (end < line.size() ? u" ..."_s : QString());
}

} // namespace

QStringList SearchWords(const QString& typed)
{
    static const QRegularExpression kBetweenWords(u"[\\s\",;]+"_s);
    QStringList words = typed.split(kBetweenWords, Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

std::vector<HelpHit> SearchHelp(const HelpBook& book, const QStringList& words)
{
    std::vector<Found> found;
    for (int i = 0; !words.isEmpty() && i < int(book.pages.size()); ++i) {
        const HelpPage& page = book.pages.at(std::size_t(i));
        if (!HoldsAll(page.title + u'\n' + page.text, words)) {
            continue;
        }
        Found one{.hit = {i, SnippetOf(TextBelowHeading(page), words)},
                  .inTitle = HoldsAll(page.title, words)};
        for (const QString& word : words) {
            one.times += page.text.count(word, Qt::CaseInsensitive);
        }
        found.push_back(one);
    }
    std::stable_sort(found.begin(), found.end(), [](const Found& left, const Found& right) {
        return left.inTitle != right.inTitle ? left.inTitle : left.times > right.times;
    });
    std::vector<HelpHit> hits;
    hits.reserve(found.size());
    for (Found& one : found) {
        hits.push_back(std::move(one.hit));
    }
    return hits;
}
