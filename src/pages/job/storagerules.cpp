#include "pages/job/storagerules.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/maker.h"
#include "model/optionstore.h"

#include <algorithm>

namespace {

constexpr int accessCodeLength = 4;
constexpr int boxNumberLength = 4;
constexpr int lastBox = 1000;

StorageOffer offerIf(bool possible)
{
    return possible ? StorageOffer::Add : StorageOffer::Remove;
}

} // namespace

StorageFault checkStorage(StorageKind kind, const QString &accessCode, const QString &boxNumber)
{
    const int codeLength = accessCode.size();
    const int box = boxNumber.toInt();
    switch (kind) {
    case StorageKind::JobStorage:
        if (codeLength != accessCodeLength && codeLength != 0)
            return StorageFault::AccessCode;
        break;
    case StorageKind::PrivatePrint:
        if (codeLength != accessCodeLength)
            return StorageFault::AccessCode;
        break;
    case StorageKind::CustomBox:
        if (box < 1 || box > lastBox)
            return StorageFault::BoxNumber;
        break;
    case StorageKind::Other:
        break;
    }
    return StorageFault::None;
}

QString paddedBoxNumber(const QString &number)
{
    return number.rightJustified(boxNumberLength, QLatin1Char('0'));
}

QString digitsOf(const QString &text)
{
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
    return digits;
}

StorageOffers storageOffers(const OptionStore &store)
{
    if (!store.find(QStringLiteral("BXCollate1")))
        return {StorageOffer::Remove, StorageOffer::Remove};

    StorageOffers offers;
    const bOption *installed = store.find(QLatin1String(Maker::jobStorageUnit));
    if (!installed || !installed->current())
        return offers;
    const QString storage = installed->currentKey();
    if (store.find(QStringLiteral("cPrivatePrint")))
        offers.privatePrint = offerIf(storage != Keys::none);
    if (store.find(QStringLiteral("cCustomBox")))
        offers.customBox =
            offerIf(storage == QLatin1String("SSDrive") || storage == QLatin1String("HardDisk"));
    return offers;
}
