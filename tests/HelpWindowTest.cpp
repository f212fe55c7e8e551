#include "help/HelpWindow.h"

#include "app/PagePainter.h"
#include "help/HelpBrowser.h"
#include "tests/CannedPrompts.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTreeView>
#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

class HelpWindowTest : public testing::Test
{
protected:
    HelpWindowTest()
    {
        m_help.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_help));
    }
    ~HelpWindowTest() override
    {
        EXPECT_TRUE(m_prompts.answers.empty()) << "a question was not asked";
        QApplication::setPalette(m_palette);
    }

    template <typename Widget>
    Widget& Find(const QString& name)
    {
        auto* widget = m_help.findChild<Widget*>(name);
        if (widget == nullptr) {
            throw std::runtime_error("no widget " + name.toStdString());
        }
        return *widget;
    }

    HelpBrowser& Browser() { return Find<HelpBrowser>(u"Page"_s); }
    QPushButton& Button(const QString& name) { return Find<QPushButton>(name); }
    void Click(const QString& name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QWidget* focus = m_help.focusWidget();
        QTest::keyClick(focus == nullptr ? &m_help : focus, key, held);
    }
    void Type(const QString& words)
    {
        Press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(m_help.focusWidget(), words);
    }
    QListView& Results() { return Find<QListView>(u"Results"_s); }
    QStringList Found()
    {
        QStringList titles;
        for (int row = 0; row < Results().model()->rowCount(); ++row) {
            titles << Results().model()->index(row, 0).data().toString();
        }
        return titles;
    }
    /// The words that are marked in the page, in the order of their places.
    QStringList Marked()
    {
        QMap<int, QString> marked;
        for (const QTextEdit::ExtraSelection& mark : Browser().extraSelections()) {
            marked.insert(mark.cursor.selectionStart(), mark.cursor.selectedText());
        }
        return marked.values();
    }
    qreal LetterSize() { return Browser().font().pointSizeF(); }

    QPalette m_palette = QApplication::palette();
    LGLOBAL m_shared;
    CannedPrompts m_prompts{m_shared};
    HelpWindow m_help{m_shared, m_prompts};
};

QPalette Dark()
{
    QPalette palette(QColor(0x4A, 0x4D, 0x52), QColor(0x35, 0x37, 0x3B));
    palette.setColor(QPalette::Base, QColor(0x26, 0x28, 0x2B));
    return palette;
}

