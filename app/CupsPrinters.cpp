#include "app/CupsPrinters.h"

#include <QLibrary>
#include <QLocale>
#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The print service's library, loaded when something is printed first: linked to the program, it would slow
/// down every start.
class Cups
{
public:
    Cups() : m_library(u"cups"_s, 2)
    {
        m_complete =
            Find(getNamedDest, "cupsGetNamedDest") && Find(freeDests, "cupsFreeDests") &&
            Find(getOption, "cupsGetOption") && Find(createJob, "cupsCreateJob") &&
            Find(startDocument, "cupsStartDocument") && Find(writeRequestData, "cupsWriteRequestData") &&
            Find(finishDocument, "cupsFinishDocument") && Find(cancelJob, "cupsCancelJob2") &&
            Find(lastError, "cupsLastError") && Find(lastErrorString, "cupsLastErrorString") &&
            Find(doRequest, "cupsDoRequest") && Find(newRequest, "ippNewRequest") &&
            Find(addString, "ippAddString") && Find(findAttribute, "ippFindAttribute") &&
            Find(getString, "ippGetString") && Find(getInteger, "ippGetInteger") &&
            Find(getCount, "ippGetCount") && Find(deleteMessage, "ippDelete") &&
            Find(mediaForName, "pwgMediaForPWG") && Find(mediaForPpd, "pwgMediaForPPD") &&
            Find(connect, "httpConnect2") && Find(close, "httpClose") && Find(setTimeout, "httpSetTimeout") &&
            Find(server, "cupsServer") && Find(port, "ippPort") && Find(encryption, "cupsEncryption") &&
            Find(setPasswordCallback, "cupsSetPasswordCB2");
    }

    /// Whether the library is there with all that is needed; if not, why.
    [[nodiscard]] Outcome Loaded() const
    {
        return m_complete ? Outcome{} : Outcome::Failure(m_library.errorString());
    }

    [[nodiscard]] QString Reason() const { return QString::fromUtf8(lastErrorString()); }

    decltype(&::cupsGetNamedDest) getNamedDest = nullptr;
    decltype(&::cupsFreeDests) freeDests = nullptr;
    decltype(&::cupsGetOption) getOption = nullptr;
    decltype(&::cupsCreateJob) createJob = nullptr;
    decltype(&::cupsStartDocument) startDocument = nullptr;
    decltype(&::cupsWriteRequestData) writeRequestData = nullptr;
    decltype(&::cupsFinishDocument) finishDocument = nullptr;
    decltype(&::cupsCancelJob2) cancelJob = nullptr;
    decltype(&::cupsLastError) lastError = nullptr;
    decltype(&::cupsLastErrorString) lastErrorString = nullptr;
    decltype(&::cupsDoRequest) doRequest = nullptr;
    decltype(&::ippNewRequest) newRequest = nullptr;
    decltype(&::ippAddString) addString = nullptr;
    decltype(&::ippFindAttribute) findAttribute = nullptr;
    decltype(&::ippGetString) getString = nullptr;
    decltype(&::ippGetInteger) getInteger = nullptr;
    decltype(&::ippGetCount) getCount = nullptr;
    decltype(&::ippDelete) deleteMessage = nullptr;
    decltype(&::pwgMediaForPWG) mediaForName = nullptr;
    decltype(&::pwgMediaForPPD) mediaForPpd = nullptr;
    decltype(&::httpConnect2) connect = nullptr;
    decltype(&::httpClose) close = nullptr;
    decltype(&::httpSetTimeout) setTimeout = nullptr;
    decltype(&::cupsServer) server = nullptr;
    decltype(&::ippPort) port = nullptr;
    decltype(&::cupsEncryption) encryption = nullptr;
    decltype(&::cupsSetPasswordCB2) setPasswordCallback = nullptr;

private:
    template <typename Function>
    bool Find(Function& function, const char* name)
    {
        // The library gives every function out as one of no arguments.
        function = reinterpret_cast<Function>(m_library.resolve(name)); // NOLINT(*-reinterpret-cast)
        return function != nullptr;
    }

    QLibrary m_library;
    bool m_complete = false;
};

