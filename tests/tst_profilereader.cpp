// Profiles as files and as text: the rules for names, the store, and what the detail tree shows.

#include "app/language.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "profiles/profilereader.h"
#include "profiles/profilerules.h"
#include "profiles/profilestore.h"
#include "storage/settingsfile.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QTextStream>
#include <QTranslator>

#include <sys/stat.h>

namespace {

const QString ppdFolder = "/usr/share/brixola/ppd6/";
const QString sample = PRESSDESK_SOURCE_DIR "/tests/data/profiles/px4500";
const QString policyOff = "Fleet Keeper\n  Fleet Keeper: Off\n";

/// The tree as text: headings, below each its rows as "  label: text".
QString shown(const ProfileDetails &details)
{
    QString text;
    const QList<ProfileSection> sections = profileSections(details);
    for (const ProfileSection &section : sections) {
        text += section.heading + '\n';
        for (const ProfileRow &row : section.rows)
            text += QString("  %1: %2\n").arg(row.label, row.text);
    }
    return text;
}

} // namespace

class TestProfileReader : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void validity_data();
    void validity();

    void listed_data();
    void listed();
    void listHasAnOrder();
    void rewritten_data();
    void rewritten();
    void rewritingThatFailsLosesNothing();

    void ppdOfModel_data();
    void ppdOfModel();
    void shownValue_data();
    void shownValue();
    void tree_data();
    void tree();
    void rubbishPpd();
    void selectedPrinter();
    void inLanguage_data();
    void inLanguage();
};

void TestProfileReader::init()
{
    userDir = userDirectory();
    QVERIFY(QDir(userDir).removeRecursively());
    QVERIFY(QDir().mkpath(userDir));
}

void TestProfileReader::validity_data()
{
    addColumns<QString, QString, bool>("name", "description", "valid");
    addRow("none", "", "", false);
    addRow("leading blank", " Draft A5, 2 sides", "", true);
    addRow("single quotes and shell signs", "-rf Bob's “$(x)” & <b> \\n *", "", true);
    addRow("hidden file", ".Draft", "", false);
    addRow("dot inside", "Draft.cfg", "", true);
    addRow("slash", "../Draft", "", false);
    addRow("double quote", "5\" label", "", false);
    addRow("backquote", "a`b", "", false);
    addRow("semicolon", "a;b", "", false);
    addRow("a queue's in other case", "oFFice_c3", "", false);
    addRow("251 letters", QString(251, 'a'), "", true);
    addRow("252 letters", QString(252, 'a'), "", false);
    addRow("251 bytes in letters of two", QString(125, QChar(0xe4)) + 'a', "", true);
    addRow("252 bytes in letters of two", QString(126, QChar(0xe4)), "", false);
    addRow("longest description", "a", QString(1024, '\n'), true);
    addRow("too long a description", "a", QString(1025, 'd'), false);
    for (const char *reserved :
         {"Factory Default", "Paramètres du fabricant", "Werkseinstellung", "Impostazioni fabbrica",
          "Valor predeterminado de fábrica", "PADRÃO DE FÁBRICA", "  factory \t default "})
        addRow(reserved, reserved, "", false);
    addRow("longer than a reserved name", "Werkseinstellung 2", "", true);
}

void TestProfileReader::validity()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QTEST(isValidProfile(name, description, {"Office_C3"}), "valid");
}

// The store

void TestProfileReader::listed_data()
{
    // It may be no profile and count among the 25 all the same.
    addColumns<QString, QByteArray, QStringList, bool>("file", "text", "profiles", "counts");
    const auto row = [](const char *what, const QByteArray &text, const QStringList &profiles,
                        bool counts,
                        const char *file = "a.cfg") { addRow(what, file, text, profiles, counts); };
    row("profile", "[Profile]\n[Brixola PX-4500]\nPageSize=A4\n", {"a"}, true);
    row("mark at the end without line feed", "PageSize=A4\n[Profile]", {"a"}, true);
    row("mark as a key", "[Profile]=x\n", {"a"}, true);
    row("mark as a key with two equals signs", "[Profile]=x=y\n", {}, true);
    row("mark inside other lines", "A=[Profile]\n[Profile]s\n [Profile]\n", {}, true);
    row("rubbish before the mark", QByteArray("\0\xff\xfe=\xc3\n[Profile]\n\0", 17), {"a"}, true);
    row("printer's settings", "PageSize=A4\nColl=True\n", {}, false);
    row("empty file", "", {}, false);
    row("ending in capitals", "[Profile]\n", {}, true, "a.CFG");
    row("doubled ending", "[Profile]\n", {"a.cfg"}, true, "a.cfg.cfg");
    row("leading blank and quotes", "[Profile]\n", {" 'a' \"b\""}, true, " 'a' \"b\".cfg");
}

