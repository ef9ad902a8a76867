// Profiles as files and as text: the rules for names, the store, and what the detail tree shows.

#include "app/language.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "storage/profilereader.h"
#include "storage/profilerules.h"
#include "storage/profilestore.h"
#include "storage/settingsfile.h"
#include "support/storebuilder.h"

#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QTranslator>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QString ppdFolder = QStringLiteral("/usr/share/brixola/ppd6/");
const QString sample = QStringLiteral(PRESSDESK_SOURCE_DIR "/tests/data/profiles/px4500");
const char model[] = "[Brixola PX-4500]\n";
const QString policyOff = QStringLiteral("Fleet Keeper\n  Fleet Keeper: Off\n");

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList userFiles()
{
    QStringList files = QDir(userDir).entryList(QDir::Files);
    files.sort();
    return files;
}

/// The tree as text: headings, below each its rows as "  label: text".
QString shown(const ProfileDetails &details)
{
    QString text;
    const QList<ProfileSection> sections = profileSections(details);
    for (const ProfileSection &section : sections) {
        text += section.heading + QLatin1Char('\n');
        for (const ProfileRow &row : section.rows)
            text += QStringLiteral("  %1: %2\n").arg(row.label, row.text);
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
    void descriptions_data();
    void descriptions();

    void listed_data();
    void listed();
    void listHasAnOrder();
    void rewritten_data();
    void rewritten();
    void rewritingThatFailsLosesNothing_data();
    void rewritingThatFailsLosesNothing();

    void ppdOfModel_data();
    void ppdOfModel();
    void shownValue_data();
    void shownValue();
    void tree_data();
    void tree();
    void rubbishPpd();
    void factorySettings_data();
    void factorySettings();
    void livePrinterIsLeftAlone();
    void inLanguage_data();
    void inLanguage();
};

void TestProfileReader::init()
{
    userDir = userDirectory();
    QVERIFY(QDir(userDir).removeRecursively());
    QVERIFY(QDir().mkpath(userDir));
}

// Names and descriptions

void TestProfileReader::validity_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *what, const QByteArray &name, bool valid,
                        const QString &description = QString()) {
        QTest::newRow(what) << QString::fromUtf8(name) << description << valid;
    };
    row("none", "", false);
    row("leading blank", " Draft A5, 2 sides", true);
    row("single quotes and shell signs", "-rf Bob's “$(x)” & <b> \\n *", true);
    row("hidden file", ".Draft", false);
    row("dot inside", "Draft.cfg", true);
    row("slash", "../Draft", false);
    row("double quote", "5\" label", false);
    row("backquote", "a`b", false);
    row("semicolon", "a;b", false);
    row("a queue's in other case", "oFFice_c3", false);
    row("251 letters", QByteArray(251, 'a'), true);
    row("252 letters", QByteArray(252, 'a'), false);
    row("251 bytes in letters of two", QByteArray("ä").repeated(125) + 'a', true);
    row("252 bytes in letters of two", QByteArray("ä").repeated(126), false);
    row("longest description", "a", true, QString(1024, QLatin1Char('\n')));
    row("too long a description", "a", false, QString(1025, QLatin1Char('d')));
    for (const char *reserved :
         {"Factory Default", "Paramètres du fabricant", "Werkseinstellung", "Impostazioni fabbrica",
          "Valor predeterminado de fábrica", "PADRÃO DE FÁBRICA", "  factory \t default "})
        row(reserved, reserved, false);
    row("longer than a reserved name", "Werkseinstellung 2", true);
}

void TestProfileReader::validity()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QTEST(isValidProfile(name, description, {QStringLiteral("Office_C3")}), "valid");
}

