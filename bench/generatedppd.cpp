#include "generatedppd.h"

#include <QFile>
#include <QTextStream>

#include <random>

bool writeGeneratedPpd(const QString &path, const GeneratedPpd &measures)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QTextStream out(&file);
    out << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"BENCH.PPD\"\n"
           "*Manufacturer: \"Brixola\"\n*Product: \"(Bench)\"\n*ModelName: \"Brixola Bench\"\n"
           "*ShortNickName: \"Bench\"\n*NickName: \"Bench\"\n*PSVersion: \"(3010.000) 0\"\n"
           "*cupsFilter: \"application/vnd.cups-postscript 0 bixfilter_F\"\n"
           "*1284DeviceID: \"MFG:Brixola;MDL:Bench;\"\n";

    const auto optionName = [](int option) {
        switch (option) {
        case 0:
            return QStringLiteral("PageSize");
        case 1:
            return QStringLiteral("Duplex");
        case 2:
            return QStringLiteral("MediaType");
        case 3:
            return QStringLiteral("InputSlot");
        case 4:
            return QStringLiteral("OutputBin");
        default:
            return QStringLiteral("Bench%1").arg(option);
        }
    };
    const auto choiceName = [](int choice) { return QStringLiteral("Value%1").arg(choice); };

    for (int option = 0; option < measures.options; ++option) {
        const QString name = optionName(option);
        out << "*OpenUI *" << name << "/Option number " << option << ": PickOne\n"
            << "*OrderDependency: 10 AnySetup *" << name << "\n"
            << "*Default" << name << ": " << choiceName(option % measures.choicesPerOption) << "\n";
        for (int choice = 0; choice < measures.choicesPerOption; ++choice)
            out << "*" << name << " " << choiceName(choice) << "/Choice " << choice << ": \"<</B "
                << choice << ">>setpagedevice\"\n";
        out << "*CloseUI: *" << name << "\n";
    }

    std::mt19937 random(1);
    for (int written = 0; written < measures.constraints; ++written) {
        const int first = int(random() % unsigned(measures.options));
        const int second = int(random() % unsigned(measures.options));
        out << "*UIConstraints: *" << optionName(first) << " "
            << choiceName(int(random() % unsigned(measures.choicesPerOption))) << " *"
            << optionName(second == first ? (first + 1) % measures.options : second) << " "
            << choiceName(int(random() % unsigned(measures.choicesPerOption))) << "\n";
    }
    // Of options without ranks the first value alone blocks the second, and few targets get all of
    // the blocks: so selecting the value is as much work as can be.
    constexpr int targets = 5;
    for (int rule = 0; rule < measures.rulesOnOneValue; ++rule) {
        const int third = rule / targets;
        out << "*cupsUIConstraints: \"*Bench5 Value0 *Bench" << 6 + rule % targets
            << " Value0 *Bench" << 6 + targets + third / measures.choicesPerOption << " "
            << choiceName(third % measures.choicesPerOption) << "\"\n";
    }
    out.flush();
    return file.error() == QFile::NoError && out.status() == QTextStream::Ok;
}
