#include "database/TopNumbers.h"

#include "app/TextPictures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

TopNumbers DescribeTopNumbers(const NumberTable& sorted, CountMode mode, int picks)
{
    TopNumbers top;
    const int named = std::clamp(picks, 0, kMostNumbers);
    for (int row = 1; row <= named; ++row) {
        top.numbers += Str(sorted.at(static_cast<std::size_t>(row)).label) + u"  "_s;
    }
    const QString counted = mode == CountMode::TimesDrawn
                                ? u"Showing the count of times numbers drawn. Top "_s
                                : u"Number of draws since last drawn/not drawn. Top "_s;
    top.heading = counted + Str(picks) + u" =  "_s + top.numbers;
    return top;
}
