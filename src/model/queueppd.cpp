#include "model/queueppd.h"

#include "model/maker.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "model/printqueues.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QPair>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <cstring>
#include <unistd.h>

namespace {

bool contains(const char *text, const char *part)
{
    return text && std::strstr(text, part) != nullptr;
}

bool isMaker(const char *manufacturer)
{
    for (const char *name : Maker::brands) {
        if (manufacturer && std::strcmp(manufacturer, name) == 0)
            return true;
    }
    return false;
}

bool isMakerFilter(const char *line)
{
    for (const char *filter : Maker::filters) {
        if (contains(line, filter))
            return true;
    }
    return false;
}

/// How many filter lines name a filter of the maker; 0 for a foreign printer.
int makerFilterCount(ppd_file_t *ppd)
{
    if (!ppd || !isMaker(ppd->manufacturer))
        return 0;
    const ppd_attr_t *device = ppdFindAttr(ppd, "1284DeviceID", nullptr);
    if (!device || !contains(device->value, Maker::deviceId))
        return 0;
    int count = 0;
    for (int i = 0; i < ppd->num_filters; ++i)
        count += isMakerFilter(ppd->filters[i]) ? 1 : 0;
    return count;
}

/// False only if the text of a PPD rules the maker out.
bool mayBeMakers(const QByteArray &text)
{
    // libcups reads compressed PPDs too (RFC 1952); their text can't be judged from here.
    if (text.startsWith("\x1f\x8b"))
        return true;
    for (const char *name : Maker::brands) {
        if (text.contains(name))
            return true;
    }
    return false;
}

/// The full parse takes milliseconds, and on a server with a thousand queues most are of others,
/// and many of the same model.
int rowCountOf(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    if (!mayBeMakers(text))
        return 0;
    static QHash<QByteArray, int> counts;
    const QByteArray digest = QCryptographicHash::hash(text, QCryptographicHash::Sha1);
    auto known = counts.constFind(digest);
    if (known == counts.constEnd()) {
        ppd_file_t *ppd = ppdOpenFile(path.constData());
        known = counts.insert(digest, makerFilterCount(ppd));
        if (ppd)
            ppdClose(ppd);
    }
    return *known;
}

} // namespace

QueuePpd::QueuePpd(const QString &queue)
    : path_(fetchPpd(queue))
{
    if (!path_.isEmpty())
        ppd_ = ppdOpenFile(path_.constData());
}

QueuePpd::~QueuePpd()
{
    if (ppd_)
        ppdClose(ppd_);
    if (!path_.isEmpty() && !keepFile_)
        unlink(path_.constData());
}

std::unique_ptr<OptionStore> QueuePpd::makeStore() const
{
    if (!ppd_)
        return nullptr;
    auto store = std::make_unique<OptionStore>();
    importPpd(ppd_, store.get());
    return store;
}

QStringList QueuePpd::optionKeywords() const
{
    QStringList keywords;
    for (int i = 0; ppd_ && i < ppd_->num_groups; ++i) {
        const ppd_group_t &group = ppd_->groups[i];
        for (int j = 0; j < group.num_options; ++j)
            keywords.append(QString::fromLatin1(group.options[j].keyword));
    }
    return keywords;
}

int makerRowCount(const PrintQueue &queue)
{
    static QHash<QString, QPair<qint64, int>> counts; // by name, with the time of set-up
    const auto known = counts.constFind(queue.name);
    if (known != counts.constEnd() && known->first == queue.configured)
        return known->second;
    const QByteArray path = fetchPpd(queue.name);
    const int count = path.isEmpty() ? 0 : rowCountOf(path);
    const bool isCertain = !path.isEmpty() || cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
    if (!path.isEmpty())
        unlink(path.constData());
    // Within a second it may be changed again, and bear the same time.
    if (isCertain && queue.configured > 0 &&
        queue.configured + 1 < QDateTime::currentSecsSinceEpoch())
        counts.insert(queue.name, {queue.configured, count});
    return count;
}
