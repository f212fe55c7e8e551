#include "app/DatabaseReport.h"
#include "app/DialogPrompts.h"
#include "app/LongWork.h"
#include "app/MDIContainer.h"
#include "app/PrinterDoor.h"
#include "app/Printing.h"
#include "app/QtPrinters.h"
#include "tests/MadeChart.h"
#include "tests/ModalWindows.h"
#include "tests/PrintScheduler.h"
#include "tests/PrintedPages.h"
#include "tests/QtPrinters.h"

#include <QDialog>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QLocalServer>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr double kLeftMargin = 0.4 * 72; // points
constexpr double kLineHeight = 12;

struct PaperCase {
    QString paper;
    QSizeF size; ///< in points
};

const PaperCase kA4{u"A4"_s, {595.3, 841.9}};
const PaperCase kLetter{u"Letter"_s, {612, 792}};

PrintedDocument DatabasePrintout(qint16 font, int records, int picks = 6)
{
    LGLOBAL shared;
    shared.settings.printerFont = font;
    shared.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    shared.database.columns = qint16(picks + 2);
    shared.database.highest = 49;
    shared.database.title = u"Lotería"_s;
    for (int record = 1; record <= records; ++record) {
        std::vector<int> numbers;
        for (int k = 0; k < picks; ++k) {
            numbers.push_back((record * 7 + k * 3) % 49 + 1);
        }
        EXPECT_TRUE(shared.database.Append(QDate(2020, 1, 1).addDays(record), numbers));
    }
    return MakeDocument(shared, u"Winning numbers in Lotería"_s, [&](Printout& printout) {
        PrintDatabaseReport(printout, shared.database, CountMode::TimesDrawn, shared.locale);
    });
}

/// A word of the document with the column it begins at and its line, both from 0.
struct DocumentWord {
    qsizetype column;
    qsizetype line;
    QString text;
};

std::vector<DocumentWord> WordsOf(const PrintedDocument& document, int page)
{
    std::vector<DocumentWord> words;
    const QStringList lines = PageLines(document, page);
    const QRegularExpression word(u"\\S+"_s);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        for (auto found = word.globalMatch(lines.at(line)); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            words.push_back({match.capturedStart(), line, match.captured()});
        }
    }
    return words;
}

/// Every word of the document stands on paper at its column and on its line.
void ExpectOnPaper(const PrintedDocument& document, const std::vector<PaperPage>& paper, const QSizeF& size)
{
    const double column = document.printerFont == kCourierNewFont ? 6.6 : 7.2;
    ASSERT_EQ(paper.size(), document.pages.size());
    for (size_t page = 0; page < paper.size(); ++page) {
        SCOPED_TRACE(page + 1);
        EXPECT_NEAR(paper[page].size.width(), size.width(), 0.5);
        EXPECT_NEAR(paper[page].size.height(), size.height(), 0.5);
        const std::vector<DocumentWord> words = WordsOf(document, int(page) + 1);
        ASSERT_EQ(paper[page].words.size(), words.size());
        ASSERT_FALSE(words.empty());
        const double top = paper[page].words[0].y - double(words[0].line) * kLineHeight;
        for (size_t i = 0; i < words.size(); ++i) {
            const PaperWord& printed = paper[page].words[i];
            EXPECT_EQ(printed.text, words[i].text);
            EXPECT_NEAR(printed.x, kLeftMargin + double(words[i].column) * column, 0.3)
                << words[i].text.toStdString();
            EXPECT_NEAR(printed.y - top, double(words[i].line) * kLineHeight, 0.3)
                << words[i].text.toStdString();
        }
    }
}

/// The system's door as the program uses it: each call on a thread of its own, which asks the scheduler anew.
class DoorOnThread
{
public:
    [[nodiscard]] DefaultPrinter Default()
    {
        DefaultPrinter printer;
        RunLongWork(nullptr, {}, 0, [&](const StepsDone&) {
            printer = m_door->Default();
            return Outcome{};
        });
        return printer;
    }