void TestProfileReader::descriptions_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shownAgain");
    const auto row = [](const char *what, const char *typed, const char *stored,
                        const char *shownAgain) {
        QTest::newRow(what) << typed << stored << shownAgain;
    };
    row("line feeds", "\na\n\nb", "\\na\\n\\nb", "\na\n\nb");
    row("backslashes", "C:\\temp\\=\\\nx", "C:\\temp\\=\\\\nx", "C:\\temp\\=\\\nx");
    row("a typed backslash and n is taken for a line feed", "C:\\new", "C:\\new", "C:\new");
}

void TestProfileReader::descriptions()
{
    QFETCH(QString, typed);
    QTEST(storedDescription(typed), "stored");
    QTEST(shownDescription(storedDescription(typed)), "shownAgain");
}

// The store

void TestProfileReader::listed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("profile"); // null if the file is none
    QTest::addColumn<bool>("counts");     // among the 25

    const auto row = [](const char *what, const QByteArray &text, const char *name, bool counts,
                        const char *file = "a.cfg") {
        QTest::newRow(what) << file << text << QString::fromUtf8(name) << counts;
    };
    row("profile", "[Profile]\n[Brixola PX-4500]\nPageSize=A4\n", "a", true);
    row("mark at the end without line feed", "PageSize=A4\n[Profile]", "a", true);
    row("mark as a key", "[Profile]=x\n", "a", true);
    row("mark as a key with two equals signs", "[Profile]=x=y\n", nullptr, true);
    row("mark inside other lines", "A=[Profile]\n[Profile]s\n [Profile]\n", nullptr, true);
    row("rubbish before the mark", QByteArray("\0\xff\xfe=\xc3\n[Profile]\n\0", 17), "a", true);
    row("printer's settings", "PageSize=A4\nColl=True\n", nullptr, false);
    row("empty file", "", nullptr, false);
    row("ending in capitals", "[Profile]\n", nullptr, true, "a.CFG");
    row("doubled ending", "[Profile]\n", "a.cfg", true, "a.cfg.cfg");
    row("leading blank and quotes", "[Profile]\n", " 'a' \"b\"", true, " 'a' \"b\".cfg");
}

void TestProfileReader::listed()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(QString, profile);
    QVERIFY(write(userDir + file, text));
    QCOMPARE(profileNames(), profile.isNull() ? QStringList() : QStringList(profile));
    for (int i = 1; i < 25; ++i)
        QVERIFY(write(userDir + QString::number(i), "[Profile]\n"));
    QTEST(isProfileStoreFull(), "counts");
}

void TestProfileReader::listHasAnOrder()
{
    for (const char *name : {"b", "C", "a", "É", "10"})
        QVERIFY(write(profilePath(QString::fromUtf8(name)), "[Profile]\n"));
    // What is no file, or can't be read, or would never end.
    QVERIFY(QDir(userDir).mkdir(QStringLiteral("x.cfg")));
    QVERIFY(write(userDir + QStringLiteral("secret.cfg"), "[Profile]\n"));
    QVERIFY(QFile::setPermissions(userDir + QStringLiteral("secret.cfg"), {}));
    QCOMPARE(mkfifo(QFile::encodeName(userDir + QStringLiteral("pipe.cfg")), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), userDir + QStringLiteral("zero.cfg")));

    QCOMPARE(profileNames().join(QLatin1Char('|')), QStringLiteral("10|a|b|C|É"));
    QVERIFY(!isProfileStoreFull());
}

void TestProfileReader::rewritten_data()
{
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *what, const QByteArray &newName, const QByteArray &before,
                        const char *description, const QByteArray &after) {
        QTest::newRow(what) << QString::fromUtf8(newName) << before
                            << QString::fromUtf8(description) << after;
    };
    const QByteArray plain = "[Profile]\n[M]\nProfileDescription=x\nA=1=2\n";
    row("description only", "old", plain, "a=b\\nü",
        "[Profile]\n[M]\nProfileDescription=a=b\\nü\nA=1=2\n");
    row("over another profile", "other", plain, "x", plain);
    row("name with blanks and quotes", " 'it''s' $HOME *  ", plain, "x", plain);
    row("name of 251 bytes", QByteArray("ä").repeated(125) + '-', plain, "x", plain);
    row("a setting with the word in it", "old", "MyProfileDescriptions=3\nA=1", "",
        "ProfileDescription=\nA=1\n");
    const QByteArray bytes("[Profile]\n\0\xff\r\n\n", 15);
    row("bytes that are no text", "new", bytes, "x", bytes);
}

