#include "app/DialogPrompts.h"
#include "app/LongWork.h"
#include "app/PageView.h"
#include "app/PaperPrinting.h"
#include "app/PrintPreview.h"
#include "app/Printing.h"
#include "tests/CannedPrompts.h"
#include "tests/MadeChart.h"
#include "tests/ModalWindows.h"
#include "tests/QtPrinters.h"
#include "tests/TestFiles.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <semaphore>

using namespace Qt::StringLiterals;

namespace {

/// A door that answers as a test wants and keeps what was printed.
class CannedPrinters : public PrinterDoor
{
public:
    DefaultPrinter printer{
        .name = u"Laser"_s, .instance = {}, .paper = QPageSize(QPageSize::Letter), .reason = {}};
    Outcome outcome;
    std::vector<PrintedDocument> printed;
    bool anyThread = true;
    QThread* thread = nullptr; ///< the one it printed on
    std::function<void()> onPrint = [] {};

    [[nodiscard]] bool WorksOnAnyThread() const override { return anyThread; }
    [[nodiscard]] DefaultPrinter Default() override { return printer; }
    [[nodiscard]] Outcome Print(const PrintedDocument& document, const DefaultPrinter& on,
                                const PagesDone& pagesDone) override
    {
        EXPECT_EQ(on.name, printer.name);
        printed.push_back(document);
        thread = QThread::currentThread();
        onPrint();
        pagesDone(1);
        return outcome;
    }
};

PrintedDocument Pages(int count, const QString& name = u"A report"_s)
{
    Printout printout(name, kStandardFont);
    for (int page = 1; page <= count; ++page) {
        printout.PrintLine(u"this is page %1"_s.arg(page), 10);
        printout.EndPage();
    }
    return printout.Document();
}

class PaperPrintingTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    QMainWindow m_window;
    LGLOBAL m_shared;
    CannedPrompts m_prompts{m_shared};
    CannedPrinters m_printers;
    PaperPrinting m_printing{m_shared, m_prompts, m_printers, &m_window};
};

} // namespace

TEST_F(PaperPrintingTest, PrintsOnTheDefaultPrinterAndSaysNothing)
{
    m_printing.Print(Pages(2));
    ASSERT_EQ(m_printers.printed.size(), 1U);
    EXPECT_TRUE(m_printers.printed[0] == Pages(2));
    EXPECT_TRUE(m_prompts.notices.isEmpty());
}

TEST_F(PaperPrintingTest, ADoorThatNeedsTheThreadOfTheWindowsGetsIt)
{
    m_printing.Print(Pages(2));
    EXPECT_NE(m_printers.thread, QThread::currentThread());
    m_printers.anyThread = false;
    m_printing.Print(Pages(2));
    EXPECT_EQ(m_printers.thread, QThread::currentThread());
    EXPECT_EQ(m_printers.printed.size(), 2U);
}

TEST_F(PaperPrintingTest, ThePointerIsBusyWhilePrintingAndNotWhileAnythingIsTold)
{
    m_printers.anyThread = false; // so that the door can look at it
    m_printers.onPrint = [this] { EXPECT_TRUE(m_prompts.busy); };
    m_printing.Print(Pages(2));
    EXPECT_EQ(m_printers.printed.size(), 1U);
    EXPECT_FALSE(m_prompts.busy);
    m_printers.outcome = Outcome::Failure(u"No space left on device"_s);
    m_prompts.onNotice = [this] { EXPECT_FALSE(m_prompts.busy); };
    m_printing.Print(Pages(2));
    EXPECT_EQ(m_prompts.notices.size(), 1);
    EXPECT_FALSE(m_prompts.busy);
}

TEST_F(PaperPrintingTest, ThePointerIsBusyWhileAPdfFileIsWritten)
{
    m_prompts.files = {m_folder.filePath(u"out.pdf"_s)};
    m_printing.SaveAsPdf(ChartDocument(MadeChart(49, 175)), QPageSize(QPageSize::A4));
    EXPECT_EQ(m_prompts.busyChanges, (std::deque<bool>{true, false}));
    EXPECT_TRUE(BytesOf(m_folder.filePath(u"out.pdf"_s)).startsWith("%PDF-"));
}

