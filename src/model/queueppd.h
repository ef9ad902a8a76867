#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

class OptionStore;
struct PrintQueue;
struct ppd_file_s; // of libcups, which stays out of the headers that pages include

/// The PPD of a print queue: a temporary copy (cupsGetPPD) that is closed and removed with the
/// object. A queue that has none, or whose PPD can't be opened, gives an object that is not open
/// and answers nothing.
class QueuePpd
{
public:
    explicit QueuePpd(const QString &queue);
    QueuePpd(const QueuePpd &) = delete;
    QueuePpd &operator=(const QueuePpd &) = delete;
    ~QueuePpd();

    bool isOpen() const { return ppd_ != nullptr; }

    /// A new store filled by importPpd(); null if the PPD is not open.
    std::unique_ptr<OptionStore> makeStore() const;
    /// The option keywords in the order of the file, group by group.
    QStringList optionKeywords() const;

    /// Leaves the temporary copy on disk, and the PPD open as long as the object lives.
    void leaveFile() { keepFile_ = true; }

private:
    QByteArray path_;
    ppd_file_s *ppd_ = nullptr;
    bool keepFile_ = false;
};

/// How many rows the queue has in the printer table: one for each filter line of the maker, none
/// for a queue of other makers or without a usable PPD. The PPD is read anew only when the queue
/// has been set up or changed since the last time.
int makerRowCount(const PrintQueue &queue);
