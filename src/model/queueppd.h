#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class OptionStore;
struct PrintQueue;
struct ppd_file_s; // of libcups, which stays out of the headers that pages include

/// The PPD of a print queue: a temporary copy (cupsGetPPD) that is closed and removed with the
/// object. For a queue that has none, or whose PPD can't be opened, it answers nothing.
class QueuePpd
{
public:
    explicit QueuePpd(const QString &queue);
    QueuePpd(const QueuePpd &) = delete;
    QueuePpd &operator=(const QueuePpd &) = delete;
    ~QueuePpd();

    /// A new store filled by importPpd(); null if there is nothing to answer.
    std::unique_ptr<OptionStore> makeStore();
    /// The option keywords in the order of the file, group by group; no list if there is nothing to
    /// answer. A text that has been opened before is not parsed again, which takes milliseconds.
    std::optional<QStringList> optionKeywords();

    /// Leaves the temporary copy on disk, and the PPD open, if it is, as long as the object lives.
    void leaveFile() { keepFile_ = true; }

private:
    bool open();

    QByteArray path_;
    QByteArray digest_; ///< of the PPD's text
    ppd_file_s *ppd_ = nullptr;
    bool keepFile_ = false;
};

/// How many rows the queue has in the printer table: one for each filter line of the maker, none
/// for a queue of other makers or without a usable PPD. The PPD is read anew only when the queue
/// has been set up or changed since the last time.
int makerRowCount(const PrintQueue &queue);