TEST_F(PaperPrintingTest, AFailureIsToldWithThePrinterAndTheSystemsReason)
{
    m_printers.outcome = Outcome::Failure(u"No space left on device"_s);
    m_printing.Print(Pages(1));
    ASSERT_EQ(m_prompts.notices.size(), 1);
    EXPECT_TRUE(m_prompts.notices[0].contains(u"Nothing was printed on Laser."_s));
    EXPECT_TRUE(m_prompts.notices[0].contains(u"No space left on device"_s));
}

TEST_F(PaperPrintingTest, WithoutADefaultPrinterAPdfFileIsAskedForAndPrintedTo)
{
    const QString file = m_folder.filePath(u"out.pdf"_s);
    m_printers.printer = {
        .name = {}, .paper = QPageSize(QPageSize::A4), .reason = u"No default destination."_s};
    m_prompts.files = {file};
    m_printing.Print(Pages(3));
    ASSERT_EQ(m_prompts.notices.size(), 2);
    EXPECT_TRUE(m_prompts.notices[1].contains(file)) << "the user is told where the pages are";
    EXPECT_TRUE(m_prompts.notices[0].contains(u"There is no printer to print on."_s));
    EXPECT_TRUE(m_prompts.notices[0].contains(u"No default destination."_s));
    EXPECT_EQ(m_prompts.fileDialogModes.back(), kSavePdfFile);
    const QByteArray pdf = BytesOf(file);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.contains("/Count 3"));
    EXPECT_TRUE(m_printers.printed.empty());
    EXPECT_EQ(m_shared.fileDialogMode, kFileDialogIdle);
    EXPECT_EQ(m_shared.chosenPath, QString());
}

TEST_F(PaperPrintingTest, ACancelledPdfFilePrintsNothing)
{
    m_prompts.files = {QString()};
    m_printing.SaveAsPdf(Pages(1), QPageSize(QPageSize::A4));
    EXPECT_TRUE(NamesIn(m_folder.path()).isEmpty());
    EXPECT_TRUE(m_prompts.notices.isEmpty());
    EXPECT_EQ(m_shared.fileDialogMode, kFileDialogIdle);
}

TEST_F(PaperPrintingTest, APdfFileThatCannotBeWrittenIsToldWithTheReason)
{
    m_prompts.files = {m_folder.filePath(u"missing/out.pdf"_s)};
    m_printing.SaveAsPdf(Pages(1), QPageSize(QPageSize::A4));
    ASSERT_EQ(m_prompts.notices.size(), 1);
    EXPECT_TRUE(m_prompts.notices[0].contains(u"The PDF file was not written."_s));
    EXPECT_TRUE(m_prompts.notices[0].contains(u"No such file or directory"_s));
}

TEST_F(PaperPrintingTest, TheProposedNameIsThatOfTheDocumentWithoutWhatFilesCannotBeNamed)
{
    m_prompts.files = {QString(), QString()};
    m_printing.SaveAsPdf(Pages(1, u"Winning numbers in 6/49: \"us\""_s), QPageSize(QPageSize::A4));
    EXPECT_EQ(m_shared.pdfFileName, u"Winning numbers in 6-49- -us-.pdf"_s);
    m_printing.SaveAsPdf(Pages(1, {}), QPageSize(QPageSize::A4));
    EXPECT_EQ(m_shared.pdfFileName, u"Printout.pdf"_s);
}

TEST_F(PaperPrintingTest, ThePaperIsThatOfTheDefaultPrinter)
{
    EXPECT_EQ(m_printing.Paper().id(), QPageSize::Letter);
}

namespace {

class PrintQuestion : public testing::Test
{
protected:
    PrintQuestion()
    {
        m_window.show();
        m_prompts.SetMainWindow(&m_window);
    }

    /// Asks question 1 and runs @p act on its window.
    void Request(const std::function<void(QWidget*)>& act)
    {
        bool asked = false;
        WhenModalOpens([&](QWidget* question) {
            asked = true;
            act(question);
        });
        PrintOnRequest(m_shared, m_prompts, u"A report"_s, [](Printout& printout) {
            for (int line = 0; line < 130; ++line) {
                printout.PrintLine(u"line %1"_s.arg(line));
            }
        });
        EXPECT_TRUE(asked);
    }

    static void Press(QWidget* window, const QString& button)
    {
        auto* found = window->findChild<QPushButton*>(button);
        ASSERT_NE(found, nullptr) << button.toStdString();
        ASSERT_TRUE(found->isVisible()) << button.toStdString();
        QTest::mouseClick(found, Qt::LeftButton);
    }