    [[nodiscard]] Outcome Print(const PrintedDocument& document, const DefaultPrinter& printer)
    {
        return RunLongWork(nullptr, {}, 0,
                           [&](const StepsDone& done) { return m_door->Print(document, printer, done); });
    }

private:
    std::unique_ptr<PrinterDoor> m_door = SystemPrinters();
};

class PrintOnPaper : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!m_scheduler.WhyNot().isEmpty()) {
            GTEST_SKIP() << m_scheduler.WhyNot().toStdString();
        }
    }

    [[nodiscard]] Outcome Print(const PrintedDocument& document)
    {
        const DefaultPrinter printer = m_door.Default();
        EXPECT_TRUE(printer.Exists()) << printer.reason.toStdString();
        return m_door.Print(document, printer);
    }

    PrintScheduler m_scheduler;
    DoorOnThread m_door;
};

} // namespace

TEST_F(PrintOnPaper, EveryWordStandsAtItsColumnInBothFontsAndOnBothPapers)
{
    for (const PaperCase& paper : {kA4, kLetter}) {
        m_scheduler.AddQueue(paper.paper, paper.paper);
        m_scheduler.MakeDefault(paper.paper);
        for (const qint16 font : {kStandardFont, kCourierNewFont}) {
            SCOPED_TRACE(paper.paper.toStdString() +
                         (font == kStandardFont ? ", standard" : ", Courier New"));
            const PrintedDocument document = DatabasePrintout(font, 120);
            ASSERT_EQ(document.pages.size(), 3U);
            const Outcome printed = Print(document);
            EXPECT_TRUE(printed.ok) << printed.reason.toStdString();
            ExpectOnPaper(document, m_scheduler.PrintedPages(paper.paper), paper.size);
        }
    }
}

TEST_F(PrintOnPaper, TheTextReadBackIsThatOfTheLines)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    const PrintedDocument document = DatabasePrintout(kStandardFont, 60, 10);
    ASSERT_TRUE(Print(document).ok);
    const QString text = m_scheduler.Run(u"pdftotext"_s, {u"-layout"_s, m_scheduler.Printed(u"q"_s), u"-"_s});
    const QStringList pages = text.split(u'\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), qsizetype(document.pages.size()));
    for (int page = 1; page <= int(pages.size()); ++page) {
        QStringList expected;
        QStringList found;
        for (const QString& line : PageLines(document, page)) {
            expected << line.simplified();
        }
        for (const QString& line : pages.at(page - 1).split(u'\n')) {
            found << line.simplified();
        }
        expected.removeAll(QString());
        found.removeAll(QString());
        EXPECT_EQ(found, expected);
    }
}

TEST_F(PrintOnPaper, TheFontsTravelWithThePages)
{
    m_scheduler.AddQueue(u"q"_s, u"Letter"_s);
    m_scheduler.MakeDefault(u"q"_s);
    for (const qint16 font : {kStandardFont, kCourierNewFont}) {
        ASSERT_TRUE(Print(DatabasePrintout(font, 1)).ok);
        const QString fonts = m_scheduler.Run(u"pdffonts"_s, {m_scheduler.Printed(u"q"_s)});
        const QStringList rows = fonts.split(u'\n', Qt::SkipEmptyParts).mid(2);
        ASSERT_EQ(rows.size(), 1) << fonts.toStdString();
        EXPECT_TRUE(rows.first().contains(u"TrueType"_s)) << fonts.toStdString();
        EXPECT_TRUE(rows.first().contains(QRegularExpression(u" yes +(yes|no) +yes "_s)))
            << fonts.toStdString();
        if (font == kCourierNewFont) { // or the face of the same widths that the scripts install
            EXPECT_TRUE(rows.first().contains(QRegularExpression(u"LiberationMono|Courier"_s)))
                << fonts.toStdString();
        }
    }
}