void TestProfileReader::listed()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QVERIFY(setFileText(userDir + file, text));
    QTEST(profileNames(), "profiles");
    for (int i = 1; i < 25; ++i)
        QVERIFY(setFileText(userDir + QString::number(i), "[Profile]\n"));
    QTEST(isProfileStoreFull(), "counts");
}

void TestProfileReader::listHasAnOrder()
{
    for (const char *name : {"b", "C", "a", "É", "10"})
        QVERIFY(setFileText(profilePath(name), "[Profile]\n"));
    // What is no file, or can't be read, or would never end.
    QVERIFY(QDir(userDir).mkdir("x.cfg"));
    QVERIFY(setFileText(userDir + "secret.cfg", "[Profile]\n"));
    QVERIFY(QFile::setPermissions(userDir + "secret.cfg", {}));
    QCOMPARE(mkfifo(QFile::encodeName(userDir + "pipe.cfg"), 0600), 0);
    QVERIFY(QFile::link("/dev/zero", userDir + "zero.cfg"));

    QCOMPARE(profileNames().join('|'), QString("10|a|b|C|É"));
    QVERIFY(!isProfileStoreFull());
}

void TestProfileReader::rewritten_data()
{
    addColumns<QString, QByteArray, QString, QByteArray>("newName", "before", "description",
                                                         "after");
    const QByteArray plain = "[Profile]\n[M]\nProfileDescription=x\nA=1=2\n";
    const QByteArray changed = "[Profile]\n[M]\nProfileDescription=a=b\\nü\nA=1=2\n";
    const QByteArray bytes("[Profile]\n\0\xff\r\n\n", 15);
    addRow("description only", "old", plain, "a=b\\nü", changed);
    addRow("over another profile", "other", plain, "x", plain);
    addRow("name with blanks and quotes", " 'it''s' $HOME *  ", plain, "x", plain);
    addRow("name with what the check refuses", "a\" \"b", plain, "x", plain);
    addRow("name of 251 bytes", QString(125, QChar(0xe4)) + '-', plain, "x", plain);
    addRow("a setting with the word in it", "old", QByteArray("MyProfileDescriptions=3\nA=1"), "",
           QByteArray("ProfileDescription=\nA=1\n"));
    addRow("bytes that are no text", "new", bytes, "x", bytes);
}

void TestProfileReader::rewritten()
{
    QFETCH(QString, newName);
    QFETCH(QByteArray, before);
    QFETCH(QString, description);
    QVERIFY(setFileText(profilePath("old"), before));
    QVERIFY(setFileText(profilePath("other"), "[Profile]\nother\n"));
    rewriteProfile("old", newName, description);
    QTEST(fileText(profilePath(newName)), "after");
    QCOMPARE(QDir(userDir).entryList(QDir::Files).size(), newName == "other" ? 1 : 2);
    removeProfile(profilePath(newName));
    QVERIFY(!QFile::exists(profilePath(newName)));
}

void TestProfileReader::rewritingThatFailsLosesNothing()
{
    QVERIFY(setFileText(profilePath("old"), "[Profile]\n"));
    QVERIFY(QDir(userDir).mkdir("new.tmp") && QDir(userDir).mkdir("folder.cfg"));
    rewriteProfile("old", "new", "x"); // no temporary copy
    rewriteProfile("gone", "other", "x");
    rewriteProfile("folder", "other", "x");
    QCOMPARE(QDir(userDir).entryList(QDir::Files), QStringList("old.cfg"));
}

// The tree

void TestProfileReader::ppdOfModel_data()
{
    addRows({"line", "file"}, R"(
blank        | [Brixola PX-4500]         | Brixola_PX-4500
RATEX        | [NV-RATEX 200]            | NV_200
BRXL         | [Brixola BRXL 300 BRXL]   | Brixola_300
no word BRXL | [Brixola 300BRXL]         | Brixola_300BRXL
B/W          | [Sorbelli 20 B/W B/W]     | Sorbelli_20_Monochrome_Monochrome
brackets     | [Brixola [2]  x]          | Brixola_2__x)");
}

