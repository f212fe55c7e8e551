#include "picks/PickTexts.h"

#include "app/TextPictures.h"

#include <cstddef>

using namespace Qt::StringLiterals;

QString PickedFromNumbers()
{
    return u" Picked from numbers "_s;
}

QString PickedFromPositions(int left, int right, CountMode mode)
{
    const QString counted =
        mode == CountMode::TimesDrawn ? u": Times numbers were drawn "_s : u": No. draws since last drawn "_s;
    return u" Picked from sorted positions in database "_s + Str(left) + u" to "_s + Str(right) + counted;
}

QString PickedBySelectAll()
{
    return u" 'Select All' "_s;
}

QString NumbersOfFullRange(int highest)
{
    return u"  1 to"_s + Str(highest) + u"  "_s;
}

QString NumbersOfPositions(const CandidateList& candidates)
{
    constexpr int kNumbersInLine = 20;
    constexpr int kFirstWidth = 5;
    constexpr int kLaterWidth = 6;
    QString text;
    for (int i = 1; i <= candidates.count; ++i) {
        const QString number = Format(candidates.numbers.at(static_cast<std::size_t>(i)), u"#00");
        text += RightJustify(number, i == 1 ? kFirstWidth : kLaterWidth);
        // Also when nothing follows, except after the last number there can be.
        if (i % kNumbersInLine == 0 && i != kMostNumbers) {
            text += u"\r\n"_s;
        }
    }
    return text;
}

QString NumbersOfSelectAll(int highest, int sets)
{
    return u" Has randomly put the lottery numbers 1 to"_s + Str(highest) + u" into"_s + Str(sets) +
           u" entry forms. "_s;
}
