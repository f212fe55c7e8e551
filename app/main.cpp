#include "app/AMsgbox.h"
#include "app/AccessibleButtons.h"
#include "app/AllYesNo.h"
#include "app/CallersConsole.h"
#include "app/ChangeFnt.h"
#include "app/DatabaseRecovery.h"
#include "app/DatabaseReport.h"
#include "app/DialogPrompts.h"
#include "app/FileNames.h"
#include "app/FileOpener.h"
#include "app/LGLOBAL.h"
#include "app/MDIContainer.h"
#include "app/PictureTour.h"
#include "app/PrintPreview.h"
#include "app/Printing.h"
#include "app/ProgramFolder.h"
#include "app/Recovery.h"
#include "app/ShownFocus.h"
#include "database/Extract.h"
#include "database/InRecNum.h"
#include "database/LDbase.h"
#include "database/LGraph.h"
#include "database/StatisticsChart.h"
#include "help/HelpDesk.h"
#include "hotcold/LHotCold.h"
#include "invest/InInvNum.h"
#include "invest/LInvTrack.h"
#include "invest/StatementRecovery.h"
#include "picks/LCheckWin.h"
#include "picks/Lottery.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QProxyStyle>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QString kSample = u":/samples/Sample.Lto"_s;
const QString kSampleStatement = u":/samples/Sample.inv"_s;

struct CommandLine {
    QString file;       ///< opened at start, absolute; "" for none
    QString folder;     ///< program folder asked for
    QString tourFolder; ///< where the pictures go, absolute; "" for no tour
    int exitCode = -1;  ///< not negative when there is nothing more to do
};

QString Absolute(const QString& path)
{
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

void Print(FILE* stream, const QString& text)
{
    UseCallersConsole();
    std::fputs(text.toLocal8Bit().constData(), stream);
}

/// Read before there is a window, so that --help and --version answer on any machine.
CommandLine ReadCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Keeps the draws of a lottery, counts them and makes sets of numbers."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Show this help."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Show the version."_s);
    const QCommandLineOption folder(u"folder"_s, u"Keep settings and samples in <dir>."_s, u"dir"_s);
    const QCommandLineOption tour(u"tour"_s, u"Save a picture of each form in <dir> and end."_s, u"dir"_s);
    parser.addOptions({help, version, folder, tour});
    parser.addPositionalArgument(u"file"_s, u"The lottery database or investment statement to open."_s,
                                 u"[file]"_s);

    CommandLine line;
    if (!parser.parse(arguments)) {
        Print(stderr, parser.errorText() + u'\n');
        line.exitCode = 2;
    } else if (parser.positionalArguments().size() > 1) {
        Print(stderr, u"Only one file can be opened at a time.\n"_s);
        line.exitCode = 2;
    } else if (parser.isSet(help)) {
        // Before there is an application, nobody has told the parser the program's name.
        Print(stdout, parser.helpText().replace(u"<executable_name>"_s, u"quillaby"_s));
        line.exitCode = 0;
    } else if (parser.isSet(version)) {
        Print(stdout, u"Quillaby System v3.6 (%1)\n"_s.arg(QCoreApplication::applicationVersion()));
        line.exitCode = 0;
    }
    line.file = Absolute(parser.positionalArguments().value(0));
    line.folder = Absolute(parser.value(folder));
    line.tourFolder = Absolute(parser.value(tour));
    return line;
}

/// With the user's own settings, not in the program folder: it may be on a stick that goes from hand to hand.
QString RecentFilesList()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    return folder.isEmpty() ? QString() : folder + u"/recent-files"_s;
}

QString ChooseOwnFolder(const QString& asked)
{
    const QString executableFolder = QCoreApplication::applicationDirPath();
    const FoundSamples samples = FindSamples(executableFolder, QStringLiteral(QUILLABY_SAMPLES_FROM_PROGRAM),
                                             {kSample, kSampleStatement});
    return ChooseProgramFolder(
        {.executableFolder = samples.isInstalled ? QString() : executableFolder,
         .dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation),
         .asked = asked},
        samples.files);
}

void ShowIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        icon.addFile(u":/icons/quillaby-%1.png"_s.arg(size), {size, size});
    }
    QApplication::setWindowIcon(icon);
}