void TestProfileReader::rewritten()
{
    QFETCH(QString, newName);
    QFETCH(QByteArray, before);
    QFETCH(QString, description);
    QVERIFY(write(profilePath(QStringLiteral("old")), before));
    QVERIFY(write(profilePath(QStringLiteral("other")), "[Profile]\nother\n"));
    rewriteProfile(QStringLiteral("old"), newName, description);
    QTEST(contents(profilePath(newName)), "after");
    QCOMPARE(userFiles().size(), newName == QLatin1String("other") ? 1 : 2);
    removeProfile(profilePath(newName));
    QVERIFY(!QFile::exists(profilePath(newName)));
}

void TestProfileReader::rewritingThatFailsLosesNothing_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("directory"); // in the way
    QTest::newRow("no temporary copy") << QStringLiteral("old") << QStringLiteral("new.tmp");
    QTest::newRow("the profile has gone") << QStringLiteral("gone") << QStringLiteral("x");
    QTest::newRow("the profile is a directory") << QStringLiteral("x") << QStringLiteral("x.cfg");
}

void TestProfileReader::rewritingThatFailsLosesNothing()
{
    QFETCH(QString, oldName);
    QFETCH(QString, directory);
    QVERIFY(QDir(userDir).mkdir(directory));
    QVERIFY(write(profilePath(QStringLiteral("old")), "[Profile]\n"));
    rewriteProfile(oldName, QStringLiteral("new"), QStringLiteral("x"));
    QCOMPARE(userFiles(), QStringList(QStringLiteral("old.cfg")));
}

// The tree

void TestProfileReader::ppdOfModel_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *line, const char *file) {
        QTest::newRow(line) << line << file;
    };
    row("[Brixola PX-4500]", "Brixola_PX-4500");
    row("[NV-RATEX 200]", "NV_200");
    row("[Brixola BRXL 300 BRXL]", "Brixola_300");
    row("[Brixola 300BRXL]", "Brixola_300BRXL");
    row("[Sorbelli 20 B/W B/W]", "Sorbelli_20_Monochrome_Monochrome");
    row("[Brixola [2]  x]", "Brixola_2__x");
}

void TestProfileReader::ppdOfModel()
{
    QFETCH(QString, line);
    QFETCH(QString, file);
    QCOMPARE(profilePpdPath(line), ppdFolder + file + QStringLiteral(".ppd"));
}