    QMainWindow m_window;
    LGLOBAL m_shared;
    std::unique_ptr<CannedPrinters> m_ownedPrinters = std::make_unique<CannedPrinters>();
    CannedPrinters& m_printers = *m_ownedPrinters;
    DialogPrompts m_prompts{m_shared, std::move(m_ownedPrinters)};
};

} // namespace

TEST_F(PrintQuestion, YesPrints)
{
    Request([](QWidget* question) {
        EXPECT_EQ(question->findChild<QLabel*>(u"Label1"_s)->text(), u" Continue with Printout."_s);
        Press(question, u"AllYes"_s);
    });
    ASSERT_EQ(m_printers.printed.size(), 1U);
    EXPECT_EQ(m_printers.printed[0].pages.size(), 3U);
}

TEST_F(PrintQuestion, NoAndEscapePrintNothing)
{
    Request([](QWidget* question) { Press(question, u"AllNo"_s); });
    Request([](QWidget* question) { QTest::keyClick(question, Qt::Key_Escape); });
    EXPECT_TRUE(m_printers.printed.empty());
}

TEST_F(PrintQuestion, OnlyAPrintoutOffersAPreview)
{
    WhenModalOpens([](QWidget* question) {
        EXPECT_FALSE(question->findChild<QPushButton*>(u"PreviewButt"_s)->isVisible());
        Press(question, u"AllNo"_s);
    });
    EXPECT_FALSE(Ask(m_shared, m_prompts, 2));
    Request([](QWidget* question) {
        auto* preview = question->findChild<QPushButton*>(u"PreviewButt"_s);
        EXPECT_TRUE(preview->isVisible());
        EXPECT_EQ(preview->text(), u"Print &Preview"_s);
        Press(question, u"AllNo"_s);
    });
}

TEST_F(PrintQuestion, AChartIsPrintedInTheInkOfTheSecondAnswer)
{
    for (const bool color : {true, false}) {
        QStringList asked;
        WhenModalOpens([&](QWidget* first) {
            asked << first->findChild<QLabel*>(u"Label1"_s)->text();
            WhenNextModalOpens([&](QWidget* second) {
                asked << second->findChild<QLabel*>(u"Label1"_s)->text();
                EXPECT_FALSE(second->findChild<QPushButton*>(u"PreviewButt"_s)->isVisible());
                Press(second, color ? u"AllYes"_s : u"AllNo"_s);
            });
            Press(first, u"AllYes"_s);
        });
        m_printers.printed.clear();
        PrintChartOnRequest(m_shared, m_prompts, MadeChart(49, 175));
        EXPECT_EQ(asked, (QStringList{u" Continue with Printout."_s, u" Print in Color."_s}));
        ASSERT_EQ(m_printers.printed.size(), 1U);
        EXPECT_EQ(m_printers.printed[0].charts.at(0).ink, color ? ChartInk::Color : ChartInk::BlackAndWhite);
    }
}

