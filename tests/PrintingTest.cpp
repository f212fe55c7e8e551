#include "app/Printing.h"

#include "tests/CannedPrompts.h"
#include "tests/PrintedPages.h"
#include "tests/StatePrinters.h"

using namespace Qt::StringLiterals;

namespace {

class PrintingTest : public testing::Test
{
protected:
    LGLOBAL m_shared;
    CannedPrompts m_prompts{m_shared};

    void Request()
    {
        PrintOnRequest(m_shared, m_prompts, u"A report"_s,
                       [](Printout& printout) { printout.PrintLine(u"text"_s); });
    }
};

} // namespace

TEST_F(PrintingTest, AsksQuestionOneAndPrintsAfterYes)
{
    m_prompts.answers = {true};
    Request();
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    ASSERT_EQ(m_prompts.printed.size(), 1U);
    EXPECT_EQ(m_prompts.printed[0].name, u"A report"_s);
    EXPECT_EQ(PagesText(m_prompts.printed[0]), u"\ntext\n--- page 1 ends ---\n"_s);
}

TEST_F(PrintingTest, PrintsNothingAfterNo)
{
    m_prompts.answers = {false};
    Request();
    EXPECT_TRUE(m_prompts.printed.empty());
}

TEST_F(PrintingTest, TheSamePagesCanBeLookedAtBeforeTheAnswer)
{
    m_prompts.answers = {true};
    Request();
    ASSERT_EQ(m_prompts.offered.size(), 1U);
    EXPECT_TRUE(m_prompts.offered == m_prompts.printed);
}

TEST_F(PrintingTest, TakesFontAndLinesPerPageFromTheSettings)
{
    m_prompts.answers = {true, true};
    m_shared.settings.printerFont = kCourierNewFont;
    Request();
    EXPECT_EQ(m_shared.linesPerPage, 56);
    m_shared.settings.printerFont = kStandardFont;
    Request();
    EXPECT_EQ(m_shared.linesPerPage, 53);
    EXPECT_EQ(m_prompts.printed.at(0).printerFont, kCourierNewFont);
    EXPECT_EQ(m_prompts.printed.at(1).printerFont, kStandardFont);
}

TEST_F(PrintingTest, AChartIsAskedForTwiceAndPrintedInColorOrNot)
{
    const BarChart chart{.title = u"Times"_s, .bars = {{u"1"_s, 4}, {u"2"_s, 0}}};
    for (const bool color : {true, false}) {
        m_prompts.askedTexts.clear();
        m_prompts.printed.clear();
        m_prompts.answers = {true, color};
        PrintChartOnRequest(m_shared, m_prompts, chart);
        EXPECT_EQ(m_prompts.askedTexts, (QStringList{u" Continue with Printout."_s, u" Print in Color."_s}));
        BarChart expected = chart;
        expected.ink = color ? ChartInk::Color : ChartInk::BlackAndWhite;
        ASSERT_EQ(m_prompts.printed.size(), 1U);
        EXPECT_EQ(m_prompts.printed[0], ChartDocument(expected));
        EXPECT_EQ(m_prompts.printed[0].name, u"Times"_s);
        EXPECT_EQ(m_prompts.offered.back(), ChartDocument(chart)) << "the look at the page is in color";
    }
    EXPECT_EQ(m_prompts.offered.size(), 2U) << "only the first question offers a look at the page";
}

TEST_F(PrintingTest, AChartIsNotPrintedAfterNoAndNothingMoreIsAsked)
{
    m_prompts.answers = {false};
    PrintChartOnRequest(m_shared, m_prompts, {});
    EXPECT_EQ(m_prompts.askedTexts, QStringList{u" Continue with Printout."_s});
    EXPECT_TRUE(m_prompts.printed.empty());
}