void TestProfileReader::ppdOfModel()
{
    QFETCH(QString, line);
    QFETCH(QString, file);
    QCOMPARE(profilePpdPath(line), ppdFolder + file + ".ppd");
}

void TestProfileReader::shownValue_data()
{
    addRows({"model", "line", "text"}, R"(
choice                       | [Brixola PX-4500] | Duplex=DuplexTumble        | Short edge
no such choice               | [Brixola PX-4500] | Duplex=Sideways            | ERROR 1
no such option               | [Brixola PX-4500] | Nonsense=True              | ERROR 2
no model                     |                   | Duplex=DuplexTumble        | ERROR 3
model of another maker       | [Generic Printer] | Duplex=None                | ERROR 3
a profile's name for a model | [Brixola Profile] | Duplex=None                | ERROR 3
model below the value        | Duplex=None       | [Brixola PX-4500]          | ERROR 3
empty value                  | [Brixola PX-4500] | Duplex=                    | nothing
no equals sign               | [Brixola PX-4500] | Duplex                     | nothing
private print                | [Brixola PX-4500] | BXCollate1=Custom1         | Private print
custom box                   | [Brixola PX-4500] | BXCollate1=Custom2         | Custom box
another storage              | [Brixola PX-4500] | BXCollate1=Custom3         | ERROR 1
account                      | [Brixola PX-4500] | BqManagment=12=34          | On
job name                     | [Brixola PX-4500] | JobName=Custom.x           | On
own watermark                | [Brixola PX-4500] | Wtxt="<b>\ x"              | Custom watermark
cover off                    | [Brixola PX-4500] | BqCoverModeEnabled=true    | Off
page insert on               | [Brixola PX-4500] | BqPageInsertEnabled=True   | On
e-mail off                   | [Brixola PX-4500] | EMailNotification=off      | Off
e-mail address               | [Brixola PX-4500] | EMailNotification=<b>@a.bc | <b>@a.bc
custom job name              | [Brixola PX-4500] | CustomJobName=off          | On
policy neither on nor off    | [Brixola PX-4500] | FKP_enabled=On             | Off
color without the option     | [Brixola MX-210]  | ColorModel=CMYK            | Black & white
description                  | [Brixola PX-4500] | ProfileDescription=a=\n<i> | a=\n<i>)");
    addRow("blank before the model", " [Brixola PX-4500]", "Duplex=None", "ERROR 3");
    addRow("second model has no PPD", "[Brixola PX-4500]\n[Brixola Gone]", "Duplex=None",
           "ERROR 3");
    addRow("second model has one", "[Brixola Gone]\n[NV-RATEX 200]", "Duplex=None", "Off");
    addRow("the last of two lines", "[Brixola PX-4500]", "Duplex=None\nDuplex=DuplexTumble",
           "Short edge");
}

void TestProfileReader::shownValue()
{
    QFETCH(QString, model);
    QFETCH(QString, line);
    QVERIFY(setFileText(profilePath("a"), ("[Profile]\n" + model + '\n' + line).toUtf8()));
    const ProfileDetails details = readProfile(profilePath("a"));
    QVERIFY(details.size() <= 1);
    QTEST(details.isEmpty() ? "nothing" : details.begin().value(), "text");
}

void TestProfileReader::tree_data()
{
    addColumns<QByteArray, QString>("profile", "text");
    const auto row = [](const char *what, const QByteArray &profile, const QString &text) {
        addRow(what, profile, text);
    };
    row("everything", fileText(sample + ".cfg"), fileText(sample + ".txt"));
    row("generic printer has no publishing",
        "[Brixola Generic]\nBqCoverModeEnabled=True\nPageSize=A4\n",
        "Basic\n  Print size: ERROR 3\n" + policyOff);
    row("empty", "", policyOff);
    row("equals signs", QByteArray(5000, '='), policyOff);
    row("line feeds and zeros", QByteArray("\n\0\n", 3).repeated(5000), policyOff);
    row("no text", QByteArray("\xff\xfe\xc3[\xed\xa0\x80]=").repeated(999), policyOff);
    row("one line larger than any profile", QByteArray(3 << 20, 'x'), policyOff);
    // Each PPD is read once, or this would take minutes.
    row("many models", QByteArray("[Brixola PX-4500]\n[Brixola MX-210]\n").repeated(29999),
        policyOff);
}