TEST_F(PrintQuestion, TheHourglassIsShownWhilePrinting)
{
    m_printers.anyThread = false;
    m_printers.onPrint = [] {
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    };
    Request([](QWidget* question) { Press(question, u"AllYes"_s); });
    EXPECT_EQ(m_printers.printed.size(), 1U);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(PrintQuestion, ThePreviewShowsThePagesOnThePrintersPaperAndTheQuestionStaysOpen)
{
    bool seen = false;
    Request([&](QWidget* question) {
        WhenNextModalOpens([&](QWidget* window) {
            seen = true;
            auto* preview = qobject_cast<PrintPreview*>(window);
            ASSERT_NE(preview, nullptr);
            EXPECT_EQ(preview->Document().pages.size(), 3U);
            EXPECT_EQ(preview->Paper().id(), QPageSize::Letter);
            EXPECT_EQ(preview->windowTitle(), u"Print Preview - A report"_s);
            Press(preview, u"ClosePreview"_s);
        });
        Press(question, u"PreviewButt"_s);
        EXPECT_TRUE(question->isVisible());
        EXPECT_TRUE(m_printers.printed.empty());
        Press(question, u"AllYes"_s);
    });
    EXPECT_TRUE(seen);
    EXPECT_EQ(m_printers.printed.size(), 1U);
}

TEST_F(PrintQuestion, ThePreviewSavesItsPagesAsPdf)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"pages.pdf"_s);
    m_shared.pdfFolder = folder.path();
    m_shared.dialogFolder = u"/where/lotteries/are"_s;
    Request([&](QWidget* question) {
        WhenNextModalOpens([&](QWidget* preview) {
            WhenNextModalOpens([&](QWidget* window) {
                auto* dialog = qobject_cast<QDialog*>(window);
                ASSERT_NE(dialog, nullptr);
                EXPECT_EQ(dialog->windowTitle(), u"Print to a PDF File"_s);
                EXPECT_EQ(dialog->parentWidget(), preview);
                WhenNextModalOpens([&](QWidget* notice) {
                    EXPECT_TRUE(
                        notice->findChild<QPlainTextEdit*>(u"TextMsg"_s)->toPlainText().contains(file));
                    notice->close();
                });
                dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(u"pages"_s);
                dialog->accept();
            });
            Press(preview, u"SavePdf"_s);
            Press(preview, u"ClosePreview"_s);
        });
        Press(question, u"PreviewButt"_s);
        Press(question, u"AllNo"_s);
    });
    EXPECT_TRUE(BytesOf(file).contains("/Count 3"));
    EXPECT_EQ(m_shared.pdfFolder, folder.path());
    EXPECT_EQ(m_shared.dialogFolder, u"/where/lotteries/are"_s)
        << "the folder of lotteries is another matter";
}

namespace {

class PrintPreviewTest : public testing::Test
{
protected:
    void Open(int pages)
    {
        m_preview = std::make_unique<PrintPreview>(Pages(pages), QPageSize(QPageSize::A4), nullptr);
        m_preview->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_preview.get()));
    }
    [[nodiscard]] QPushButton* Button(const QString& name)
    {
        return m_preview->findChild<QPushButton*>(name);
    }
    void Press(const QString& name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    [[nodiscard]] QString Number() { return m_preview->findChild<QLabel*>(u"PageNumber"_s)->text(); }
    [[nodiscard]] PageView& View() { return *m_preview->findChild<PageView*>(u"Pages"_s); }
    [[nodiscard]] QImage Shown() { return View().grab().toImage(); }

    std::unique_ptr<PrintPreview> m_preview;
};

} // namespace

TEST_F(PrintPreviewTest, TurnsThePagesWithButtons)
{
    Open(4);
    EXPECT_EQ(Number(), u"Page 1 of 4"_s);
    const QImage first = Shown();
    Press(u"NextPage"_s);
    EXPECT_EQ(Number(), u"Page 2 of 4"_s);
    EXPECT_NE(Shown(), first);
    Press(u"LastPage"_s);
    EXPECT_EQ(Number(), u"Page 4 of 4"_s);
    Press(u"PreviousPage"_s);
    EXPECT_EQ(Number(), u"Page 3 of 4"_s);
    Press(u"FirstPage"_s);
    EXPECT_EQ(Number(), u"Page 1 of 4"_s);
    EXPECT_EQ(Shown(), first);
}

TEST_F(PrintPreviewTest, TurnsThePagesWithKeysWhereverTheFocusIs)
{
    Open(4);
    ASSERT_TRUE(Activate(*m_preview));
    for (const QString& focus : {u"ClosePreview"_s, u"ZoomIn"_s}) {
        Button(focus)->setFocus();
        QTest::keyClick(m_preview.get(), Qt::Key_End);
        EXPECT_EQ(Number(), u"Page 4 of 4"_s);
        QTest::keyClick(m_preview.get(), Qt::Key_PageUp);
        EXPECT_EQ(Number(), u"Page 3 of 4"_s);
        QTest::keyClick(m_preview.get(), Qt::Key_Home);
        EXPECT_EQ(Number(), u"Page 1 of 4"_s);
        QTest::keyClick(m_preview.get(), Qt::Key_PageDown);
        EXPECT_EQ(Number(), u"Page 2 of 4"_s);
    }
}

TEST_F(PrintPreviewTest, GoesNoFurtherThanTheFirstAndTheLastPage)
{
    Open(2);
    EXPECT_FALSE(Button(u"FirstPage"_s)->isEnabled());
    EXPECT_FALSE(Button(u"PreviousPage"_s)->isEnabled());
    Press(u"LastPage"_s);
    EXPECT_FALSE(Button(u"NextPage"_s)->isEnabled());
    EXPECT_FALSE(Button(u"LastPage"_s)->isEnabled());
    EXPECT_TRUE(Button(u"FirstPage"_s)->isEnabled());
}