TEST_F(PrintOnPaper, ThePaperIsThatOfTheDefaultPrinter)
{
    m_scheduler.AddQueue(u"letter"_s, u"Letter"_s);
    m_scheduler.AddQueue(u"a4"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"letter"_s);
    EXPECT_EQ(m_door.Default().name, u"letter"_s);
    EXPECT_EQ(m_door.Default().paper.id(), QPageSize::Letter);
    m_scheduler.MakeDefault(u"a4"_s);
    EXPECT_EQ(m_door.Default().name, u"a4"_s);
    EXPECT_EQ(m_door.Default().paper.id(), QPageSize::A4);
}

TEST_F(PrintOnPaper, ThePaperThatTheUserChoseForTheQueueComesFirst)
{
    m_scheduler.AddQueue(u"q"_s, u"Letter"_s);
    m_scheduler.MakeDefault(u"q"_s);
    m_scheduler.Run(u"lpoptions"_s, {u"-p"_s, u"q"_s, u"-o"_s, u"media=iso_a4_210x297mm"_s});
    EXPECT_EQ(m_door.Default().paper.id(), QPageSize::A4);
}

TEST_F(PrintOnPaper, WithoutADefaultPrinterTheReasonIsTheSystems)
{
    const DefaultPrinter printer = m_door.Default();
    EXPECT_FALSE(printer.Exists());
    EXPECT_EQ(printer.reason, u"No default destination."_s);
    EXPECT_TRUE(printer.paper.isValid());
}

TEST_F(PrintOnPaper, ADefaultPrinterThatIsGoneIsNamedAsTheReason)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.Run(u"lpoptions"_s, {u"-d"_s, u"q"_s});
    m_scheduler.Run(u"lpadmin"_s, {u"-x"_s, u"q"_s});
    const DefaultPrinter printer = m_door.Default();
    EXPECT_FALSE(printer.Exists());
    EXPECT_TRUE(printer.reason.contains(u"does not exist"_s)) << printer.reason.toStdString();
}

TEST_F(PrintOnPaper, AStoppedQueueRefusesWithItsOwnWordsAndGetsNoJob)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    m_scheduler.Run(u"cupsdisable"_s, {u"-r"_s, u"Out of paper since Monday"_s, u"q"_s});
    const Outcome printed = Print(DatabasePrintout(kStandardFont, 3));
    EXPECT_FALSE(printed.ok);
    EXPECT_TRUE(printed.reason.contains(u"stopped"_s)) << printed.reason.toStdString();
    EXPECT_TRUE(printed.reason.contains(u"Out of paper since Monday"_s)) << printed.reason.toStdString();
    EXPECT_EQ(m_scheduler.Jobs(), QString());
}

TEST_F(PrintOnPaper, AQueueThatRejectsJobsIsSaidSo)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    m_scheduler.Run(u"cupsreject"_s, {u"q"_s});
    const Outcome printed = Print(DatabasePrintout(kStandardFont, 3));
    EXPECT_FALSE(printed.ok);
    EXPECT_TRUE(printed.reason.contains(u"not accepting jobs"_s)) << printed.reason.toStdString();
    EXPECT_EQ(m_scheduler.Jobs(), QString());
}

TEST_F(PrintOnPaper, AQueueThatVanishesMeanwhileIsSaidSo)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    const DefaultPrinter printer = m_door.Default();
    m_scheduler.Run(u"lpadmin"_s, {u"-x"_s, u"q"_s});
    const Outcome printed = m_door.Print(DatabasePrintout(kStandardFont, 3), printer);
    EXPECT_FALSE(printed.ok);
    EXPECT_TRUE(printed.reason.contains(u"does not exist"_s)) << printed.reason.toStdString();
}

TEST_F(PrintOnPaper, ASchedulerThatIsGoneIsAReason)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    const DefaultPrinter printer = m_door.Default();
    m_scheduler.Stop();
    const Outcome printed = m_door.Print(DatabasePrintout(kStandardFont, 3), printer);
    EXPECT_FALSE(printed.ok);
    EXPECT_EQ(printed.reason, u"The print service of this computer does not answer."_s);
    EXPECT_FALSE(m_door.Default().Exists());
    EXPECT_EQ(m_door.Default().reason, u"The print service of this computer does not answer."_s);
}

