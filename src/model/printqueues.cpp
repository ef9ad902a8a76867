#include "model/printqueues.h"

#include <QElapsedTimer>

#include <cups/cups.h>

#include <algorithm>
#include <cstring>
#include <memory>

QSet<QString> knownPrinters;

namespace {

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using Ipp = std::unique_ptr<ipp_t, IppDeleter>;

struct HttpCloser
{
    void operator()(http_t *connection) const { httpClose(connection); }
};

constexpr int longestWait = 2000;  // ms
constexpr int longestPeace = 5000; // ms

using Http = std::unique_ptr<http_t, HttpCloser>;

/// One of its own, since that of libcups knows no limit of time.
Http connect()
{
    Http http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                           longestWait, nullptr));
    if (http)
        httpSetTimeout(
            http.get(), longestWait / 1000.0, [](http_t *, void *) { return 0; }, nullptr);
    return http;
}

ipp_t *newRequest(std::initializer_list<const char *> wanted)
{
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_CONST_TAG(IPP_TAG_KEYWORD),
                  "requested-attributes", int(wanted.size()), nullptr, wanted.begin());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

Ipp getPrinters(std::initializer_list<const char *> wanted, PrintSystem *state)
{
    static Http kept;
    static QElapsedTimer silence;
    *state = PrintSystem::Silent;
    if (silence.isValid() && !silence.hasExpired(longestPeace))
        return nullptr;
    silence.invalidate();

    // The scheduler may have gone, and come back, since the connection was used last.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!kept)
            kept = connect();
        if (!kept)
            break;
        QElapsedTimer clock;
        clock.start();
        Ipp answer(cupsDoRequest(kept.get(), newRequest(wanted), "/")); // owns the request
        if (answer) {
            *state = PrintSystem::Answers;
            return answer;
        }
        kept.reset();
        if (clock.hasExpired(longestWait)) {
            silence.start();
            return nullptr;
        }
    }
    *state = PrintSystem::Refuses;
    return nullptr;
}

QString text(ipp_attribute_t *attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

QList<PrintQueue> queuesOf(ipp_t *answer)
{
    QList<PrintQueue> queues;
    if (!answer)
        return queues;

    PrintQueue queue;
    const auto finishQueue = [&] {
        if (!queue.name.isEmpty())
            queues.append(queue);
        queue = {};
    };
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer); attribute;
         attribute = ippNextAttribute(answer)) {
        const char *name = ippGetName(attribute);
        if (ippGetGroupTag(attribute) != IPP_TAG_PRINTER || !name)
            finishQueue(); // the separator between two printers
        else if (std::strcmp(name, "printer-name") == 0)
            queue.name = text(attribute);
        else if (std::strcmp(name, "device-uri") == 0)
            queue.deviceUri = text(attribute);
    }
    finishQueue();
    return queues;
}

} // namespace

QList<PrintQueue> printQueues(PrintSystem *state)
{
    PrintSystem ignored;
    QList<PrintQueue> queues =
        queuesOf(getPrinters({"printer-name", "device-uri"}, state ? state : &ignored).get());
    std::stable_sort(queues.begin(), queues.end(), [](const PrintQueue &a, const PrintQueue &b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return queues;
}

QSet<QString> queueNames(PrintSystem *state)
{
    PrintSystem ignored;
    const QList<PrintQueue> queues =
        queuesOf(getPrinters({"printer-name"}, state ? state : &ignored).get());
    QSet<QString> names;
    for (const PrintQueue &queue : queues)
        names.insert(queue.name);
    return names;
}

bool isPrintSystemReachable()
{
    PrintSystem state;
    return getPrinters({"printer-name"}, &state) != nullptr;
}