/// The way to the print service. It gives up waiting after a while: a service that does not answer must not
/// hold the program for minutes.
class Connection
{
public:
    explicit Connection(const Cups& cups) : m_cups(cups)
    {
        constexpr int kMilliseconds = 5000;
        constexpr double kSeconds = 10;
        // Nobody is there to type a password: without one, a queue that wants it says so.
        cups.setPasswordCallback(
            [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; },
            nullptr);
        m_http = cups.connect(cups.server(), cups.port(), nullptr, AF_UNSPEC, cups.encryption(), 1,
                              kMilliseconds, nullptr);
        if (m_http != nullptr) {
            cups.setTimeout(m_http, kSeconds, &GiveUp, &m_gaveUp);
        }
    }
    ~Connection()
    {
        if (m_http != nullptr) {
            m_cups.close(m_http);
        }
    }
    Connection(const Connection&) = delete;
    Connection(Connection&&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection& operator=(Connection&&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_http != nullptr && !m_gaveUp; }
    [[nodiscard]] http_t* Http() const { return m_http; }

    /// Why the last request failed.
    [[nodiscard]] QString Reason() const
    {
        return IsOpen() ? m_cups.Reason() : u"The print service of this computer does not answer."_s;
    }

private:
    static int GiveUp(http_t* /*http*/, void* gaveUp)
    {
        *static_cast<bool*>(gaveUp) = true;
        return 0; // no more waiting
    }

    const Cups& m_cups;
    http_t* m_http = nullptr;
    bool m_gaveUp = false;
};

/// A queue with the options its user has chosen for it. Frees itself.
class Destination
{
public:
    /// @param name      of the queue; nullptr for the default one
    /// @param instance  the set of options; nullptr for the queue's own
    Destination(const Cups& cups, const Connection& connection, const char* name, const char* instance)
        : m_cups(cups),
          m_queue(connection.IsOpen() ? cups.getNamedDest(connection.Http(), name, instance) : nullptr)
    {}
    ~Destination()
    {
        if (m_queue != nullptr) {
            m_cups.freeDests(1, m_queue);
        }
    }
    Destination(const Destination&) = delete;
    Destination(Destination&&) = delete;
    Destination& operator=(const Destination&) = delete;
    Destination& operator=(Destination&&) = delete;

    [[nodiscard]] const cups_dest_t* Queue() const { return m_queue; }

    [[nodiscard]] const char* Option(const char* name) const
    {
        return m_cups.getOption(name, m_queue->num_options, m_queue->options);
    }

private:
    const Cups& m_cups;
    cups_dest_t* m_queue;
};

/// What a queue answers about itself.
class QueueState
{
public:
    QueueState(const Cups& cups, const Connection& connection, const Destination& queue)
        : m_cups(cups), m_answer(nullptr, cups.deleteMessage)
    {
        const char* uri = queue.Option("printer-uri-supported");
        if (uri == nullptr) {
            return;
        }
        ipp_t* request = cups.newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
        cups.addString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
        m_answer.reset(cups.doRequest(connection.Http(), request, "/")); // takes the request
    }

    [[nodiscard]] bool IsKnown() const { return Find("printer-state", IPP_TAG_ENUM) != nullptr; }

    [[nodiscard]] bool IsStopped() const
    {
        ipp_attribute_t* state = Find("printer-state", IPP_TAG_ENUM);
        return state != nullptr && m_cups.getInteger(state, 0) == IPP_PSTATE_STOPPED;
    }

    /// Its own words about its state, and the marks it gives.
    [[nodiscard]] QString Reasons() const
    {
        QStringList reasons;
        if (const QString message = Text("printer-state-message", IPP_TAG_TEXT, 0); !message.isEmpty()) {
            reasons << message;
        }
        ipp_attribute_t* marks = Find("printer-state-reasons", IPP_TAG_KEYWORD);
        for (int i = 0; marks != nullptr && i < m_cups.getCount(marks); ++i) {
            const QString mark = Text("printer-state-reasons", IPP_TAG_KEYWORD, i);
            if (mark != u"none"_s) {
                reasons << mark;
            }
        }
        return reasons.join(u", "_s);
    }

    [[nodiscard]] QByteArray DefaultMedia() const
    {
        ipp_attribute_t* media = Find("media-default", IPP_TAG_ZERO);
        const char* name = media == nullptr ? nullptr : m_cups.getString(media, 0, nullptr);
        return {name};
    }

private:
    [[nodiscard]] ipp_attribute_t* Find(const char* name, ipp_tag_t type) const
    {
        return m_answer == nullptr ? nullptr : m_cups.findAttribute(m_answer.get(), name, type);
    }

    [[nodiscard]] QString Text(const char* name, ipp_tag_t type, int element) const
    {
        ipp_attribute_t* attribute = Find(name, type);
        return attribute == nullptr
                   ? QString()
                   : QString::fromUtf8(m_cups.getString(attribute, element, nullptr)).trimmed();
    }

    const Cups& m_cups;
    std::unique_ptr<ipp_t, decltype(&::ippDelete)> m_answer;
};

/// A paper by the name that options and queues give it, in hundredths of a millimetre.
std::optional<QPageSize> PaperNamed(const Cups& cups, const QByteArray& name)
{
    if (name.isEmpty()) {
        return std::nullopt;
    }
    const pwg_media_t* media = cups.mediaForName(name.constData());
    if (media == nullptr) {
        media = cups.mediaForPpd(name.constData());
    }
    if (media == nullptr || media->width <= 0 || media->length <= 0) {
        return std::nullopt;
    }
    constexpr qreal kToMillimetres = 0.01;
    return QPageSize(QSizeF(media->width, media->length) * kToMillimetres, QPageSize::Millimeter, {},
                     QPageSize::FuzzyMatch);
}

QPageSize PaperOf(const Cups& cups, const Connection& connection, const Destination& queue)
{
    // What the user has set for the queue comes before what the queue has of its own.
    for (const QByteArray& name : {QByteArray(queue.Option("media")), QByteArray(queue.Option("PageSize")),
                                   QueueState(cups, connection, queue).DefaultMedia()}) {
        if (const std::optional<QPageSize> paper = PaperNamed(cups, name.split(',').first())) {
            return *paper;
        }
    }
    return UsualPaper(QLocale());
}

/// One job.
class Job
{
public:
    Job(const Cups& cups, const Connection& connection, const cups_dest_t& queue, const QByteArray& title)
        : m_cups(cups), m_connection(connection), m_queue(queue), m_title(title),
          m_id(cups.createJob(connection.Http(), queue.name, title.constData(), queue.num_options,
                              queue.options))
    {}

