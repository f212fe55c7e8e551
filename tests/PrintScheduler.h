#pragma once

#include <QProcess>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

/// A word of a printed page and where its box begins, in points from the left upper corner.
struct PaperWord {
    double x = 0;
    double y = 0;
    QString text;
};

/// One page that came out of a queue.
struct PaperPage {
    QSizeF size; ///< in points
    std::vector<PaperWord> words;
};

/// A print scheduler of the test's own, with queues that deliver into files. The programs of this process
/// find it as the system's while it lives.
class PrintScheduler
{
public:
    /// @param spool  "" for an ordinary spool, "full" for one of 64 KiB that is nearly full
    explicit PrintScheduler(const QString& spool = {});
    ~PrintScheduler();
    PrintScheduler(const PrintScheduler&) = delete;
    PrintScheduler(PrintScheduler&&) = delete;
    PrintScheduler& operator=(const PrintScheduler&) = delete;
    PrintScheduler& operator=(PrintScheduler&&) = delete;

    /// Why no scheduler runs; "" when one does.
    [[nodiscard]] QString WhyNot() const { return m_whyNot; }

    /// Makes a queue of this name that writes what it prints to a PDF file.
    void AddQueue(const QString& name, const QString& paper);
    void MakeDefault(const QString& name) { Run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), name}); }
    /// Ends the scheduler, as when the machine that prints is switched off.
    void Stop();

    /// Runs a command of the print service; its success is expected. @return what it wrote
    QString Run(const QString& command, const QStringList& arguments);

    /// What the queue printed last, as a file; waits until every job is done.
    [[nodiscard]] QString Printed(const QString& queue);
    /// Its pages, read back.
    [[nodiscard]] std::vector<PaperPage> PrintedPages(const QString& queue);
    /// The jobs that wait or are printed.
    [[nodiscard]] QString Jobs() { return Run(QStringLiteral("lpstat"), {QStringLiteral("-o")}); }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_whyNot;
};
