#include "help/HelpSearch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

HelpPage Page(const QString& title, const QString& text)
{
    HelpPage page;
    page.title = title;
    page.text = text;
    return page;
}

HelpBook Book()
{
    HelpBook book;
    book.pages = {Page(u"Welcome"_s, u"Draws are kept here. Print what you like."_s),
                  Page(u"Printing"_s, u"Everything goes to the printer."_s),
                  Page(u"Draws"_s, u"How to print draws: print them, and print again."_s)};
    return book;
}

std::vector<int> PagesWith(const QString& typed)
{
    std::vector<int> pages;
    for (const HelpHit& hit : SearchHelp(Book(), SearchWords(typed))) {
        pages.push_back(hit.page);
    }
    return pages;
}

} // namespace

TEST(HelpSearch, OnlyPagesWithAllOfTheWordsAreFoundInAnyLetterCase)
{
    EXPECT_EQ(PagesWith(u"PRINTER"_s), std::vector<int>({1}));
    EXPECT_EQ(PagesWith(u"draws print"_s), std::vector<int>({2, 0}));
    EXPECT_EQ(PagesWith(u"draws printer"_s), std::vector<int>());
    EXPECT_EQ(PagesWith(u"nowhere"_s), std::vector<int>());
}

TEST(HelpSearch, AWordInTheTitleGoesFirstThenHowOftenItStands)
{
    EXPECT_EQ(PagesWith(u"print"_s), std::vector<int>({1, 2, 0}));
    EXPECT_EQ(PagesWith(u"draws"_s), std::vector<int>({2, 0}));
}

TEST(HelpSearch, AWordMayStandInTheTitleAndAnotherInTheText)
{
    EXPECT_EQ(PagesWith(u"welcome kept"_s), std::vector<int>({0}));
}

TEST(HelpSearch, NothingTypedFindsNothing)
{
    EXPECT_TRUE(PagesWith(QString()).empty());
    EXPECT_TRUE(PagesWith(u"  , \" "_s).empty());
}

TEST(HelpSearch, WordsAreTakenOnceWithoutQuotesAndCommas)
{
    EXPECT_EQ(SearchWords(u" \"bonus ball\", bonus; odds"_s),
              QStringList({u"bonus"_s, u"ball"_s, u"odds"_s}));
}

TEST(HelpSearch, TheSnippetIsAPieceAroundTheFirstWordCutBetweenWords)
{
    HelpBook book;
    book.pages = {Page(u"Long"_s, u"before\n"_s.repeated(40) + u"here stands the needle\n"_s +
                                      u"behind\n"_s.repeated(40))};
    const std::vector<HelpHit> hits = SearchHelp(book, {u"NEEDLE"_s});
    ASSERT_EQ(hits.size(), 1U);
    const QString snippet = hits[0].snippet;
    EXPECT_TRUE(snippet.startsWith(u"... before "_s)) << snippet.toStdString();
    EXPECT_TRUE(snippet.contains(u"here stands the needle behind"_s)) << snippet.toStdString();
    EXPECT_TRUE(snippet.endsWith(u"behind ..."_s)) << snippet.toStdString();
    EXPECT_LT(snippet.size(), 150);
    EXPECT_EQ(SearchHelp(Book(), {u"everything"_s})[0].snippet, u"Everything goes to the printer."_s);
}

TEST(HelpSearch, TheSnippetComesFromTheParagraphWithMostOfTheWordsAndNotFromTheHeading)
{
    HelpBook book;
    book.pages = {Page(u"Bonus numbers"_s, u"Bonus numbers\nThe numbers of a draw.\nA bonus.\n"
                                           u"Type the bonus number here.\n"_s)};
    EXPECT_EQ(SearchHelp(book, {u"bonus"_s, u"number"_s})[0].snippet,
              u"... numbers of a draw. A bonus. Type the bonus number here."_s);
    book.pages[0].text =
        u"Bonus numbers\n"_s + u"The numbers of a draw.\n"_s.repeated(9) + u"Type the bonus number here.\n"_s;
    EXPECT_TRUE(
        SearchHelp(book, {u"bonus"_s, u"number"_s})[0].snippet.endsWith(u"Type the bonus number here."_s));
}

TEST(HelpSearch, AWordOfTheTitleAloneGivesTheBeginningOfTheText)
{
    EXPECT_EQ(SearchHelp(Book(), {u"welcome"_s})[0].snippet, u"Draws are kept here. Print what you like."_s);
}
