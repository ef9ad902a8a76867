#include "model/printqueues.h"

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

Ipp getPrinters()
{
    static const char *const wanted[] = {"printer-name", "device-uri"};
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_CONST_TAG(IPP_TAG_KEYWORD),
                  "requested-attributes", 2, nullptr, wanted);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return Ipp(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"));
}

QString text(ipp_attribute_t *attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

} // namespace

QList<PrintQueue> printQueues(bool *answered)
{
    QList<PrintQueue> queues;
    const Ipp answer = getPrinters();
    if (answered)
        *answered = answer != nullptr;
    if (!answer)
        return queues;

    PrintQueue queue;
    const auto finishQueue = [&] {
        if (!queue.name.isEmpty())
            queues.append(queue);
        queue = {};
    };
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer.get()); attribute;
         attribute = ippNextAttribute(answer.get())) {
        const char *name = ippGetName(attribute);
        if (ippGetGroupTag(attribute) != IPP_TAG_PRINTER || !name)
            finishQueue(); // the separator between two printers
        else if (std::strcmp(name, "printer-name") == 0)
            queue.name = text(attribute);
        else if (std::strcmp(name, "device-uri") == 0)
            queue.deviceUri = text(attribute);
    }
    finishQueue();

    std::stable_sort(queues.begin(), queues.end(), [](const PrintQueue &a, const PrintQueue &b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return queues;
}

QSet<QString> queueNames()
{
    QSet<QString> names;
    const QList<PrintQueue> queues = printQueues();
    for (const PrintQueue &queue : queues)
        names.insert(queue.name);
    return names;
}

bool isPrintSystemReachable()
{
    return getPrinters() != nullptr;
}
