#pragma once

#include <QString>

class OptionStore;

/// Where a printer may keep jobs, and what each place needs to be told.

/// What an item of the storage list stands for.
enum class StorageKind
{
    Other, ///< proof and hold, or any other choice of the PPD that needs no input
    JobStorage,
    PrivatePrint,
    CustomBox,
};

/// What is wrong with the input for a place.
enum class StorageFault
{
    None,
    AccessCode,
    BoxNumber,
};

/// What to do about an item of the list that no PPD has.
enum class StorageOffer
{
    Keep, ///< leave it there or not there
    Add,
    Remove,
};

struct StorageOffers
{
    StorageOffer privatePrint = StorageOffer::Keep;
    StorageOffer customBox = StorageOffer::Keep;
};

/// An access code has four digits; job storage does without one too. Boxes go from 1 to 1000.
StorageFault checkStorage(StorageKind kind, const QString &accessCode, const QString &boxNumber);
/// Four digits with zeros in front.
QString paddedBoxNumber(const QString &number);
/// The digits 0 to 9 of a text.
QString digitsOf(const QString &text);
/// What the installed storage allows: a private print needs any at all, a box a disk.
StorageOffers storageOffers(const OptionStore &store);