TEST_F(PrintPreviewTest, OpensWithTheWholePageInSightAndZooms)
{
    Open(1);
    const auto* area = m_preview->findChild<QScrollArea*>(u"ScrollArea"_s);
    const QSize room = area->viewport()->size();
    EXPECT_LE(View().width(), room.width());
    EXPECT_LE(View().height(), room.height());
    const int whole = View().width();
    Press(u"ZoomIn"_s);
    EXPECT_GT(View().width(), whole);
    Press(u"ZoomOut"_s);
    EXPECT_NEAR(View().width(), whole, 1);
    Press(u"WholeWidth"_s);
    EXPECT_LE(View().width(), room.width());
    EXPECT_GT(View().width(), room.width() - 40);
    Press(u"WholePage"_s);
    EXPECT_EQ(View().width(), whole);
    for (int i = 0; i < 40; ++i) {
        Press(u"ZoomIn"_s);
    }
    EXPECT_LE(View().width(), 5 * 96 * 9) << "there is an end to it";
}

TEST_F(PrintPreviewTest, ThePageFollowsTheWindow)
{
    Open(1);
    m_preview->resize(700, 500);
    const int small = View().height();
    m_preview->resize(1100, 760);
    EXPECT_GT(View().height(), small);
}

TEST_F(PrintPreviewTest, AChartLiesInLandscapeAndHasTheWholePage)
{
    PrintedDocument document = Pages(1);
    document.charts = {MadeChart(49, 175)};
    m_preview = std::make_unique<PrintPreview>(document, QPageSize(QPageSize::A4), nullptr);
    m_preview->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_preview.get()));
    EXPECT_EQ(Number(), u"Page 1 of 2"_s);
    EXPECT_LT(View().width(), View().height());
    Press(u"NextPage"_s);
    EXPECT_EQ(Number(), u"Page 2 of 2"_s);
    EXPECT_GT(View().width(), View().height());
    const auto* area = m_preview->findChild<QScrollArea*>(u"ScrollArea"_s);
    EXPECT_LE(View().width(), area->viewport()->width()) << "the whole page is in sight";
    EXPECT_LE(View().height(), area->viewport()->height());
    const QImage shown = Shown();
    int blue = 0;
    for (int x = 0; x < shown.width(); ++x) {
        const QColor color = shown.pixelColor(x, shown.height() * 3 / 4);
        blue += color.blue() > color.red() + 60 ? 1 : 0;
    }
    EXPECT_GT(blue, shown.width() / 4) << "the bars";
    Press(u"PreviousPage"_s);
    EXPECT_LT(View().width(), View().height());
}

TEST_F(PrintPreviewTest, ThePageIsWhiteUnderADarkPalette)
{
    Open(1);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    m_preview->setPalette(dark);
    const QImage shown = Shown();
    EXPECT_EQ(shown.pixelColor(shown.rect().center()), QColor(Qt::white));
}

TEST_F(PrintPreviewTest, SavesAsPdf)
{
    Open(2);
    int saved = 0;
    m_preview->OnSaveAsPdf([&] { ++saved; });
    Press(u"SavePdf"_s);
    EXPECT_EQ(saved, 1);
    EXPECT_TRUE(m_preview->isVisible());
}

TEST_F(PrintPreviewTest, ADocumentWithoutPagesShowsAnEmptySheet)
{
    m_preview = std::make_unique<PrintPreview>(PrintedDocument{}, QPageSize(QPageSize::A4), nullptr);
    m_preview->show();
    EXPECT_FALSE(Shown().isNull());
}

TEST(LongWork, GivesBackTheOutcome)
{
    EXPECT_TRUE(RunLongWork(nullptr, {}, 0, [](const StepsDone&) { return Outcome{}; }).ok);
    const Outcome failed =
        RunLongWork(nullptr, {}, 0, [](const StepsDone&) { return Outcome::Failure(u"why"_s); });
    EXPECT_FALSE(failed.ok);
    EXPECT_EQ(failed.reason, u"why"_s);
}

