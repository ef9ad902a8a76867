#include "model/queueppd.h"

#include "model/maker.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"

#include <QFile>

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

/// False only if the text of the PPD rules the maker out.
bool namesMaker(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = file.readAll();
    // libcups reads compressed PPDs too (RFC 1952); their text can't be judged from here.
    if (text.startsWith("\x1f\x8b"))
        return true;
    for (const char *name : Maker::brands) {
        if (text.contains(name))
            return true;
    }
    return false;
}

} // namespace

QueuePpd::QueuePpd(const QString &queue, Filter filter)
    : path_(cupsGetPPD(queue.toUtf8().constData()))
{
    if (!path_.isEmpty() && (filter == Filter::Any || namesMaker(path_)))
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

int QueuePpd::makerFilterCount() const
{
    if (!ppd_ || !isMaker(ppd_->manufacturer))
        return 0;
    const ppd_attr_t *device = ppdFindAttr(ppd_, "1284DeviceID", nullptr);
    if (!device || !contains(device->value, Maker::deviceId))
        return 0;
    int count = 0;
    for (int i = 0; i < ppd_->num_filters; ++i)
        count += isMakerFilter(ppd_->filters[i]) ? 1 : 0;
    return count;
}

int makerRowCount(const QString &queue)
{
    return QueuePpd(queue, QueuePpd::Filter::MayBeMakers).makerFilterCount();
}
