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
        m_complete = Find(getNamedDest, "cupsGetNamedDest") && Find(freeDests, "cupsFreeDests") &&
                     Find(getOption, "cupsGetOption") && Find(createJob, "cupsCreateJob") &&
                     Find(startDocument, "cupsStartDocument") &&
                     Find(writeRequestData, "cupsWriteRequestData") &&
                     Find(finishDocument, "cupsFinishDocument") && Find(cancelJob, "cupsCancelJob2") &&
                     Find(lastError, "cupsLastError") && Find(lastErrorString, "cupsLastErrorString") &&
                     Find(doRequest, "cupsDoRequest") && Find(newRequest, "ippNewRequest") &&
                     Find(addString, "ippAddString") && Find(findAttribute, "ippFindAttribute") &&
                     Find(getString, "ippGetString") && Find(getInteger, "ippGetInteger") &&
                     Find(getCount, "ippGetCount") && Find(deleteMessage, "ippDelete") &&
                     Find(mediaForName, "pwgMediaForPWG") && Find(mediaForPpd, "pwgMediaForPPD");
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

/// A queue with the options its user has chosen for it. Frees itself.
class Destination
{
public:
    /// @param name  of the queue; nullptr for the default one
    Destination(const Cups& cups, const char* name)
        : m_cups(cups), m_queue(cups.getNamedDest(CUPS_HTTP_DEFAULT, name, nullptr))
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
    QueueState(const Cups& cups, const Destination& queue)
        : m_cups(cups), m_answer(nullptr, cups.deleteMessage)
    {
        const char* uri = queue.Option("printer-uri-supported");
        if (uri == nullptr) {
            return;
        }
        ipp_t* request = cups.newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
        cups.addString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
        m_answer.reset(cups.doRequest(CUPS_HTTP_DEFAULT, request, "/")); // takes the request
    }

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

QPageSize PaperOf(const Cups& cups, const Destination& queue)
{
    // What the user has set for the queue comes before what the queue has of its own.
    for (const QByteArray& name : {QByteArray(queue.Option("media")), QByteArray(queue.Option("PageSize")),
                                   QueueState(cups, queue).DefaultMedia()}) {
        if (const std::optional<QPageSize> paper = PaperNamed(cups, name.split(',').first())) {
            return *paper;
        }
    }
    return UsualPaper(QLocale());
}

/// One job; what is not finished is cancelled, so that no half printout waits in the queue.
class Job
{
public:
    Job(const Cups& cups, const cups_dest_t& queue, const QByteArray& title)
        : m_cups(cups), m_queue(queue), m_title(title),
          m_id(cups.createJob(CUPS_HTTP_DEFAULT, queue.name, title.constData(), queue.num_options,
                              queue.options))
    {}
    ~Job()
    {
        if (m_id > 0 && !m_finished) {
            m_cups.cancelJob(CUPS_HTTP_DEFAULT, m_queue.name, m_id, 0);
        }
    }
    Job(const Job&) = delete;
    Job(Job&&) = delete;
    Job& operator=(const Job&) = delete;
    Job& operator=(Job&&) = delete;

    [[nodiscard]] Outcome Send(const QByteArray& pdf)
    {
        if (m_id <= 0 || m_cups.startDocument(CUPS_HTTP_DEFAULT, m_queue.name, m_id, m_title.constData(),
                                              CUPS_FORMAT_PDF, 1) != HTTP_STATUS_CONTINUE) {
            return Outcome::Failure(m_cups.Reason());
        }
        constexpr qsizetype kPiece = 65536;
        bool whole = true;
        for (qsizetype sent = 0; whole && sent < pdf.size(); sent += kPiece) {
            const QByteArray piece = pdf.sliced(sent, std::min(kPiece, pdf.size() - sent));
            whole = m_cups.writeRequestData(CUPS_HTTP_DEFAULT, piece.constData(), size_t(piece.size())) ==
                    HTTP_STATUS_CONTINUE;
        }
        // Also after a piece that was not taken: this is where the service says why.
        m_finished =
            m_cups.finishDocument(CUPS_HTTP_DEFAULT, m_queue.name) <= IPP_STATUS_OK_EVENTS_COMPLETE && whole;
        return m_finished ? Outcome{} : Refused();
    }

private:
    /// Why the service did not take the pages.
    [[nodiscard]] Outcome Refused() const
    {
        const QString reason = m_cups.Reason();
        if (m_cups.lastError() == IPP_STATUS_ERROR_REQUEST_VALUE) { // how it says that its disk is full
            return Outcome::Failure(u"The print service has no room for the pages. (%1)"_s.arg(reason));
        }
        return Outcome::Failure(reason);
    }

    const Cups& m_cups;
    const cups_dest_t& m_queue;
    QByteArray m_title;
    int m_id;
    bool m_finished = false;
};

} // namespace

DefaultPrinter CupsPrinters::Default()
{
    const Cups cups;
    if (const Outcome loaded = cups.Loaded(); !loaded.ok) {
        return {.name = {}, .paper = UsualPaper(QLocale()), .reason = loaded.reason};
    }
    const Destination queue(cups, nullptr);
    if (queue.Queue() == nullptr) {
        return {.name = {}, .paper = UsualPaper(QLocale()), .reason = cups.Reason()};
    }
    return {.name = QString::fromUtf8(queue.Queue()->name), .paper = PaperOf(cups, queue), .reason = {}};
}

Outcome CupsPrinters::Print(const PrintedDocument& document, const DefaultPrinter& printer,
                            const PagesDone& pagesDone)
{
    const Cups cups;
    if (Outcome loaded = cups.Loaded(); !loaded.ok) {
        return loaded;
    }
    const Destination queue(cups, printer.name.toUtf8().constData());
    if (queue.Queue() == nullptr) {
        return Outcome::Failure(cups.Reason());
    }
    // A stopped queue takes jobs and keeps them: who tries again would get every try when it runs again.
    if (const QueueState state(cups, queue); state.IsStopped()) {
        return Outcome::Failure(u"The printer is stopped. %1"_s.arg(state.Reasons()).trimmed());
    }
    QByteArray pdf;
    if (Outcome painted = MakePdf(document, printer.paper, pdf, pagesDone); !painted.ok) {
        return painted;
    }
    constexpr qsizetype kLongestName = 80; // a name of a job has 255 bytes, and a title any length
    return Job(cups, *queue.Queue(), document.name.left(kLongestName).toUtf8()).Send(pdf);
}
