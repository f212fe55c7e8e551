#pragma once

#include "help/HelpBook.h"

#include <QString>
#include <QStringList>

#include <vector>

/// A page that holds all the words that were looked for.
struct HelpHit {
    int page = 0;    ///< where it stands in the book
    QString snippet; ///< a piece of its text around the first of the words, one line
};

/// The words of a text that was typed to be looked for, each once. Quotes and commas do not count.
[[nodiscard]] QStringList SearchWords(const QString& typed);

/// The pages that hold all of the words, in any letter case and also within longer words. Pages that have
/// them in their title come first, then those where they stand most often, else in the order of the contents.
/// Without words there are none.
[[nodiscard]] std::vector<HelpHit> SearchHelp(const HelpBook& book, const QStringList& words);
