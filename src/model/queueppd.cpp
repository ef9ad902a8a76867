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

/// Empty if there is no such file.
QByteArray textOf(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Texts with the same digest are one.
QByteArray digestOf(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha1);
}

/// The keywords of each PPD that has been opened, by the digest of its text.
QHash<QByteArray, QStringList> &knownKeywords()
{
    static QHash<QByteArray, QStringList> known;
    return known;
}

/// The full parse takes milliseconds, and on a server with a thousand queues most are of others,
/// and many of the same model.
int rowCountOf(const QByteArray &path)
{
    const QByteArray text = textOf(path);
    if (!mayBeMakers(text))
        return 0;
    static QHash<QByteArray, int> counts;
    const QByteArray digest = digestOf(text);
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
    , digest_(path_.isEmpty() ? QByteArray() : digestOf(textOf(path_)))
{
}

QueuePpd::~QueuePpd()
{
    if (ppd_)
        ppdClose(ppd_);
    if (!path_.isEmpty() && !keepFile_)
        unlink(path_.constData());
}

bool QueuePpd::open()
{
    if (ppd_ || path_.isEmpty())
        return ppd_;
    ppd_ = ppdOpenFile(path_.constData());
    if (!ppd_)
        return false;
    QStringList keywords;
    for (int i = 0; i < ppd_->num_groups; ++i) {
        const ppd_group_t &group = ppd_->groups[i];
        for (int j = 0; j < group.num_options; ++j)
            keywords.append(QString::fromLatin1(group.options[j].keyword));
    }
    knownKeywords().insert(digest_, keywords);
    return true;
}

std::unique_ptr<OptionStore> QueuePpd::makeStore()
{
    if (!open())
        return nullptr;
    auto store = std::make_unique<OptionStore>();
    importPpd(ppd_, store.get());
    return store;
}

std::optional<QStringList> QueuePpd::optionKeywords()
{
    if (!knownKeywords().contains(digest_) && !open())
        return std::nullopt;
    return knownKeywords().value(digest_);
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