void TestProfileReader::tree()
{
    QFETCH(QByteArray, profile);
    QVERIFY(setFileText(profilePath("a"), profile));
    QTEST(shown(readProfile(profilePath("a"))), "text");
}

void TestProfileReader::rubbishPpd()
{
    QVERIFY(setFileText(profilePath("a"), "[Brixola Rubbish]\nPageSize=A4\n"));
    const QString ppd = ppdFolder + "Brixola_Rubbish.ppd";
    QByteArray cut = fileText(ppdFolder + "Brixola_PX-4500.ppd");
    cut.truncate(cut.indexOf("*PageSize A5"));
    for (const QByteArray &text :
         {QByteArray(""), QByteArray(1 << 20, '\xff'), cut + "/A5: \"<</Page",
          QByteArray("*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\n").repeated(2000)}) {
        QVERIFY(setFileText(ppd, text));
        const QString tree = shown(readProfile(profilePath("a")));
        QVERIFY2(tree.startsWith("Basic\n  Print size: ") && tree.endsWith(policyOff),
                 qPrintable(tree));
    }
    QVERIFY(QFile::remove(ppd));
}

void TestProfileReader::selectedPrinter()
{
    QCOMPARE(shown(factoryDefaults()), policyOff); // no printer
    // Without a default an option shows nothing; one that is no PPD option doesn't show at all.
    const auto store = makeStore("Duplex 99 None/Off Tumble/Short_edge*\nMediaType 99 Plain\n"
                                 "Sep 99 None/Off*\nDuplex=Tumble MediaType=Plain\n");
    store->find("Duplex")->setPpdOption(true);
    store->find("MediaType")->setPpdOption(true);
    selectValues(*store, "Duplex=Tumble");
    currentStore = store.get();
    const QString postScript = shown(factoryDefaults());
    store->setRasterOrPdfFilter(true);
    const QString rasterOrPdf = shown(factoryDefaults());
    const ProfileDetails profile = readProfile(sample + ".cfg"); // with values of its own
    const OptionStore *after = currentStore;
    currentStore = nullptr;

    const QString options = "Basic\n  Media type: \n  Duplex: Short edge\n";
    const QString publishing = "Publishing\n  Cover mode: Off\n  Page insert: Off\n"
                               "  Transparency interleaving: Off\n";
    const QString rest = "Job\n  User login: Off\n" + policyOff;
    QCOMPARE(postScript, options + rest);
    QCOMPARE(rasterOrPdf, options + publishing + rest);
    QVERIFY(!profile.isEmpty());
    QCOMPARE(after, static_cast<const OptionStore *>(store.get()));
    QCOMPARE(blockedValues(*store), QString("MediaType=Plain"));
    QCOMPARE(store->find("Duplex")->currentKey(), QString("Tumble"));
}

void TestProfileReader::inLanguage_data()
{
    // A label from the catalogue, a value from the PPD.
    addRows({"locale", "duplex"}, R"(
English    | en_US | Duplex: Long edge
German     | de_DE | Duplex: Lange Kante
French     | fr_FR | Recto verso: Bord long
Italian    | it_IT | Fronte-retro: Lato lungo
Portuguese | pt_BR | Frente e verso: Margem longa
Spanish    | es_ES | Dúplex: Borde largo)");
}

void TestProfileReader::inLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, duplex);
    // libcups settles on a language once in a process.
    QProcess reader;
    reader.start(QCoreApplication::applicationFilePath(), {"--show", locale, sample + ".cfg"});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.exitCode(), 0);
    const QString tree = QString::fromUtf8(reader.readAll());
    QVERIFY2(tree.contains("\n  " + duplex + '\n'), qPrintable(tree));
    QVERIFY2(!tree.contains("ERROR"), qPrintable(tree));
    QCOMPARE(tree.contains("Custom watermark"), locale == "en_US");
}

/// Prints a profile's tree in a language: "--show LOCALE FILE".
static int showProfile(const QStringList &arguments)
{
    QTranslator translator;
    if (!translator.load(catalogueForLocale(arguments.value(2))))
        return 1;
    QCoreApplication::installTranslator(&translator);
    alignPrintSystemLanguage(arguments.value(2));
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << shown(readProfile(arguments.value(3)));
    return 0;
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == "--show")
        return showProfile(QCoreApplication::arguments());
    TestProfileReader test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_profilereader.moc"
