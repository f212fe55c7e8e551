#include "app/KeyFilters.h"

namespace {

bool IsErasing(int key)
{
    return key == kBackspaceKey || key == kDeleteKey;
}

bool IsDigitKey(int key)
{
    return key >= '0' && key <= '9';
}

constexpr int kLastFileCharacter = 0xFF;

} // namespace

int FilterDigitKey(int key)
{
    return IsErasing(key) || IsDigitKey(key) ? key : 0;
}

int FilterDecimalKey(int key, QStringView currentEntryText)
{
    if (IsErasing(key) || key == '.') {
        return key; // a second point is not refused: Val stops reading at it
    }
    if (!IsDigitKey(key)) {
        return 0;
    }
    const qsizetype point = currentEntryText.indexOf(u'.') + 1; // counted from 1, 0 when there is none
    // The length of the whole text is what counts, so a full text takes no digit before the point either.
    return point == 0 || currentEntryText.size() < point + 2 ? key : 0;
}

int FilterDateKey(int key)
{
    return IsErasing(key) || IsDigitKey(key) || key == '.' || key == '-' || key == '/' ? key : 0;
}

int FilterFileTextKey(int key)
{
    return IsErasing(key) || (key >= ' ' && key <= kLastFileCharacter) ? key : 0;
}

int FilterQuotedTextKey(int key)
{
    return key == '"' ? 0 : FilterFileTextKey(key);
}
