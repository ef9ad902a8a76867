#include "model/printserverconnection.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr qint64 longestPeace = 5000; // ms
constexpr double tick = 0.1;          // s

std::atomic<qint64> silentUntil{0};

qint64 now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Enough clients that wait for a hung scheduler, and its socket takes no more: libcups tells that
/// like a refusal.
bool isCrowded(const char *server)
{
    sockaddr_un address{};
    const std::size_t length = std::strlen(server);
    if (server[0] != '/' || length >= sizeof address.sun_path)
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, server, length);
    const int probe = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const bool isConnected =
        ::connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    const bool hasToWait = !isConnected && errno == EAGAIN;
    if (probe >= 0)
        close(probe);
    return hasToWait;
}

/// Whether there is anybody at the other end. Where a socket takes no more, later versions of
/// libcups (2.4.10) believe in a connection all the same and try to talk to it for ever.
bool isConnected(http_t *http)
{
    sockaddr_storage peer;
    socklen_t length = sizeof peer;
    return getpeername(httpGetFd(http), reinterpret_cast<sockaddr *>(&peer), &length) == 0;
}

/// Whether the other end has closed it since, after which libcups would connect anew by itself.
bool isClosed(http_t *http)
{
    char byte;
    return recv(httpGetFd(http), &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 0;
}

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using Ipp = std::unique_ptr<ipp_t, IppDeleter>;

ipp_t *newRequest(std::initializer_list<const char *> attributes)
{
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_CONST_TAG(IPP_TAG_KEYWORD),
                  "requested-attributes", int(attributes.size()), nullptr, attributes.begin());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

QString text(ipp_attribute_t *attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

QList<PrintQueue> queuesOf(ipp_t *answer)
{
    QList<PrintQueue> queues;
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
        else if (std::strcmp(name, "printer-config-change-time") == 0)
            queue.configured = ippGetInteger(attribute, 0);
    }
    finishQueue();
    return queues;
}

} // namespace

void PrintServerConnection::Closer::operator()(_http_s *http) const
{
    httpClose(http);
}

PrintServerConnection::PrintServerConnection(WaitOn waitOn)
    : waitOn_(std::move(waitOn))
{
}

PrintServerConnection::~PrintServerConnection() = default;

bool PrintServerConnection::connect()
{
    startClock();
    if (http_ && !isClosed(http_.get()))
        return true;
    http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                             int(longestWait), nullptr));
    if (http_ && !isConnected(http_.get()))
        http_.reset();
    if (!http_) {
        timedOut_ = now() - start_ >= longestWait || isCrowded(cupsServer());
        return false;
    }
    httpSetTimeout(
        http_.get(), tick,
        [](http_t *, void *self) {
            return static_cast<PrintServerConnection *>(self)->waitsOn() ? 1 : 0;
        },
        this);
    startClock();
    return true;
}

void PrintServerConnection::startClock()
{
    start_ = now();
    timedOut_ = false;
}

bool PrintServerConnection::waitsOn()
{
    const qint64 waited = now() - start_;
    if (waited >= longestWait)
        silentUntil = now() + longestPeace;
    timedOut_ = !waitOn_(waited);
    return !timedOut_;
}

QList<PrintQueue> PrintServerConnection::queues(std::initializer_list<const char *> attributes,
                                                PrintSystem *state)
{
    // The scheduler may have gone, and come back, since the connection was used last.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!connect())
            break;
        const Ipp answer(cupsDoRequest(http_.get(), newRequest(attributes), "/"));
        if (answer) {
            silentUntil = 0;
            *state = PrintSystem::Answers;
            return queuesOf(answer.get());
        }
        http_.reset();
        if (timedOut_)
            break;
    }
    *state = timedOut_ ? PrintSystem::Silent : PrintSystem::Refuses;
    silentUntil = timedOut_ ? now() + longestPeace : 0;
    return {};
}

QByteArray PrintServerConnection::fetchPpd(const QString &queue)
{
    connect(); // without one, a PPD on this machine is found all the same
    QByteArray path(cupsGetPPD2(http_.get(), queue.toUtf8().constData()));
    if (timedOut_)
        http_.reset();
    return path;
}

bool PrintServerConnection::isServerSilent()
{
    return now() < silentUntil;
}