namespace {

/// The program's main window with real dialogs, on the printers of the test's scheduler.
class PrintFromTheMenu : public PrintOnPaper
{
protected:
    void SetUp() override
    {
        PrintOnPaper::SetUp();
        m_shared.locale = QLocale(QLocale::English, QLocale::UnitedStates);
        m_prompts.SetMainWindow(&m_window);
        m_window.Start();
        m_window.show();
        m_shared.database.columns = 8;
        m_shared.database.highest = 49;
        m_shared.database.title = u"Ours"_s;
        for (int record = 1; record <= 55; ++record) {
            ASSERT_TRUE(m_shared.database.Append(QDate(2020, 1, 1).addDays(record),
                                                 {record % 49 + 1, 2, 3, 4, 5, 6}));
        }
        m_before = m_shared.database;
    }

    /// Presses the menu's button and answers Yes; @p then runs on the next dialog, if there is to be one.
    void PressPrint(const std::function<void(QWidget*)>& then = {})
    {
        WhenModalOpens([then](QWidget* question) {
            if (then) {
                WhenNextModalOpens(then);
            }
            QTest::mouseClick(question->findChild<QPushButton*>(u"AllYes"_s), Qt::LeftButton);
        });
        QTest::mouseClick(m_window.findChild<QPushButton*>(u"PrintDbase"_s), Qt::LeftButton);
        EXPECT_EQ(m_shared.database.records, m_before.records);
        EXPECT_EQ(m_shared.database.count, m_before.count);
        EXPECT_EQ(m_window.ActiveForm()->objectName(), u"LotoMenu"_s) << "the program goes on";
    }

    [[nodiscard]] PrintedDocument Expected()
    {
        return MakeDocument(m_shared, {}, [&](Printout& printout) {
            PrintDatabaseReport(printout, m_before, CountMode::TimesDrawn, m_shared.locale);
        });
    }

    const QTemporaryDir m_folder;
    LGLOBAL m_shared;
    DrawDatabase m_before;
    DialogPrompts m_prompts{m_shared};
    MDIContainer m_window{m_shared, m_prompts, m_folder.path()};
};

QString NoticeOf(QWidget* box)
{
    const auto* text = box->findChild<QPlainTextEdit*>(u"TextMsg"_s);
    return text == nullptr ? QString() : text->toPlainText();
}

} // namespace

TEST_F(PrintFromTheMenu, TheButtonPrintsTheDatabaseOnTheDefaultPrinter)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    PressPrint();
    ExpectOnPaper(Expected(), m_scheduler.PrintedPages(u"q"_s), kA4.size);
}

TEST_F(PrintFromTheMenu, AStoppedPrinterIsToldAndPrintsWhenItRunsAgain)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    m_scheduler.Run(u"cupsdisable"_s, {u"-r"_s, u"Out of paper since Monday"_s, u"q"_s});
    QString notice;
    PressPrint([&](QWidget* box) {
        notice = NoticeOf(box);
        box->close();
    });
    EXPECT_TRUE(notice.contains(u"Nothing was printed on q."_s)) << notice.toStdString();
    EXPECT_TRUE(notice.contains(u"Out of paper since Monday"_s)) << notice.toStdString();
    m_scheduler.Run(u"cupsenable"_s, {u"q"_s});
    PressPrint();
    EXPECT_EQ(m_scheduler.PrintedPages(u"q"_s).size(), 2U);
}

