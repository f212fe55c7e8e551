#include "help/HelpBook.h"

#include "tests/TestFiles.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray Html(const QByteArray& title, const QByteArray& body)
{
    return "<html><head><title>" + title + "</title></head><body>" + body + "</body></html>";
}

class HelpBookTest : public testing::Test
{
protected:
    void Write(const QString& name, const QByteArray& bytes) { Place(m_folder.filePath(name), bytes); }

    Outcome Read() { return ReadHelpBook(m_folder.path(), m_book); }

    QTemporaryDir m_folder;
    HelpBook m_book;
};

} // namespace

TEST_F(HelpBookTest, TheContentsGiveThePagesTheirOrderLevelsAndForms)
{
    Write(u"contents.txt"_s, "# a remark\n\nfirst: Menu Window\nforms\n  editor: LDbase\nlast\n");
    for (const QString& name : {u"first"_s, u"forms"_s, u"editor"_s, u"last"_s}) {
        Write(name + u".html"_s, Html("Page " + name.toUtf8(), "<p>text</p>"));
    }
    ASSERT_TRUE(Read().ok);
    ASSERT_EQ(m_book.pages.size(), 4U);
    EXPECT_EQ(m_book.pages[0].name, u"first"_s);
    EXPECT_EQ(m_book.pages[0].title, u"Page first"_s);
    EXPECT_EQ(m_book.pages[0].forms, QStringList({u"Menu"_s, u"Window"_s}));
    EXPECT_EQ(m_book.pages[1].level, 0);
    EXPECT_EQ(m_book.pages[2].level, 1);
    EXPECT_EQ(m_book.pages[3].level, 0);
    EXPECT_EQ(m_book.IndexOf(u"editor"_s), 2);
    EXPECT_EQ(m_book.IndexOf(u"nothing"_s), -1);
    EXPECT_EQ(m_book.PageOfForm(u"LDbase"_s), u"editor"_s);
    EXPECT_EQ(m_book.PageOfForm(u"Window"_s), u"first"_s);
    EXPECT_EQ(m_book.PageOfForm(u"Other"_s), QString());
    EXPECT_EQ(m_book.PageOfForm(QString()), QString())
        << "a page without forms is not that of a nameless one";
}

TEST_F(HelpBookTest, WhatIsWrongWithTheFilesIsSaid)
{
    EXPECT_FALSE(Read().ok) << "no contents";
    Write(u"contents.txt"_s, "first\n    below\n");
    EXPECT_FALSE(Read().ok) << "no page";
    Write(u"first.html"_s, Html("First", "<p>text"));
    EXPECT_TRUE(Read().reason.startsWith(u"first: line 1"_s)) << Read().reason.toStdString();
    Write(u"first.html"_s, Html("", "<p>text</p>"));
    EXPECT_EQ(Read().reason, u"first: no title"_s);
    Write(u"first.html"_s, Html("First", "<p>text</p>"));
    Write(u"below.html"_s, Html("Below", "<p>text</p>"));
    EXPECT_EQ(Read().reason, u"below: a level is skipped"_s);
    EXPECT_EQ(m_book.pages.size(), 1U);
}

TEST(HelpPage, TheTextIsWhatTheReaderSeesOneLineToAParagraph)
{
    HelpPage page;
    ASSERT_TRUE(
        ReadHelpPage(Html("A &amp; B", "<h1>Head\n ing</h1>\n<p>One <b>bold</b>\n word &lt;&#8212;</p>"
                                       "<ul><li>first</li><li>second</li></ul>"
                                       "<table><tr><td>left</td><td>right</td></tr></table>"),
                     page)
            .ok);
    EXPECT_EQ(page.title, u"A & B"_s);
    EXPECT_EQ(page.text, u"Head ing\nOne bold word <\u2014\nfirst\nsecond\nleft right\n"_s);
}
