#include "support/recordingdialog.h"

#include "model/boption.h"
#include "model/optionstore.h"
#include "support/storebuilder.h"

#include <utility>

RecordingDialog::~RecordingDialog()
{
    currentStore = nullptr;
}

void RecordingDialog::selectPrinter(const QString &options)
{
    store = makeStore(options);
    currentStore = store.get();
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
