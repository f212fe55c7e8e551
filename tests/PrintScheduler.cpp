#include "tests/PrintScheduler.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30'000; // milliseconds

const QString kQueueKind = u"/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"_s;

template <typename Condition>
bool WaitFor(const Condition& condition)
{
    QElapsedTimer waited;
    waited.start();
    while (!condition()) {
        if (waited.hasExpired(kPatience)) {
            return false;
        }
        QThread::msleep(20);
    }
    return true;
}

std::vector<PaperPage> ReadWords(const QByteArray& boxes)
{
    std::vector<PaperPage> pages;
    QXmlStreamReader reader(boxes);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QXmlStreamAttributes box = reader.attributes();
        if (reader.name() == u"page") {
            pages.push_back({{box.value(u"width"_s).toDouble(), box.value(u"height"_s).toDouble()}, {}});
        } else if (reader.name() == u"word") {
            pages.back().words.push_back(
                {box.value(u"xMin"_s).toDouble(), box.value(u"yMin"_s).toDouble(), reader.readElementText()});
        }
    }
    // They come column by column; lines are wanted.
    for (PaperPage& page : pages) {
        std::ranges::sort(page.words, {},
                          [](const PaperWord& word) { return std::pair(qRound(word.y), word.x); });
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return pages;
}

} // namespace

PrintScheduler::PrintScheduler(const QString& spool)
{
    for (const QString& tool :
         {u"lpadmin"_s, u"lpstat"_s, u"pdftotext"_s, u"pdffonts"_s, u"pdfimages"_s, u"pdftoppm"_s}) {
        if (QStandardPaths::findExecutable(tool).isEmpty() &&
            QStandardPaths::findExecutable(tool, {u"/usr/sbin"_s, u"/sbin"_s}).isEmpty()) {
            m_whyNot = u"there is no "_s + tool + u" on this machine"_s;
            return;
        }
    }
    if (!QFile::exists(kQueueKind)) {
        m_whyNot = u"the package cups-filters is not installed"_s;
        return;
    }
    // The filters run as another user, who has to get in.
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    qputenv("HOME", m_folder.path().toLocal8Bit()); // queues and papers the user has chosen are kept there
    m_daemon.setProcessChannelMode(QProcess::MergedChannels);
    QStringList arguments{QStringLiteral(QUILLABY_SCHEDULER), m_folder.path()};
    if (!spool.isEmpty()) {
        arguments << spool;
    }
    m_daemon.start(u"/bin/bash"_s, arguments);
    const QString socket = m_folder.filePath(u"run/cups.sock"_s);
    const bool ready = WaitFor([&] {
        m_daemon.waitForFinished(1);
        return QFile::exists(socket) || m_daemon.state() == QProcess::NotRunning;
    });
    if (!ready || !QFile::exists(socket)) {
        m_whyNot = u"no scheduler can run here: "_s + QString::fromLocal8Bit(m_daemon.readAll()).trimmed();
        return;
    }
    qputenv("CUPS_SERVER", socket.toLocal8Bit());
}

PrintScheduler::~PrintScheduler()
{
    Stop();
    qunsetenv("CUPS_SERVER");
}

void PrintScheduler::Stop()
{
    m_daemon.terminate();
    if (!m_daemon.waitForFinished(kPatience)) {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
}

QString PrintScheduler::Run(const QString& command, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, environment.value(u"PATH"_s) + u":/usr/sbin:/sbin"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    QString program = QStandardPaths::findExecutable(command);
    if (program.isEmpty()) {
        program = QStandardPaths::findExecutable(command, {u"/usr/sbin"_s, u"/sbin"_s});
    }
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(kPatience)) << command.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << command.toStdString() << ": "
                                     << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

void PrintScheduler::AddQueue(const QString& name, const QString& paper)
{
    const QString file = u"file:"_s + m_folder.filePath(u"out/"_s + name + u".pdf"_s);
    Run(u"lpadmin"_s, {u"-p"_s, name, u"-E"_s, u"-v"_s, file, u"-P"_s, kQueueKind});
    Run(u"lpadmin"_s, {u"-p"_s, name, u"-o"_s, u"PageSize="_s + paper});
}

QString PrintScheduler::Printed(const QString& queue)
{
    EXPECT_TRUE(WaitFor([this] { return Jobs().isEmpty(); })) << Jobs().toStdString();
    QString file = m_folder.filePath(u"out/"_s + queue + u".pdf"_s);
    EXPECT_TRUE(QFile::exists(file)) << "nothing was printed on " << queue.toStdString();
    return file;
}

std::vector<PaperPage> PrintScheduler::PrintedPages(const QString& queue)
{
    const QString file = Printed(queue);
    return ReadWords(Run(u"pdftotext"_s, {u"-bbox"_s, file, u"-"_s}).toUtf8());
}