TEST_F(PrintFromTheMenu, WithoutAPrinterThePagesGoToAPdfFile)
{
    const QString file = m_folder.filePath(u"draws.pdf"_s);
    m_shared.pdfFolder = m_folder.path();
    QStringList notices;
    PressPrint([&](QWidget* box) {
        notices << NoticeOf(box);
        WhenNextModalOpens([&](QWidget* dialog) {
            WhenNextModalOpens([&](QWidget* saved) {
                notices << NoticeOf(saved);
                saved->close();
            });
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(u"draws.pdf"_s);
            qobject_cast<QDialog*>(dialog)->accept();
        });
        box->close();
    });
    ASSERT_EQ(notices.size(), 2);
    EXPECT_TRUE(notices[0].contains(u"There is no printer to print on."_s));
    EXPECT_TRUE(notices[0].contains(u"No default destination."_s));
    EXPECT_TRUE(notices[1].contains(u"draws.pdf"_s));
    const QString text = m_scheduler.Run(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
    EXPECT_TRUE(text.contains(u"Winning numbers in Ours Draw"_s));
}

TEST_F(PrintOnPaper, AServiceThatNeverAnswersIsGivenUpAndSaidSo)
{
    const QTemporaryDir folder;
    QLocalServer silent;
    ASSERT_TRUE(silent.listen(folder.filePath(u"silent.sock"_s)));
    qputenv("CUPS_SERVER", silent.fullServerName().toLocal8Bit());
    const DefaultPrinter printer = m_door.Default();
    EXPECT_FALSE(printer.Exists());
    EXPECT_EQ(printer.reason, u"The print service of this computer does not answer."_s);
}

TEST_F(PrintOnPaper, EveryGoldenFileIsPrintedAsItStands)
{
    m_scheduler.AddQueue(u"q"_s, u"Letter"_s);
    m_scheduler.MakeDefault(u"q"_s);
    const QDir golden(QStringLiteral(QUILLABY_GOLDEN));
    const QStringList names = golden.entryList({u"*.txt"_s}, QDir::Files);
    EXPECT_GE(names.size(), 8);
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        QFile file(golden.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        Printout printout(name, name.contains(u"courier"_s) ? kCourierNewFont : kStandardFont);
        for (const QString& line : QString::fromUtf8(file.readAll()).chopped(1).split(u'\n')) {
            if (line.startsWith(u"--- page "_s)) {
                printout.EndPage();
            } else {
                printout.PrintLine(line);
            }
        }
        ASSERT_TRUE(Print(printout.Document()).ok);
        ExpectOnPaper(printout.Document(), m_scheduler.PrintedPages(u"q"_s), kLetter.size);
    }
}

TEST_F(PrintOnPaper, AllOf2001RecordsArePrinted)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    const PrintedDocument document = DatabasePrintout(kStandardFont, 2001, 10);
    ASSERT_TRUE(Print(document).ok);
    ExpectOnPaper(document, m_scheduler.PrintedPages(u"q"_s), kA4.size);
}

TEST_F(PrintOnPaper, AMonstrousTitleIsPrintedToo)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    LGLOBAL shared;
    const PrintedDocument document = MakeDocument(shared, QString(70'000, u't'),
                                                  [](Printout& printout) { printout.PrintLine(u"still"_s); });
    const Outcome printed = Print(document);
    EXPECT_TRUE(printed.ok) << printed.reason.toStdString();
    EXPECT_EQ(m_scheduler.PrintedPages(u"q"_s).size(), 1U);
}

TEST_F(PrintOnPaper, TheSetOfOptionsThatIsTheDefaultIsPrintedWith)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.Run(u"lpoptions"_s, {u"-p"_s, u"q/mine"_s, u"-o"_s, u"media=na_letter_8.5x11in"_s});
    m_scheduler.Run(u"lpoptions"_s, {u"-d"_s, u"q/mine"_s});
    const DefaultPrinter printer = m_door.Default();
    EXPECT_EQ(printer.name, u"q"_s);
    EXPECT_EQ(printer.instance, u"mine"_s);
    const PrintedDocument document = DatabasePrintout(kStandardFont, 1);
    ASSERT_TRUE(m_door.Print(document, printer).ok);
    ExpectOnPaper(document, m_scheduler.PrintedPages(u"q"_s), kLetter.size);
}

