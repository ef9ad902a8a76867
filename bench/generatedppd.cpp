#include "generatedppd.h"

#include <QFile>
#include <QTextStream>

#include <iterator>
#include <random>

QString generatedOption(int option)
{
    const char *const usual[] = {"PageSize", "Duplex", "MediaType", "InputSlot", "OutputBin"};
    if (option < int(std::size(usual)))
        return QLatin1String(usual[option]);
    return QStringLiteral("Bench%1").arg(option);
}

QString generatedChoice(int choice)
{
    return QStringLiteral("Value%1").arg(choice);
}

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

    for (int option = 0; option < measures.options; ++option) {
        const QString name = generatedOption(option);
        out << "*OpenUI *" << name << "/Option number " << option << ": PickOne\n"
            << "*OrderDependency: 10 AnySetup *" << name << "\n"
            << "*Default" << name << ": " << generatedChoice(option % measures.choicesPerOption)
            << "\n";
        for (int choice = 0; choice < measures.choicesPerOption; ++choice)
            out << "*" << name << " " << generatedChoice(choice) << "/Choice " << choice
                << ": \"<</B " << choice << ">>setpagedevice\"\n";
        out << "*CloseUI: *" << name << "\n";
    }

    std::mt19937 random(1);
    for (int written = 0; written < measures.constraints; ++written) {
        const int first = int(random() % unsigned(measures.options));
        const int second = int(random() % unsigned(measures.options));
        out << "*UIConstraints: *" << generatedOption(first) << " "
            << generatedChoice(int(random() % unsigned(measures.choicesPerOption))) << " *"
            << generatedOption(second == first ? (first + 1) % measures.options : second) << " "
            << generatedChoice(int(random() % unsigned(measures.choicesPerOption))) << "\n";
    }
    for (int written = 0; written < measures.threeWayRules; ++written) {
        // Apart, so that none is named twice in a rule.
        const int first = int(random() % unsigned(measures.options));
        out << "*cupsUIConstraints: \"";
        for (int condition = 0; condition < 3; ++condition)
            out << (condition > 0 ? " *" : "*")
                << generatedOption((first + condition * measures.options / 3) % measures.options)
                << " " << generatedChoice(int(random() % unsigned(measures.choicesPerOption)));
        out << "\"\n";
    }
    // Of options without ranks the first value alone blocks the second, and few targets get all of
    // the blocks: so selecting the value is as much work as can be.
    constexpr int targets = 5;
    for (int rule = 0; rule < measures.rulesOnOneValue; ++rule) {
        const int third = rule / targets;
        out << "*cupsUIConstraints: \"*Bench5 Value0 *Bench" << 6 + rule % targets
            << " Value0 *Bench" << 6 + targets + third / measures.choicesPerOption << " "
            << generatedChoice(third % measures.choicesPerOption) << "\"\n";
    }
    out.flush();
    return file.error() == QFile::NoError && out.status() == QTextStream::Ok;
}