void TestProfileReader::shownValue_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<QString>("text"); // of the line's key; null if there is none
    const auto row = [](const char *what, const QByteArray &lines, const char *text) {
        QTest::newRow(what) << lines << QString::fromUtf8(text);
    };
    const QByteArray m = model;
    row("choice", m + "Duplex=DuplexTumble", "Short edge");
    row("no such choice", m + "Duplex=Sideways", "ERROR 1");
    row("no such option", m + "Nonsense=True", "ERROR 2");
    row("no model", "Duplex=DuplexTumble", "ERROR 3");
    row("model of another maker", "[Generic PostScript Printer]\nDuplex=None", "ERROR 3");
    row("blank before the model", " [Brixola PX-4500]\nDuplex=None", "ERROR 3");
    row("a profile's name for a model", "[Brixola Profile]\nDuplex=None", "ERROR 3");
    row("model below the value", "Duplex=None\n" + m, "ERROR 3");
    row("second model has no PPD", m + "[Brixola Gone]\nDuplex=None", "ERROR 3");
    row("second model has one", "[Brixola Gone]\n[NV-RATEX 200]\nDuplex=None", "Off");
    row("the last of two lines", m + "Duplex=None\nDuplex=DuplexTumble", "Short edge");
    row("empty value", m + "Duplex=", nullptr);
    row("no equals sign", m + "Duplex", nullptr);
    row("private print", m + "BXCollate1=Custom1", "Private print");
    row("custom box", m + "BXCollate1=Custom2", "Custom box");
    row("another storage", m + "BXCollate1=Custom3", "ERROR 1");
    row("account", m + "BqManagment=12=34", "On");
    row("job name", m + "JobName=Custom.x", "On");
    row("own watermark", m + "Wtxt=\"<b>\\ x\"", "Custom watermark");
    row("cover off", m + "BqCoverModeEnabled=true", "Off");
    row("page insert on", m + "BqPageInsertEnabled=True", "On");
    row("e-mail off", m + "EMailNotification=off", "Off");
    row("e-mail address", m + "EMailNotification=<b>@example.com", "<b>@example.com");
    row("custom job name", m + "CustomJobName=off", "On");
    row("policy neither on nor off", m + "FKP_enabled=On", "Off");
    row("color without the option", "[Brixola MX-210]\nColorModel=CMYK", "Black & white");
    row("description", m + "ProfileDescription=a=\\n<i>", "a=\\n<i>");
}

void TestProfileReader::shownValue()
{
    QFETCH(QByteArray, profile);
    const QString path = profilePath(QStringLiteral("a"));
    QVERIFY(write(path, "[Profile]\n" + profile));
    const ProfileDetails details = readProfile(path);
    QVERIFY(details.size() <= 1);
    QTEST(details.isEmpty() ? QString() : details.begin().value(), "text");
}

void TestProfileReader::tree_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<QString>("text");
    QTest::newRow("everything") << contents(sample + QStringLiteral(".cfg"))
                                << QString::fromUtf8(contents(sample + QStringLiteral(".txt")));
    QTest::newRow("generic printer has no publishing")
        << QByteArray("[Brixola Generic]\nBqCoverModeEnabled=True\nPageSize=A4\n")
        << QStringLiteral("Basic\n  Print size: ERROR 3\n") + policyOff;
    QTest::newRow("empty") << QByteArray() << policyOff;
    QTest::newRow("equals signs") << QByteArray(5000, '=') << policyOff;
    QTest::newRow("line feeds and zeros") << QByteArray("\n\0\n", 3).repeated(5000) << policyOff;
    QTest::newRow("no text") << QByteArray("\xff\xfe\xc3[\xed\xa0\x80]=").repeated(999)
                             << policyOff;
    QTest::newRow("one line larger than any profile") << QByteArray(3 << 20, 'x') << policyOff;
    // Each PPD is read once, or this would take minutes.
    QTest::newRow("many models")
        << QByteArray("[Brixola PX-4500]\n[Brixola MX-210]\n").repeated(29999) << policyOff;
}

void TestProfileReader::tree()
{
    QFETCH(QByteArray, profile);
    const QString path = profilePath(QStringLiteral("a"));
    QVERIFY(write(path, profile));
    QTEST(shown(readProfile(path)), "text");
}

void TestProfileReader::rubbishPpd()
{
    const QString path = profilePath(QStringLiteral("a"));
    QVERIFY(write(path, "[Brixola Rubbish]\nPageSize=A4\n"));
    const QString ppd = ppdFolder + QStringLiteral("Brixola_Rubbish.ppd");
    QByteArray cut = contents(ppdFolder + QStringLiteral("Brixola_PX-4500.ppd"));
    cut.truncate(cut.indexOf("*PageSize A5"));
    for (const QByteArray &text :
         {QByteArray(), QByteArray(1 << 20, '\xff'), cut + "/A5: \"<</Page",
          QByteArray("*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize: PickOne\n").repeated(2000)}) {
        QVERIFY(write(ppd, text));
        const QString tree = shown(readProfile(path));
        QVERIFY2(tree.startsWith(QLatin1String("Basic\n  Print size: ")) &&
                     tree.endsWith(policyOff),
                 qPrintable(tree));
    }
    QVERIFY(QFile::remove(ppd));
}