/// How well a colour can be read on another: 1 for not at all, 4.5 for well, up to 21.
qreal Contrast(const QColor& first, const QColor& second)
{
    const auto light = [](const QColor& color) {
        const auto part = [](qreal value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
    };
    const qreal lighter = std::max(light(first), light(second));
    const qreal darker = std::min(light(first), light(second));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

TEST_F(HelpWindowTest, OpensAtTheFirstPageWithAllPagesInTheContents)
{
    EXPECT_EQ(m_help.PageName(), u"welcome"_s);
    EXPECT_EQ(m_help.windowTitle(), u"How to Use the Program - Welcome"_s);
    const QAbstractItemModel* contents = Find<QTreeView>(u"Contents"_s).model();
    int entries = contents->rowCount();
    for (int row = 0; row < contents->rowCount(); ++row) {
        entries += contents->rowCount(contents->index(row, 0));
    }
    EXPECT_EQ(entries, int(m_help.Book().pages.size()));
    EXPECT_GT(entries, 20);
}

TEST_F(HelpWindowTest, TheContentsLeadToAPageAndShowWhereTheReaderIs)
{
    auto& contents = Find<QTreeView>(u"Contents"_s);
    contents.setFocus();
    EXPECT_EQ(contents.currentIndex().data().toString(), u"Welcome"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(m_help.PageName(), u"first-steps"_s);
    m_help.ShowPage(u"graphs"_s);
    EXPECT_EQ(contents.currentIndex().data().toString(), u"Graphs"_s);
    EXPECT_EQ(contents.currentIndex().parent().data().toString(), u"The forms, one by one"_s);
    EXPECT_EQ(m_help.windowTitle(), u"How to Use the Program - Graphs"_s);
}

TEST_F(HelpWindowTest, ALinkIsFollowedByTheKeyboard)
{
    Browser().setFocus();
    Press(Qt::Key_Tab); // the first link of the first page
    Press(Qt::Key_Return);
    EXPECT_EQ(m_help.PageName(), u"first-steps"_s);
}

TEST_F(HelpWindowTest, BackForwardAndContentsLeadThroughThePagesRead)
{
    EXPECT_FALSE(Button(u"Backward"_s).isEnabled());
    m_help.ShowPage(u"keys"_s);
    m_help.ShowPage(u"chance"_s);
    Click(u"Backward"_s);
    EXPECT_EQ(m_help.PageName(), u"keys"_s);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(m_help.PageName(), u"welcome"_s);
    EXPECT_FALSE(Button(u"Backward"_s).isEnabled());
    Click(u"Forward"_s);
    EXPECT_EQ(m_help.PageName(), u"keys"_s);
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(m_help.PageName(), u"chance"_s);
    EXPECT_FALSE(Button(u"Forward"_s).isEnabled());
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(m_help.PageName(), u"welcome"_s);
    m_help.ShowPage(u"keys"_s);
    Click(u"Home"_s);
    EXPECT_EQ(m_help.PageName(), u"welcome"_s);
}

TEST_F(HelpWindowTest, APageThatDoesNotExistIsNotShown)
{
    m_help.ShowPage(u"nothing"_s);
    EXPECT_EQ(m_help.PageName(), u"welcome"_s);
    EXPECT_FALSE(Button(u"Backward"_s).isEnabled());
}

TEST_F(HelpWindowTest, NothingOutsideTheHelpIsEverOpened)
{
    const QString before = Browser().toPlainText();
    for (const QString& link : {u"http://example.org/"_s, u"file:///etc/passwd"_s, u"/etc/passwd"_s,
                                u"qrc:/samples/Sample.Lto"_s, u"../../etc/passwd"_s, u"mailto:a@b.c"_s,
                                u"nothing.html"_s, u"qrc:/Qbxuse36.hlp/../samples/Sample.Lto"_s}) {
        Browser().setSource(QUrl(link));
        EXPECT_EQ(m_help.PageName(), u"welcome"_s) << link.toStdString();
        EXPECT_EQ(Browser().toPlainText(), before) << link.toStdString();
        EXPECT_FALSE(Browser().loadResource(QTextDocument::ImageResource, QUrl(link)).isValid())
            << link.toStdString();
    }
    EXPECT_FALSE(Browser().openExternalLinks());
}

TEST_F(HelpWindowTest, TheSearchFindsThePagesWithAllWordsAndMarksThemInThePage)
{
    Type(u"Bonus NUMBER"_s);
    EXPECT_TRUE(Results().isVisible());
    EXPECT_FALSE(Find<QTreeView>(u"Contents"_s).isVisible());
    EXPECT_EQ(Found().value(0), u"Bonus numbers and power balls"_s);
    EXPECT_EQ(Find<QLabel>(u"Found"_s).text(), u"%1 pages found:"_s.arg(Found().size()));
    EXPECT_EQ(m_help.PageName(), u"welcome"_s) << "typing turns no page";
    Press(Qt::Key_Return);
    EXPECT_EQ(m_help.PageName(), u"bonus-ball"_s);
    EXPECT_GT(Marked().size(), 5);
    for (const QString& marked : Marked()) {
        EXPECT_TRUE(marked.toLower() == u"bonus" || marked.toLower() == u"number") << marked.toStdString();
    }
    EXPECT_EQ(Browser().textCursor().position(),
              Browser().extraSelections().constFirst().cursor.selectionStart());
    EXPECT_FALSE(m_help.Book().pages.empty());
}

TEST_F(HelpWindowTest, AResultIsOpenedByAClickAndByTheArrowKeys)
{
    Type(u"sub total"_s);
    ASSERT_GT(Found().size(), 1);
    Results().setFocus();
    Results().setCurrentIndex(Results().model()->index(0, 0));
    const QString first = m_help.PageName();
    Press(Qt::Key_Down);
    EXPECT_NE(m_help.PageName(), first);
    EXPECT_FALSE(Marked().isEmpty());
    QTest::mouseClick(Results().viewport(), Qt::LeftButton, {},
                      Results().visualRect(Results().model()->index(0, 0)).center());
    EXPECT_EQ(m_help.PageName(), first);
}

TEST_F(HelpWindowTest, AnEmptiedSearchBringsTheContentsBackAndMarksNothing)
{
    Type(u"draw"_s);
    Press(Qt::Key_Return);
    EXPECT_FALSE(Marked().isEmpty());
    Find<QLineEdit>(u"Search"_s).clear();
    EXPECT_TRUE(Marked().isEmpty());
    EXPECT_TRUE(Find<QTreeView>(u"Contents"_s).isVisible());
}

TEST_F(HelpWindowTest, WordsThatStandNowhereAreSaidToBe)
{
    Type(u"xylophone"_s);
    EXPECT_TRUE(Found().isEmpty());
    EXPECT_EQ(Find<QLabel>(u"Found"_s).text(), u"No page has all of these words."_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(m_help.PageName(), u"welcome"_s);
}

TEST_F(HelpWindowTest, TheTextSizeChangesByButtonsAndKeysWithinBoundsAndStays)
{
    const qreal usual = LetterSize();
    EXPECT_FALSE(Button(u"Normal"_s).isEnabled());
    Click(u"Larger"_s);
    EXPECT_GT(LetterSize(), usual * 1.1);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    const qreal larger = LetterSize();
    EXPECT_GT(larger, usual * 1.25);
    m_help.ShowPage(u"chance"_s);
    m_help.close();
    m_help.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_help));
    EXPECT_EQ(LetterSize(), larger);
    const QTextBlock heading = Browser().document()->begin();
    EXPECT_GT(QFontInfo(heading.begin().fragment().charFormat().font()).pointSizeF(), 0);
    for (int i = 0; i < 12; ++i) {
        Press(Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_FALSE(Button(u"Larger"_s).isEnabled());
    EXPECT_LT(LetterSize(), usual * 3);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(LetterSize(), usual);
    for (int i = 0; i < 12; ++i) {
        Press(Qt::Key_Minus, Qt::ControlModifier);
    }
    EXPECT_FALSE(Button(u"Smaller"_s).isEnabled());
    EXPECT_GT(LetterSize(), usual / 2);
    Click(u"Normal"_s);
    EXPECT_EQ(LetterSize(), usual);
}

TEST_F(HelpWindowTest, APageIsPrintedAfterTheQuestionAndCanBeLookedAtBefore)
{
    m_help.ShowPage(u"chance"_s);
    m_prompts.answers = {true};
    Click(u"PrintPage"_s);
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.askedTexts.value(0), u" Continue with Printout."_s);
    ASSERT_EQ(m_prompts.offered.size(), 1U);
    EXPECT_TRUE(m_prompts.offered[0] == m_prompts.printed[0]);
    const PrintedDocument& document = m_prompts.printed[0];
    EXPECT_EQ(document.name, u"An honest page on chance"_s);
    EXPECT_TRUE(document.pages.empty());
    EXPECT_TRUE(document.charts.empty());
    EXPECT_GT(PageCount(document), 1);
    EXPECT_TRUE(document.html.contains(u"139,838,160"_s));
}

TEST_F(HelpWindowTest, TheAnswerNoPrintsNothing)
{
    m_prompts.answers = {false};
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(m_prompts.askedTexts.size(), 1);
    EXPECT_TRUE(m_prompts.printed.empty());
}

TEST_F(HelpWindowTest, EscapeClosesWhereverTheFocusIs)
{
    for (const QString& name : {u"Search"_s, u"Contents"_s, u"Page"_s, u"Home"_s}) {
        m_help.show();
        Find<QWidget>(name).setFocus();
        Press(Qt::Key_Escape);
        EXPECT_FALSE(m_help.isVisible()) << name.toStdString();
    }
    m_help.show();
    Click(u"CloseHelp"_s);
    EXPECT_FALSE(m_help.isVisible());
}

TEST_F(HelpWindowTest, LinksHeadingsAndMarksAreLegibleUnderLightAndDarkPalettes)
{
    for (const bool dark : {false, true}) {
        SCOPED_TRACE(dark ? "dark" : "light");
        const QPalette palette = dark ? Dark() : QPalette(QColor(0xEF, 0xEF, 0xEF));
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        EXPECT_EQ(m_help.PageName(), u"welcome"_s);
        int links = 0;
        const QTextDocument* page = Browser().document();
        for (QTextBlock block = page->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                links += format.isAnchor() ? 1 : 0;
                const QColor text = format.hasProperty(QTextFormat::ForegroundBrush)
                                        ? format.foreground().color()
                                        : palette.color(QPalette::Text);
                EXPECT_GE(Contrast(text, palette.color(QPalette::Base)), 4.5)
                    << part.fragment().text().toStdString();
            }
        }
        EXPECT_GT(links, 8);
    }
}

TEST_F(HelpWindowTest, TheMarkedWordsStayMarkedUnderAnotherPalette)
{
    Type(u"chance"_s);
    Press(Qt::Key_Return);
    const qsizetype marked = Marked().size();
    EXPECT_GT(marked, 3);
    QApplication::setPalette(Dark());
    QCoreApplication::processEvents();
    EXPECT_EQ(Marked().size(), marked);
}

TEST_F(HelpWindowTest, OpensOnTheScreenWithRoomForALine)
{
    const QRect screen = m_help.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(m_help.geometry()));
    EXPECT_GE(m_help.width(), std::min(700, screen.width() * 9 / 10 - 1));
    EXPECT_FALSE(Browser().horizontalScrollBar()->isVisible());
}

TEST_F(HelpWindowTest, NoPageIsWiderThanTheWindow)
{
    for (const HelpPage& page : m_help.Book().pages) {
        m_help.ShowPage(page.name);
        EXPECT_EQ(m_help.PageName(), page.name);
        EXPECT_FALSE(Browser().horizontalScrollBar()->isVisible()) << page.name.toStdString();
        EXPECT_EQ(Browser().documentTitle(), page.title);
    }
}

TEST_F(HelpWindowTest, EveryControlHasAName)
{
    for (const QString& name : {u"Search"_s, u"Contents"_s, u"Results"_s, u"Page"_s}) {
        EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name.toStdString();
    }
    for (const QPushButton* button : m_help.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->text().isEmpty());
        EXPECT_FALSE(button->autoDefault())
            << "Enter in the search must not press " << button->text().toStdString();
    }
}