TEST(LongWork, WhatTheUserDoesMeanwhileIsDroppedAndNotDoneAfterwards)
{
    QMainWindow window;
    auto* button = new QPushButton(u"Print"_s, &window);
    window.setCentralWidget(button);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    int presses = 0;
    QObject::connect(button, &QPushButton::clicked, &window, [&] { ++presses; });
    std::binary_semaphore clicked(0);
    QTimer::singleShot(0, &window, [&] {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QTest::keyClick(&window, Qt::Key_Space);
        window.close();
        clicked.release();
    });
    EXPECT_TRUE(RunLongWork(&window, {}, 0, [&](const StepsDone&) {
                    clicked.acquire();
                    return Outcome{};
                }).ok);
    QCoreApplication::processEvents();
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(window.isVisible());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    EXPECT_EQ(presses, 1) << "afterwards input is taken again";
}

TEST(LongWork, ADialogThatWasOnItsWayCanBeAnsweredSoThatTheWaitEnds)
{
    QMainWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    bool answered = false;
    std::binary_semaphore opened(0);
    QTimer::singleShot(0, &window, [&] { // as an access key's button that takes a moment
        QDialog dialog(&window);
        auto* button = new QPushButton(u"Yes"_s, &dialog);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&] {
            answered = true;
            dialog.accept();
        });
        opened.release(); // the work is over while the dialog is open
        QTimer::singleShot(700, &dialog, [&] {
            EXPECT_EQ(window.findChild<QProgressDialog*>(u"Progress"_s), nullptr)
                << "it would block the dialog";
            QTest::mouseClick(button, Qt::LeftButton);
        });
        QTimer::singleShot(5000, &dialog, &QDialog::reject); // should the press be dropped
        dialog.exec();
    });
    EXPECT_TRUE(RunLongWork(&window, {}, 0, [&](const StepsDone&) {
                    opened.acquire();
                    return Outcome{};
                }).ok);
    EXPECT_TRUE(answered);
}

TEST(LongWork, WorkOnTheThreadOfTheWindowsCannotBeEnteredASecondTime)
{
    QMainWindow window;
    auto* button = new QPushButton(&window);
    window.setCentralWidget(button);
    window.show();
    int presses = 0;
    QObject::connect(button, &QPushButton::clicked, &window, [&] { ++presses; });
    QTimer impatient;
    QObject::connect(&impatient, &QTimer::timeout, &window, [&] {
        QTest::keyClick(&window, Qt::Key_Escape);
        QTest::mouseClick(button, Qt::LeftButton);
    });
    impatient.start(1);
    bool shown = false;
    EXPECT_TRUE(RunWorkHere(&window, {}, 1000, [&](const StepsDone& done) {
                    // As many steps as it takes until the progress is shown, and some more.
                    for (int step = 0; step < 1000 && !shown; ++step) {
                        QThread::msleep(2);
                        done(step);
                        auto* progress = window.findChild<QProgressDialog*>(u"Progress"_s);
                        shown = progress != nullptr && progress->isVisible();
                    }
                    for (int step = 990; step < 1000; ++step) {
                        QThread::msleep(2);
                        done(step);
                    }
                    return Outcome{};
                }).ok);
    EXPECT_TRUE(shown);
    EXPECT_EQ(presses, 0);
}

TEST(LongWork, KeepsTheWindowAliveAndShowsHowFarItIsWhenItTakesLong)
{
    QMainWindow window;
    window.show();
    std::binary_semaphore seen(0);
    QTimer watch; // runs only while events do
    QString text;
    int value = 0;
    QObject::connect(&watch, &QTimer::timeout, &window, [&] {
        auto* progress = window.findChild<QProgressDialog*>(u"Progress"_s);
        if (progress != nullptr && progress->isVisible() && progress->value() == 3) {
            text = progress->labelText();
            value = progress->maximum();
            EXPECT_EQ(progress->findChild<QPushButton*>(), nullptr) << "there is nothing to cancel";
            watch.stop();
            seen.release();
        }
    });
    watch.start(10);
    const Outcome outcome = RunLongWork(&window, u"Printing on Laser..."_s, 7, [&](const StepsDone& done) {
        done(3);
        seen.acquire();
        return Outcome{};
    });
    EXPECT_TRUE(outcome.ok);
    EXPECT_EQ(text, u"Printing on Laser..."_s);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr) << "the progress window is gone";
}
