#include "support/recordingdialog.h"

#include "model/boption.h"
#include "model/optionstore.h"
#include "storage/settingsfile.h"
#include "support/storebuilder.h"

#include <QFile>

#include <utility>

RecordingDialog::RecordingDialog()
{
    currentCfgPath = directory.filePath("queue.cfg");
}

RecordingDialog::~RecordingDialog()
{
    currentStore = nullptr;
    currentCfgPath.clear();
}

void RecordingDialog::selectPrinter(const QString &options, const QString &settings)
{
    stores.push_back(makeStore(options));
    currentStore = stores.back().get();
    QFile file(currentCfgPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(settings.toUtf8()) < 0)
        qFatal("can't write %s", qPrintable(currentCfgPath));
}

QString RecordingDialog::current(const QString &keyword)
{
    const bOption *option = currentStore->find(keyword);
    return option ? option->currentKey() : QString();
}

QStringList RecordingDialog::takeCalls()
{
    return std::exchange(calls, {});
}

void RecordingDialog::note(const QString &slot)
{
    calls.append(remark ? slot + ' ' + remark() : slot);
}
