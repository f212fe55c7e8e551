// Uses the whole program at random, as fast as it goes, and checks after each action what must always hold,
// and at the end that it has not grown.
//
//   quillaby_soak [--seconds N] [--seed N] [--growth KIB] [--verbose]
//
// A failure prints the seed and the last actions. Exit status: 0 all held, 1 something did not.

#include "tests/soak/SoakMemory.h"
#include "tests/soak/SoakSession.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The last actions, for whoever reads of a failure. Global, because a program that dies tells it nothing
/// else.
struct Story {
    static constexpr std::size_t kLength = 60;
    quint64 seed = 0;
    qint64 actions = 0;
    std::deque<QByteArray> last;
    bool verbose = false;
    std::map<QByteArray, int> warnings;
};

Story& TheStory()
{
    static Story story;
    return story;
}

void TellStory()
{
    const Story& story = TheStory();
    std::fprintf(stderr, "seed %llu, action %lld; the last ones were:\n",
                 static_cast<unsigned long long>(story.seed), static_cast<long long>(story.actions));
    for (const QByteArray& action : story.last) {
        std::fprintf(stderr, "  %s\n", action.constData());
    }
}

void Log(const QString& what)
{
    Story& story = TheStory();
    story.last.push_back(what.toUtf8());
    if (story.last.size() > Story::kLength) {
        story.last.pop_front();
    }
    if (story.verbose) {
        std::fprintf(stderr, "%s\n", story.last.back().constData());
    }
}

[[noreturn]] void Fail(const QString& what)
{
    std::fprintf(stderr, "FAILED, this does not hold: %s\n", what.toUtf8().constData());
    TellStory();
    std::_Exit(1);
}

extern "C" void OnAbort(int)
{
    TellStory();
    std::_Exit(1);
}

void OnQtMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg) {
        Fail(text);
    }
    constexpr std::size_t kMostWarnings = 200;
    std::map<QByteArray, int>& warnings = TheStory().warnings;
    if (const QByteArray key = text.toUtf8(); warnings.size() < kMostWarnings || warnings.contains(key)) {
        ++warnings[key];
    }
}

/// Nothing rolls or shuffles, so that more can be done in the time.
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

struct Sample {
    qint64 actions = 0;
    qint64 allocated = 0;
    qint64 resident = 0;
};

Sample TakeSample()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QPixmapCache::clear();
    return {TheStory().actions, AllocatedBytes(), ResidentBytes()};
}

/// How much more is held in the last quarter of the run than in its second: the least there against the most
/// here, so that what one session happens to leave in a cache does not count. What the program needs once, it
/// has in the first quarter.
qint64 Growth(const std::vector<Sample>& samples)
{
    const auto quarter = static_cast<std::ptrdiff_t>(samples.size() / 4);
    const auto less = [](const Sample& one, const Sample& other) { return one.allocated < other.allocated; };
    const auto before = std::max_element(samples.begin() + quarter, samples.begin() + 2 * quarter, less);
    const auto after = std::min_element(samples.end() - quarter, samples.end(), less);
    return after->allocated - before->allocated;
}

/// Nobody answers all offers of copies; the next run is to read a few of them, not thousands.
void SweepCopies(const QString& path)
{
    constexpr qsizetype kMost = 12;
    QDir folder(path);
    const QStringList names = folder.entryList(QDir::Files, QDir::Time);
    for (const QString& name : names.mid(kMost)) {
        folder.remove(name);
    }
}

constexpr std::size_t kEnoughSamples = 12;

void Report(const std::vector<Sample>& samples, const std::map<QString, int>& visits, double seconds)
{
    std::printf("seed %llu: %lld actions in %.0f s, %zu runs of the program\n",
                static_cast<unsigned long long>(TheStory().seed), static_cast<long long>(TheStory().actions),
                seconds, samples.size());
    for (const auto& [name, count] : visits) {
        std::printf("  %8d in %s\n", count, qUtf8Printable(name));
    }
    const std::size_t step = std::max<std::size_t>(samples.size() / 16, 1);
    for (std::size_t i = 0; i < samples.size(); i += step) {
        std::printf("  after %9lld actions %8lld KiB on the heap, %8lld KiB resident\n",
                    static_cast<long long>(samples.at(i).actions),
                    static_cast<long long>(samples.at(i).allocated / 1024),
                    static_cast<long long>(samples.at(i).resident / 1024));
    }
    for (const auto& [text, count] : TheStory().warnings) {
        std::printf("  %d times: %s\n", count, text.constData());
    }
}

int Soak(double seconds, qint64 mostGrowth)
{
    const QTemporaryDir folder;
    SoakFiles files;
    if (!folder.isValid() || !files.Make(folder.path())) {
        std::fputs("The files cannot be made.\n", stderr);
        return 1;
    }
    SoakDice dice(TheStory().seed);
    std::vector<Sample> samples;
    std::map<QString, int> visits;
    QElapsedTimer time;
    time.start();
    while (static_cast<double>(time.elapsed()) < seconds * 1000) {
        QApplication::setStyle(dice.OneIn(8) ? QStyleFactory::create(u"fusion"_s) : new StillStyle);
        {
            SoakSession session({.dice = dice,
                                 .files = files,
                                 .programFolder = folder.path(),
                                 .recoveryFolder = folder.filePath(u"state/recovery"_s),
                                 .log =
                                     [](const QString& what) {
                                         ++TheStory().actions;
                                         Log(what);
                                     },
                                 .fail = Fail});
            constexpr int kShortest = 50;
            constexpr int kMore = 400;
            session.Run(kShortest + dice.Below(kMore));
            for (const auto& [name, count] : session.Visits()) {
                visits[name] += count;
            }
        }
        samples.push_back(TakeSample());
        SweepCopies(folder.filePath(u"state/recovery"_s));
    }
    Report(samples, visits, static_cast<double>(time.elapsed()) / 1000);
    if (samples.size() < kEnoughSamples) {
        std::puts("Too short a time to say anything about memory.");
        return 0;
    }
    const qint64 growth = Growth(samples);
    std::printf("grown by %lld KiB, allowed are %lld KiB\n", static_cast<long long>(growth / 1024),
                static_cast<long long>(mostGrowth / 1024));
    return growth <= mostGrowth ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(true);

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption seconds(u"seconds"_s, u"How long."_s, u"n"_s, u"10"_s);
    const QCommandLineOption seed(u"seed"_s, u"Which random actions; another each time without it."_s, u"n"_s,
                                  QString::number(std::random_device{}()));
    const QCommandLineOption growth(u"growth"_s, u"How many KiB the heap may grow."_s, u"n"_s, u"256"_s);
    const QCommandLineOption verbose(u"verbose"_s, u"Print every action."_s);
    parser.addOptions({seconds, seed, growth, verbose});
    parser.process(application);

    TheStory().seed = parser.value(seed).toULongLong();
    TheStory().verbose = parser.isSet(verbose);
    qInstallMessageHandler(OnQtMessage);
    std::signal(SIGABRT, OnAbort);
    OnSanitizerDeath(TellStory);
    constexpr qint64 kKiB = 1024;
    return Soak(parser.value(seconds).toDouble(), parser.value(growth).toLongLong() * kKiB);
}