std::vector<TourDialog> TourDialogs(LGLOBAL& shared, Prompts& prompts, MDIContainer& window)
{
    const auto message = [&] {
        constexpr qint16 kLongest = 16;
        shared.messageNumber = kLongest;
        return std::make_unique<AMsgbox>(shared, &window);
    };
    const auto question = [&] {
        constexpr qint16 kGoBackAndSave = 3;
        shared.questionNumber = kGoBackAndSave;
        return std::make_unique<AllYesNo>(shared, &window);
    };
    const auto preview = [&] {
        const PrintedDocument pages = MakeDocument(shared, shared.database.title, [&](Printout& printout) {
            PrintDatabaseReport(printout, shared.database, shared.WhichCnt, shared.locale);
        });
        return std::make_unique<PrintPreview>(pages, UsualPaper(shared.locale), &window);
    };
    const auto graphPreview = [&](ChartInk ink, BarStyle style) {
        const LotteryShape shape = shared.database.Shape();
        const NumberTable counts = CountNumbers(shared.database, CountMode::TimesDrawn);
        BarChart chart = StatisticsChart(counts, shape.highest,
                                         {.records = shared.database.count, .title = shared.database.title});
        chart.ink = ink;
        chart.style = style;
        return std::make_unique<PrintPreview>(ChartDocument(chart), UsualPaper(shared.locale), &window);
    };
    const auto records = [&] { return std::make_unique<InRecNum>(shared, &window); };
    const auto settings = [&] { return std::make_unique<ChangeFnt>(shared, prompts, window, &window); };
    const auto extract = [&] { return std::make_unique<Extract>(shared, prompts, window, &window); };
    const auto insertedLine = [&] {
        constexpr int kAnyRow = 7;
        return std::make_unique<InInvNum>(shared, kAnyRow, &window);
    };
    const auto help = [&](const QString& page, const QString& words) {
        return [&shared, &prompts, page, words] {
            auto pages = std::make_unique<HelpWindow>(shared, prompts);
            pages->ShowPage(page);
            pages->SearchFor(words);
            return pages;
        };
    };
    return {
        {u"AMsgbox"_s, message, {}},
        {u"AllYesNo"_s, question, {}},
        {u"PrintPreview"_s, preview, {}},
        {u"PrintPreview-graph"_s, [=] { return graphPreview(ChartInk::Color, BarStyle::Flat); }, {}},
        {u"PrintPreview-graph-bw"_s,
         [=] { return graphPreview(ChartInk::BlackAndWhite, BarStyle::ThreeDimensional); },
         {}},
        {u"InRecNum"_s, records, {}},
        {u"InRecNum-insert"_s, records, u"CorInsDel1"_s},
        {u"InRecNum-delete"_s, records, u"CorInsDel2"_s},
        {u"InRecNum-sort"_s, records, u"CorInsDel3"_s},
        {u"ChangeFnt"_s, settings, {}, true},
        {u"Extract"_s, extract, {}},
        {u"Extract-help"_s, extract, u"EHelp"_s},
        {u"InInvNum"_s, insertedLine, {}},
        {u"HelpWindow"_s, help(u"welcome"_s, {}), {}},
        {u"HelpWindow-search"_s, help(u"welcome"_s, u"bonus number"_s), {}},
        {u"HelpWindow-chance"_s, help(u"chance"_s, {}), {}},
    };
}

/// Nothing moves in a picture.
class StillStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0
                                                    : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

