// A walk through the panel with the sample queue Office_C3, with pictures of each stage.
//
//   pressdesk-tour OUTDIR [--lang xx_YY]
//
// Needs a running print server with the sample queues (demo/printserver.sh). Ends with 1 at the
// first step that fails.

#include "support/paneldriver.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <vector>

namespace {

constexpr char printerName[] = "Office_C3";

// The pages behind the Basic page by their place in the tab bar, since their titles depend on the
// language.
struct OtherPage
{
    int tab;
    const char *picture;
};

constexpr int basicTab = 1;
constexpr OtherPage otherPages[] = {
    {2, "layout"}, {3, "finishing"}, {4, "imaging"},      {5, "publishing"},
    {6, "job"},    {7, "watermark"}, {8, "fleet-keeper"},
};

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

class Tour
{
public:
    Tour(const QString &folder, const QString &language)
        : m_folder(folder)
        , m_panel(QStringLiteral(PRESSDESK_PANEL))
    {
        m_panel.setLanguage(language);
    }

    /// Walks through all steps; false at the first that failed.
    bool run()
    {
        const std::vector<Step> steps = {
            {"answer the question about data collection", [this] { return declineCollection(); }},
            {"start the panel", [this] { return m_panel.start(); }},
            {"picture of the start", [this] { return picture("start"); }},
            {"select the printer", [this] { return m_panel.clickRow("tblPrinters", printerName); }},
            {"picture of the selected printer", [this] { return picture("printer"); }},

            {"go to the Basic page", [this] { return m_panel.clickTab(basicTab); }},
            {"picture of the Basic page", [this] { return picture("basic"); }},
            {"print on A5", [this] { return m_panel.choose("cmbBxPageSize", "A5"); }},
            {"print on both sides, long edge",
             [this] { return m_panel.clickGroupButton("butGroupDuplex", 1); }},
            {"picture of the changed Basic page", [this] { return picture("basic-changed"); }},
            {"pictures of the other pages", [this] { return pictureOtherPages(); }},

            {"apply", [this] { return press("Apply"); }},
            {"picture of the confirmation", [this] { return picture("applied"); }},
            {"confirm", [this] { return answerBox(); }},
            {"OK", [this] { return press("Ok"); }},
            {"confirm once more", [this] { return answerBox(); }},
            {"the panel closes", [this] { return m_panel.waitForEnd(); }},

            {"show what was saved", [this] { return showSettings(); }},
        };
        for (const Step &step : steps) {
            out() << step.what << "\n";
            out().flush();
            if (!step.run()) {
                out() << "FAILED: " << (m_error.isEmpty() ? m_panel.error() : m_error) << "\n";
                return false;
            }
        }
        out() << "\nPictures in " << m_folder.path() << ":\n  " << m_pictures.join("\n  ") << "\n";
        return true;
    }

private:
    struct Step
    {
        const char *what;
        std::function<bool()> run;
    };

    bool declineCollection()
    {
        const int status =
            QProcess::execute(QStringLiteral(PRESSDESK_PANEL),
                              {QStringLiteral("--telemetry"), QStringLiteral("False")});
        return status == 0 || fail(QStringLiteral("exit status %1").arg(status));
    }

    bool picture(const QString &name)
    {
        const QString file = QStringLiteral("%1-%2.png")
                                 .arg(m_pictures.size() + 1, 2, 10, QLatin1Char('0'))
                                 .arg(name);
        m_pictures.append(file);
        return m_panel.grabScreen(m_folder.filePath(file));
    }

    bool pictureOtherPages()
    {
        return std::all_of(std::begin(otherPages), std::end(otherPages),
                           [this](const OtherPage &page) {
                               return m_panel.clickTab(page.tab) && picture(page.picture);
                           });
    }

    bool press(const QString &button) { return m_panel.click(PanelWidget::standardButton(button)); }

    bool answerBox()
    {
        return m_panel.waitFor([this] { return m_panel.messageBox().shown; },
                               QStringLiteral("the message box")) &&
               press(QStringLiteral("Ok"));
    }

    /// Shows and copies the printer's settings file, and what the print system has learned.
    bool showSettings()
    {
        const QString printer = QLatin1String(printerName);
        const QString name = printer + QStringLiteral(".cfg");
        const QString path =
            QStringLiteral("/usr/share/brixola/%1/%2").arg(qEnvironmentVariable("USER"), name);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return fail(path + QStringLiteral(": ") + file.errorString());
        const QString settings = QString::fromUtf8(file.readAll());
        out() << "\n" << path << ":\n" << settings;

        QProcess lpoptions;
        lpoptions.setProcessChannelMode(QProcess::MergedChannels);
        lpoptions.start(QStringLiteral("lpoptions"), {QStringLiteral("-p"), printer});
        if (!lpoptions.waitForFinished())
            return fail(QStringLiteral("lpoptions: ") + lpoptions.errorString());
        const QString options = QString::fromLocal8Bit(lpoptions.readAll());
        out() << "\nlpoptions -p " << printer << ":\n" << options;

        const QString copy = m_folder.filePath(name);
        QFile::remove(copy);
        if (!file.copy(copy))
            return fail(copy + QStringLiteral(": ") + file.errorString());
        const QString chosen = QStringLiteral("PageSize=A5");
        if (!settings.contains(chosen) || !options.contains(chosen))
            return fail(chosen + QStringLiteral(" was not saved"));
        return true;
    }

    bool fail(const QString &message)
    {
        m_error = message;
        return false;
    }

    QDir m_folder;
    PanelDriver m_panel;
    QStringList m_pictures;
    QString m_error; ///< of a step that is not the panel's; else the panel's counts
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Walks through the panel and leaves pictures of it."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("OUTDIR"),
                                 QStringLiteral("folder for the results"));
    parser.addOption({QStringLiteral("lang"), QStringLiteral("language of the panel"),
                      QStringLiteral("xx_YY"), QStringLiteral("en_US")});
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(EXIT_FAILURE);

    const QString folder = parser.positionalArguments().constFirst();
    if (!QDir().mkpath(folder)) {
        qCritical("cannot make the folder %s", qPrintable(folder));
        return EXIT_FAILURE;
    }
    Tour tour(folder, parser.value(QStringLiteral("lang")));
    return tour.run() ? EXIT_SUCCESS : EXIT_FAILURE;
}
