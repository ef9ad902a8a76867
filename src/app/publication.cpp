#include "app/publication.h"

#include "model/queueppd.h"
#include "storage/command.h"

#include <QProcess>

Publication::Publication() = default;

Publication::~Publication() = default;

QString Publication::command(const QString &printer, const QStringList &keywords,
                             const Settings &settings)
{
    QString command = QStringLiteral("lpoptions -p ") + printer;
    for (const QString &keyword : keywords) {
        const QString value = settings.value(keyword);
        if (!value.isEmpty())
            command += QStringLiteral(" -o ") + keyword + QLatin1Char('=') + value;
    }
    return command;
}

bool Publication::run(const QString &printer, const Settings &settings)
{
    auto ppd = std::make_unique<QueuePpd>(printer);
    const std::optional<QStringList> keywords = ppd->optionKeywords();
    // Without a PPD nothing can be published, and nobody should believe that it was.
    if (!keywords || !isOneWord(printer))
        return false;
    processes.push_back(std::make_unique<QProcess>());
    if (runCommandInLoop(processes.back().get(), command(printer, *keywords, settings)))
        return true;
    ppd->leaveFile();
    failedPpds.push_back(std::move(ppd));
    return false;
}