TEST_F(PrintOnPaper, TheToolkitsWayPutsTheSameWordsOnPaper)
{
    m_scheduler.AddQueue(u"q"_s, u"Letter"_s);
    m_scheduler.MakeDefault(u"q"_s);
    QtPrinters door;
    const DefaultPrinter printer = door.Default();
    if (!printer.Exists()) {
        GTEST_SKIP() << "the toolkit has no way to CUPS on this machine: " << printer.reason.toStdString();
    }
    EXPECT_EQ(printer.name, u"q"_s);
    const PrintedDocument document = DatabasePrintout(kCourierNewFont, 80);
    int pages = 0;
    const Outcome printed = door.Print(document, printer, [&](int done) { pages = done; });
    EXPECT_TRUE(printed.ok) << printed.reason.toStdString();
    EXPECT_EQ(pages, 2);
    ExpectOnPaper(document, m_scheduler.PrintedPages(u"q"_s), kLetter.size);
}

namespace {

/// Numbers of the printed words, each as often as it stands there.
std::multiset<QString> NumbersIn(const QString& text)
{
    std::multiset<QString> numbers;
    const QRegularExpression number(u"[0-9]+"_s);
    for (auto found = number.globalMatch(text); found.hasNext();) {
        numbers.insert(found.next().captured());
    }
    return numbers;
}

/// What a page looks like, 100 dots to the inch.
QImage PictureOf(PrintScheduler& scheduler, const QString& pdf)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"page"_s);
    scheduler.Run(u"pdftoppm"_s, {u"-r"_s, u"100"_s, u"-singlefile"_s, u"-png"_s, pdf, name});
    return QImage(name + u".png"_s);
}

int ColoredDots(const QImage& image)
{
    int colored = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor dot = image.pixelColor(x, y);
            colored += dot.red() != dot.green() || dot.red() != dot.blue() ? 1 : 0;
        }
    }
    return colored;
}

/// The chart lies along the sheet and has all of it but half an inch at each edge: its axis, from the first
/// number to the last, is nearly as long as the sheet.
void ExpectTurned(const PaperPage& page)
{
    const auto find = [&page](const QString& text) {
        const auto found = std::ranges::find(page.words, text, &PaperWord::text);
        EXPECT_NE(found, page.words.end()) << text.toStdString();
        return *found;
    };
    const PaperWord first = find(u"No."_s);
    const PaperWord last = find(u"Lottery"_s);
    EXPECT_NEAR(first.x, last.x, 1) << "the words of the title follow each other along the sheet";
    EXPECT_GT(std::abs(first.y - last.y), 100);
    const auto [left, right] = std::ranges::minmax(page.words, {}, &PaperWord::x);
    const auto [top, bottom] = std::ranges::minmax(page.words, {}, &PaperWord::y);
    EXPECT_GT(right.x - left.x, page.size.width() - 72 - 30);
    EXPECT_GT(bottom.y - top.y, page.size.height() - 72 - 60);
    for (const PaperWord& word : page.words) {
        EXPECT_GT(std::min({word.x, word.y, page.size.width() - word.x, page.size.height() - word.y}), 30)
            << word.text.toStdString() << " is too near the edge";
    }
}

void ExpectChartOnPaper(PrintScheduler& scheduler, const QString& pdf, const BarChart& chart)
{
    const QString text = scheduler.Run(u"pdftotext"_s, {u"-raw"_s, pdf, u"-"_s});
    EXPECT_TRUE(text.simplified().contains(chart.title)) << text.toStdString();
    std::multiset<QString> printed = NumbersIn(text);
    for (const ChartBar& bar : chart.bars) {
        for (const QString& number : {bar.label, QString::number(bar.value)}) {
            const auto found = printed.find(number);
            ASSERT_NE(found, printed.end()) << number.toStdString() << " is missing in\n"
                                            << text.toStdString();
            printed.erase(found);
        }
    }
    const QString pictures = scheduler.Run(u"pdfimages"_s, {u"-list"_s, pdf});
    EXPECT_EQ(pictures.split(u'\n', Qt::SkipEmptyParts).size(), 2) << pictures.toStdString();
    const QImage page = PictureOf(scheduler, pdf);
    EXPECT_EQ(ColoredDots(page) > 10'000, chart.ink == ChartInk::Color);
    if (chart.ink == ChartInk::BlackAndWhite) {
        EXPECT_EQ(ColoredDots(page), 0);
    }
}

} // namespace