// On paper

namespace {

PrintedDocument DocumentOf(HelpWindow& help, CannedPrompts& prompts, const QString& page)
{
    help.ShowPage(page);
    prompts.answers = {true};
    help.findChild<QPushButton*>(u"PrintPage"_s)->click();
    return prompts.printed.back();
}

/// The smallest rectangle of the page that holds all that is not white, in inches.
QRectF Ink(const PrintedDocument& document, int page, const QPageSize& paper)
{
    constexpr int kDots = 72;
    const QSizeF size = SizeOfPage(document, page, paper) * kDots / kPageUnitsPerInch;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(qreal(kDots) / kPageUnitsPerInch, qreal(kDots) / kPageUnitsPerInch);
    PaintPage(painter, document, page, paper);
    painter.end();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(ink.topLeft()) / kDots, QSizeF(ink.size()) / kDots};
}

} // namespace

TEST_F(HelpWindowTest, OnPaperThePagesAreFullAndKeepTheirMargins)
{
    const PrintedDocument document = DocumentOf(m_help, m_prompts, u"chance"_s);
    for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::Letter, QPageSize::A5}) {
        const QPageSize paper(id);
        const QSizeF size = paper.size(QPageSize::Inch);
        for (int page = 0; page < PageCount(document); ++page) {
            SCOPED_TRACE(page);
            const QRectF ink = Ink(document, page, paper);
            EXPECT_GT(ink.left(), 0.25);
            EXPECT_GT(ink.top(), 0.25);
            EXPECT_LT(ink.right(), size.width() - 0.25);
            EXPECT_LT(ink.bottom(), size.height() - 0.25);
            EXPECT_GT(ink.width(), size.width() * 0.6);
            EXPECT_GT(ink.height(), size.height() * 0.5) << "the number of the page stands at its end";
        }
    }
}

TEST_F(HelpWindowTest, APageIsPrintedBlackOnWhiteUnderADarkPaletteToo)
{
    const PrintedDocument light = DocumentOf(m_help, m_prompts, u"keys"_s);
    const QRectF ink = Ink(light, 0, QPageSize(QPageSize::A4));
    QApplication::setPalette(Dark());
    const PrintedDocument dark = DocumentOf(m_help, m_prompts, u"keys"_s);
    EXPECT_TRUE(light == dark);
    EXPECT_EQ(Ink(dark, 0, QPageSize(QPageSize::A4)), ink);
}

TEST_F(HelpWindowTest, APageOfTheHelpBecomesAPdfFileOfAsManyPages)
{
    const PrintedDocument document = DocumentOf(m_help, m_prompts, u"chance"_s);
    QByteArray pdf;
    int done = 0;
    ASSERT_TRUE(MakePdf(document, QPageSize(QPageSize::A4), pdf, [&done](int pages) { done = pages; }).ok);
    EXPECT_TRUE(pdf.contains("/Count " + QByteArray::number(PageCount(document))));
    EXPECT_EQ(done, PageCount(document));
}