void TestProfileReader::factorySettings_data()
{
    QTest::addColumn<bool>("rasterOrPdf");
    QTest::addColumn<QString>("text");
    const QString options = QStringLiteral("Basic\n  Media type: \n  Duplex: Short edge\n");
    const QString publishing = QStringLiteral("Publishing\n  Cover mode: Off\n  Page insert: Off\n"
                                              "  Transparency interleaving: Off\n");
    const QString jobs = QStringLiteral("Job\n  User login: Off\n");
    QTest::newRow("PostScript") << false << options + jobs + policyOff;
    QTest::newRow("raster or PDF") << true << options + publishing + jobs + policyOff;
}

void TestProfileReader::factorySettings()
{
    QFETCH(bool, rasterOrPdf);
    QCOMPARE(shown(factoryDefaults()), policyOff); // no printer
    // Without a default an option shows nothing; one that is no PPD option doesn't show at all.
    const auto store = makeStore(QStringLiteral("Duplex 99 None/Off Tumble/Short_edge*\n"
                                                "MediaType 99 Plain\nSep 99 None/Off*\n"));
    store->find(QStringLiteral("Duplex"))->setPpdOption(true);
    store->find(QStringLiteral("MediaType"))->setPpdOption(true);
    store->setRasterOrPdfFilter(rasterOrPdf);
    currentStore = store.get();
    const QString tree = shown(factoryDefaults());
    currentStore = nullptr;
    QTEST(tree, "text");
}

void TestProfileReader::livePrinterIsLeftAlone()
{
    const auto store = makeStore(QStringLiteral("Duplex 99 None Tumble*\nPageSize 99 A4 A5\n"
                                                "Duplex=Tumble PageSize=A5\n"));
    selectValues(*store, QStringLiteral("Duplex=Tumble"));
    currentStore = store.get();
    currentCfgPath = QStringLiteral("/mine.cfg");
    QVERIFY(!readProfile(sample + QStringLiteral(".cfg")).isEmpty());
    QCOMPARE(currentStore, store.get());
    currentStore = nullptr;
    QCOMPARE(currentCfgPath, QStringLiteral("/mine.cfg"));
    QCOMPARE(blockedValues(*store), QStringLiteral("PageSize=A5"));
    QCOMPARE(store->find(QStringLiteral("Duplex"))->currentKey(), QStringLiteral("Tumble"));
}

void TestProfileReader::inLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("duplex"); // label from the catalogue, value from the PPD
    const auto row = [](const char *locale, const char *duplex) {
        QTest::newRow(locale) << locale << QString::fromUtf8(duplex);
    };
    row("en_US", "Duplex: Long edge");
    row("de_DE", "Duplex: Lange Kante");
    row("fr_FR", "Recto verso: Bord long");
    row("it_IT", "Fronte-retro: Lato lungo");
    row("pt_BR", "Frente e verso: Margem longa");
    row("es_ES", "Dúplex: Borde largo");
}

void TestProfileReader::inLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, duplex);
    // libcups settles on a language once in a process.
    QProcess reader;
    reader.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--show"), locale, sample + QStringLiteral(".cfg")});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.exitCode(), 0);
    const QString tree = QString::fromUtf8(reader.readAll());
    QVERIFY2(tree.contains(QStringLiteral("\n  %1\n").arg(duplex)), qPrintable(tree));
    QVERIFY2(!tree.contains(QLatin1String("ERROR")), qPrintable(tree));
    QCOMPARE(tree.contains(QLatin1String("Custom watermark")), locale == QLatin1String("en_US"));
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
    if (QCoreApplication::arguments().value(1) == QLatin1String("--show"))
        return showProfile(QCoreApplication::arguments());
    TestProfileReader test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_profilereader.moc"