TEST_F(PrintOnPaper, AChartComesOutAsLinesAndTextOnAWholePageInLandscape)
{
    for (const PaperCase& paper : {kA4, kLetter}) {
        m_scheduler.AddQueue(paper.paper, paper.paper);
        m_scheduler.MakeDefault(paper.paper);
        for (const BarStyle style : {BarStyle::Flat, BarStyle::ThreeDimensional}) {
            for (const ChartInk ink : {ChartInk::Color, ChartInk::BlackAndWhite}) {
                SCOPED_TRACE(paper.paper.toStdString() + (style == BarStyle::Flat ? ", flat" : ", blocks") +
                             (ink == ChartInk::Color ? ", color" : ", black and white"));
                BarChart chart = MadeChart(60, 2001, style);
                chart.ink = ink;
                const Outcome printed = Print(ChartDocument(chart));
                EXPECT_TRUE(printed.ok) << printed.reason.toStdString();
                const std::vector<PaperPage> pages = m_scheduler.PrintedPages(paper.paper);
                ASSERT_EQ(pages.size(), 1U);
                EXPECT_NEAR(pages[0].size.width(), paper.size.width(), 0.5) << "the sheet is as it is fed";
                EXPECT_NEAR(pages[0].size.height(), paper.size.height(), 0.5);
                ExpectTurned(pages[0]);
                ExpectChartOnPaper(m_scheduler, m_scheduler.Printed(paper.paper), chart);
            }
        }
    }
}

TEST_F(PrintOnPaper, ATitleOfAnyLengthIsNoReasonNotToPrint)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    for (const qsizetype length : {256, 1024, 5000, 200'000}) {
        BarChart chart = MadeChart(10, 9);
        chart.title = QString(length, u'ö');
        const Outcome printed = Print(ChartDocument(chart));
        EXPECT_TRUE(printed.ok) << length << ": " << printed.reason.toStdString();
        EXPECT_EQ(m_scheduler.PrintedPages(u"q"_s).size(), 1U);
    }
}

TEST_F(PrintOnPaper, TheToolkitsWayPrintsAChartInLandscapeToo)
{
    m_scheduler.AddQueue(u"q"_s, u"A4"_s);
    m_scheduler.MakeDefault(u"q"_s);
    QtPrinters door;
    const DefaultPrinter printer = door.Default();
    if (!printer.Exists()) {
        GTEST_SKIP() << "the toolkit has no way to CUPS on this machine: " << printer.reason.toStdString();
    }
    BarChart chart = MadeChart(49, 175);
    chart.ink = ChartInk::BlackAndWhite;
    const Outcome printed = door.Print(ChartDocument(chart), printer, [](int) {});
    EXPECT_TRUE(printed.ok) << printed.reason.toStdString();
    const std::vector<PaperPage> pages = m_scheduler.PrintedPages(u"q"_s);
    ASSERT_EQ(pages.size(), 1U);
    ExpectTurned(pages[0]);
    ExpectChartOnPaper(m_scheduler, m_scheduler.Printed(u"q"_s), chart);
}

TEST(PrintOnAFullDisk, TheReasonIsToldAndNoJobIsLeft)
{
    PrintScheduler scheduler(u"full"_s);
    if (!scheduler.WhyNot().isEmpty()) {
        GTEST_SKIP() << scheduler.WhyNot().toStdString();
    }
    scheduler.AddQueue(u"q"_s, u"A4"_s);
    scheduler.MakeDefault(u"q"_s);
    DoorOnThread door;
    const DefaultPrinter printer = door.Default();
    ASSERT_TRUE(printer.Exists()) << printer.reason.toStdString();
    const Outcome printed = door.Print(DatabasePrintout(kStandardFont, 2001, 10), printer);
    EXPECT_FALSE(printed.ok);
    EXPECT_TRUE(printed.reason.contains(u"no room for the pages"_s)) << printed.reason.toStdString();
    EXPECT_EQ(scheduler.Jobs(), QString());
}