int TakeTour(LGLOBAL& shared, Prompts& prompts, MDIContainer& window, const CommandLine& line)
{
    QApplication::setStyle(new StillStyle); // the application's from now on
    const bool isStatement = IsStatementFileName(line.file);
    window.OpenNamedFile(line.file.isEmpty() || isStatement ? kSample : line.file);
    window.ShowForm(FormName::LotoMenu);
    const auto openStatement = [statement = isStatement ? line.file : kSampleStatement](WorkingForm& form) {
        form.OpenNamedFile(statement);
    };
    const auto typeNumbers = [](WorkingForm& form) {
        int box = 0;
        for (const int number : {8, 3, 1, 32, 19, 4}) { // drawn in the sample's third record
            form.findChild<InputBox*>(u"CInYourNum%1"_s.arg(box++))->setText(QString::number(number));
        }
    };
    const Tour tour{
        .stops = {{FormName::LotoMenu, u"LotoMenu"_s, {}},
                  {FormName::LDbase, u"LDbase"_s, {}},
                  {FormName::LDbase, u"LDbase-help"_s, u"DHelp"_s},
                  {FormName::Lottery, u"Lottery"_s, {}},
                  {FormName::Lottery, u"Lottery-sets"_s, u"CalcAllNum"_s},
                  {FormName::Lottery, u"Lottery-help"_s, u"PHelp"_s},
                  {FormName::LHotCold, u"LHotCold"_s, {}},
                  {FormName::LHotCold, u"LHotCold-sets"_s, u"CalcHCD"_s},
                  {FormName::LHotCold, u"LHotCold-help"_s, u"HelpHCD"_s},
                  {FormName::LGraph, u"LGraph"_s, {}},
                  {FormName::LGraph, u"LGraph-sorted"_s, u"ChngView"_s},
                  {FormName::LGraph, u"LGraph-since"_s, u"GWhichCnt"_s},
                  {FormName::LGraph, u"LGraph-3d"_s, u"TwoDBut"_s},
                  {FormName::LCheckWin, u"LCheckWin"_s, {}},
                  {FormName::LCheckWin, u"LCheckWin-results"_s, u"CCalc"_s, typeNumbers},
                  {FormName::LCheckWin, u"LCheckWin-help"_s, u"CHelp"_s},
                  {FormName::LInvTrack, u"LInvTrack"_s, {}, openStatement},
                  {FormName::LInvTrack, u"LInvTrack-help"_s, u"IHelp"_s, openStatement}},
        .dialogs = TourDialogs(shared, prompts, window),
    };
    const Outcome taken = TakePictures(window, tour, line.tourFolder);
    Print(taken.ok ? stdout : stderr,
          (taken.ok ? u"Pictures saved in "_s + line.tourFolder : taken.reason) + u'\n');
    return taken.ok ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(u"quillaby"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLABY_VERSION));
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const CommandLine line = ReadCommandLine(arguments);
    if (line.exitCode >= 0) {
        return line.exitCode;
    }

    const QApplication application(argc, argv);
    InstallAccessibleButtons();
    InstallShownFocus();
    QApplication::setDesktopFileName(QStringLiteral(QUILLABY_ID)); // so a desktop knows whose window it is
    const QString programFolder = ChooseOwnFolder(line.folder);
    LGLOBAL shared;
    if (line.tourFolder.isEmpty()) { // a tour leaves no traces
        shared.recentFilesList = RecentFilesList();
    }
    DialogPrompts prompts(shared);
    MDIContainer window(shared, prompts, programFolder);
    prompts.SetMainWindow(&window);
    if (!line.tourFolder.isEmpty()) {
        prompts.SetUnattended();
    }
    window.AddForm(FormName::LDbase, [&](FormSwitcher& switcher, QWidget* parent) {
        return new LDbase(shared, prompts, switcher, parent);
    });
    window.AddForm(FormName::LHotCold, [&](FormSwitcher& switcher, QWidget* parent) {
        return new LHotCold(shared, prompts, switcher, parent);
    });
    window.AddForm(FormName::LCheckWin, [&](FormSwitcher& switcher, QWidget* parent) {
        return new LCheckWin(shared, prompts, switcher, parent);
    });
    window.AddForm(FormName::LInvTrack, [&](FormSwitcher& switcher, QWidget* parent) {
        return new LInvTrack(shared, prompts, switcher, parent);
    });
    window.AddForm(FormName::Lottery, [&](FormSwitcher& switcher, QWidget* parent) {
        return new Lottery(shared, prompts, switcher, parent);
    });
    window.AddForm(FormName::LGraph, [&](FormSwitcher& switcher, QWidget* parent) {
        return new LGraph(shared, prompts, switcher, parent);
    });
    window.AddDialog(FormName::ChangeFnt, [&](FormSwitcher& switcher, QWidget* mainWindow) {
        ChangeFnt(shared, prompts, switcher, mainWindow).exec();
    });
    window.AddDialog(FormName::Extract, [&](FormSwitcher& switcher, QWidget* mainWindow) {
        Extract(shared, prompts, switcher, mainWindow).exec();
    });
    auto* help = new HelpDesk(shared, prompts, &window.Menu()); // which owns it
    window.SetHelp([help] { help->OpenContents(); });
    window.Start();
    window.show();
    constexpr int kAfterTheFirstPicture = 100; // milliseconds: the picture need not wait until icons are read
    QTimer::singleShot(kAfterTheFirstPicture, &window, ShowIcon);
    if (!line.tourFolder.isEmpty()) {
        return TakeTour(shared, prompts, window, line);
    }
    Recovery recovery(shared, prompts, window, UsualRecoveryFolder(),
                      {KeptDatabase(shared), KeptStatement(shared)});
    recovery.Start();
    const FileOpener opener([&](const QString& path) { window.OpenHandedFile(path); });
    if (!line.file.isEmpty()) {
        QTimer::singleShot(0, &window, [&] { window.OpenNamedFile(line.file); });
    }
    const int result = QApplication::exec();
    recovery.EndCleanly();
    return result;
}