    /// Sends the pages whole. What is not sent whole is cancelled, so that no half printout waits in the
    /// queue.
    [[nodiscard]] Outcome Send(const QByteArray& pdf) const
    {
        if (m_id <= 0) {
            return Outcome::Failure(m_connection.Reason());
        }
        if (SendPages(pdf)) {
            return {};
        }
        QString reason = m_connection.Reason();
        if (m_cups.lastError() ==
            IPP_STATUS_ERROR_REQUEST_VALUE) { // how the service says that its disk is full
            reason = u"The print service has no room for the pages. (%1)"_s.arg(reason);
        }
        if (m_cups.cancelJob(m_connection.Http(), m_queue.name, m_id, 0) > IPP_STATUS_OK_EVENTS_COMPLETE) {
            reason += u"\nA part of it may still be in the queue: %1"_s.arg(m_connection.Reason());
        }
        return Outcome::Failure(reason);
    }

private:
    [[nodiscard]] bool SendPages(const QByteArray& pdf) const
    {
        http_t* http = m_connection.Http();
        if (m_cups.startDocument(http, m_queue.name, m_id, m_title.constData(), CUPS_FORMAT_PDF, 1) !=
            HTTP_STATUS_CONTINUE) {
            return false;
        }
        constexpr qsizetype kPiece = 65536;
        bool whole = true;
        for (qsizetype sent = 0; whole && sent < pdf.size(); sent += kPiece) {
            const QByteArray piece = pdf.sliced(sent, std::min(kPiece, pdf.size() - sent));
            whole = m_cups.writeRequestData(http, piece.constData(), size_t(piece.size())) ==
                    HTTP_STATUS_CONTINUE;
        }
        // Also after a piece that was not taken: this is where the service says why.
        return m_cups.finishDocument(http, m_queue.name) <= IPP_STATUS_OK_EVENTS_COMPLETE && whole;
    }

    const Cups& m_cups;
    const Connection& m_connection;
    const cups_dest_t& m_queue;
    QByteArray m_title;
    int m_id;
};

} // namespace

DefaultPrinter CupsPrinters::Default()
{
    const Cups cups;
    if (const Outcome loaded = cups.Loaded(); !loaded.ok) {
        return {.name = {}, .instance = {}, .paper = UsualPaper(QLocale()), .reason = loaded.reason};
    }
    const Connection connection(cups);
    const Destination queue(cups, connection, nullptr, nullptr);
    if (queue.Queue() == nullptr) {
        return {.name = {}, .instance = {}, .paper = UsualPaper(QLocale()), .reason = connection.Reason()};
    }
    return {.name = QString::fromUtf8(queue.Queue()->name),
            .instance = QString::fromUtf8(queue.Queue()->instance),
            .paper = PaperOf(cups, connection, queue),
            .reason = {}};
}

Outcome CupsPrinters::Print(const PrintedDocument& document, const DefaultPrinter& printer,
                            const PagesDone& pagesDone)
{
    const Cups cups;
    if (Outcome loaded = cups.Loaded(); !loaded.ok) {
        return loaded;
    }
    const Connection connection(cups);
    const QByteArray instance = printer.instance.toUtf8();
    const Destination queue(cups, connection, printer.name.toUtf8().constData(),
                            instance.isEmpty() ? nullptr : instance.constData());
    if (queue.Queue() == nullptr) {
        return Outcome::Failure(connection.Reason());
    }
    const QueueState state(cups, connection, queue);
    if (!state.IsKnown()) {
        return Outcome::Failure(connection.Reason());
    }
    // A stopped queue takes jobs and keeps them: who tries again would get every try when it runs again.
    if (state.IsStopped()) {
        const QString reasons = state.Reasons();
        return Outcome::Failure(reasons.isEmpty() ? u"The printer is stopped."_s
                                                  : u"The printer is stopped: %1"_s.arg(reasons));
    }
    QByteArray pdf;
    if (Outcome painted = MakePdf(document, printer.paper, pdf, pagesDone); !painted.ok) {
        return painted;
    }
    return Job(cups, connection, *queue.Queue(), document.name.toUtf8()).Send(pdf);
}
