#include "model/optionstore.h"
#include "storage/settingsfile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readingFindsTheFirstLine_data();
    void readingFindsTheFirstLine();
    void allValuesInFileOrder();
    void noFileMeansNoValue();
    void writingReadsBack();
    void extraValueWins();
    void profileHasItsHeading();
    void profileDescriptionFollowsHeading();
    void directoryIsMadeWithItsParents();
    void unwritablePathIsSilent();
    void updateSetting_data();
    void updateSetting();
    void updateWithoutSettingsFile();

private:
    std::unique_ptr<QTemporaryDir> directory;
};

void TestSettingsFile::init()
{
    directory = std::make_unique<QTemporaryDir>();
    userDir = directory->path() + QStringLiteral("/user/");
    currentCfgPath = directory->filePath(QStringLiteral("printer.cfg"));
}

void TestSettingsFile::readingFindsTheFirstLine_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value"); // null if nothing is found

    const auto row = [](const char *name, const QByteArray &file, const char *key,
                        const char *value) {
        QTest::newRow(name) << file << QString::fromUtf8(key) << QString::fromUtf8(value);
    };
    row("plain", "PageSize=A4\nDuplex=None\n", "Duplex", "None");
    row("first entry wins", "Coll=True\nColl=False\n", "Coll", "True");
    row("equals sign in the value", "Text=a=b==c\n", "Text", "a=b==c");
    row("last line without an end", "A=1\nB=2", "B", "2");
    row("blanks belong to key and value", " A =1\nA= 2 \n", "A", " 2 ");
    row("keys are case-sensitive", "pagesize=A4\n", "PageSize", nullptr);
    row("a longer key is another key", "PageSizeX=A3\nPageSize=A4\n", "PageSize", "A4");
    row("empty value ends the search", "A=\nA=2\n", "A", nullptr);
    row("line without equals is a key without value", "A\nA=2\n", "A", nullptr);
    row("letters beyond ASCII", "Name=Größe ✓\n", "Name", "Größe ✓");
    row("rubbish around", QByteArray("\0\xff\xfe=\n\n===\nA=1\n", 14), "A", "1");
    row("a line of 1030 characters is two lines", QByteArray(1023, 'x') + "=A=1\n", "A", "1");
    row("rest of a long line is no value of its key", "A=" + QByteArray(2000, 'y') + "\nB=2\n", "B",
        "2");
}

void TestSettingsFile::readingFindsTheFirstLine()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, key);
    QFETCH(QString, value);
    write(currentCfgPath, file);

    const QString found = readSetting(key);
    QCOMPARE(found, value);
    QCOMPARE(found.isNull(), value.isNull());
}

void TestSettingsFile::allValuesInFileOrder()
{
    write(currentCfgPath, "Mark=b\nOther=1\nMark=a\nMark=\nMark=b\n");
    const QStringList expected{QStringLiteral("b"), QStringLiteral("a"), QString(),
                               QStringLiteral("b")};
    QCOMPARE(readSettingValues(QStringLiteral("Mark")), expected);
    QVERIFY(readSettingValues(QStringLiteral("None")).isEmpty());
}

void TestSettingsFile::noFileMeansNoValue()
{
    for (const QString &path : {QString(), directory->filePath(QStringLiteral("absent")),
                                directory->path() /* a directory */}) {
        currentCfgPath = path;
        QVERIFY(readSetting(QStringLiteral("A")).isNull());
        QVERIFY(readSettingValues(QStringLiteral("A")).isEmpty());
    }
}

void TestSettingsFile::writingReadsBack()
{
    Settings settings;
    settings.insert(QStringLiteral("PageSize"), QStringLiteral("A5"));
    settings.insert(QStringLiteral("JobName"), QStringLiteral("Übersicht = 1"));
    settings.insert(QStringLiteral("Empty"), QString());
    const QString path = cfgPath(QStringLiteral("Office C3"));
    QVERIFY(!cfgExists(QStringLiteral("Office C3")));

    writeCfg(path, {{QStringLiteral("Old"), QStringLiteral("1")}}, true);
    writeCfg(path, settings, true);

    QVERIFY(cfgExists(QStringLiteral("Office C3")));
    QList<QByteArray> lines = contents(path).split('\n');
    std::sort(lines.begin(), lines.end());
    QCOMPARE(lines, QList<QByteArray>({"", "Empty=", "JobName=Übersicht = 1", "PageSize=A5"}));
    currentCfgPath = path;
    QCOMPARE(readSetting(QStringLiteral("JobName")), QStringLiteral("Übersicht = 1"));
}

void TestSettingsFile::extraValueWins()
{
    Settings settings;
    settings.replace(QStringLiteral("Key"), QStringLiteral("option"));
    settings.insert(QStringLiteral("Key"), QStringLiteral("extra"));
    currentCfgPath = cfgPath(QStringLiteral("P"));
    writeCfg(currentCfgPath, settings, true);
    QCOMPARE(contents(currentCfgPath), QByteArray("Key=extra\nKey=option\n"));
    QCOMPARE(readSetting(QStringLiteral("Key")), QStringLiteral("extra"));
}

void TestSettingsFile::profileHasItsHeading()
{
    OptionStore store;
    store.setModelName(QStringLiteral("Brixola PX-4500"));
    currentStore = &store;
    const QString path = cfgPath(QStringLiteral("mine"));
    writeCfg(path, {{QStringLiteral("A"), QStringLiteral("1")}}, false);
    QCOMPARE(contents(path), QByteArray("[Profile]\n[Brixola PX-4500]\nA=1\n"));
    currentStore = nullptr;
}

void TestSettingsFile::profileDescriptionFollowsHeading()
{
    const QString path = cfgPath(QStringLiteral("mine"));
    writeProfile(path, {{QStringLiteral("A"), QStringLiteral("1")}}, false,
                 QStringLiteral("Two lines\\nof text"));
    QCOMPARE(contents(path),
             QByteArray("[Profile]\n[]\nProfileDescription=Two lines\\nof text\nA=1\n"));
    writeProfile(path, {}, false, QString());
    QCOMPARE(contents(path), QByteArray("[Profile]\n[]\nProfileDescription=\n"));
}

void TestSettingsFile::directoryIsMadeWithItsParents()
{
    userDir = directory->path() + QStringLiteral("/a/b/c/");
    const mode_t before = umask(022);
    ensureUserDir();
    umask(before);
    for (const char *path : {"a", "a/b", "a/b/c"}) {
        struct stat status;
        QCOMPARE(stat(QFile::encodeName(directory->filePath(QLatin1String(path))), &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0755U);
    }
}

void TestSettingsFile::unwritablePathIsSilent()
{
    const QString path = directory->filePath(QStringLiteral("folder.cfg"));
    QVERIFY(QDir().mkdir(path));
    writeCfg(path, {{QStringLiteral("A"), QStringLiteral("1")}}, true);
    QVERIFY(QDir(path).exists());
    userDir = QStringLiteral("/proc/none/");
    writeCfg(cfgPath(QStringLiteral("P")), {}, true);
    QVERIFY(!cfgExists(QStringLiteral("P")));
}

void TestSettingsFile::updateSetting_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("replaced in place")
        << QByteArray("Telemetry=True\nFKP_server=old\nFKP_port=1\n")
        << QByteArray("Telemetry=True\nFKP_server=new\nFKP_port=1\n");
    QTest::newRow("added at the end")
        << QByteArray("Telemetry=True\n") << QByteArray("Telemetry=True\nFKP_server=new\n");
    QTest::newRow("every line that contains the text is replaced")
        << QByteArray("Note=see FKP_server\nXFKP_server2=1\n")
        << QByteArray("FKP_server=new\nFKP_server=new\n");
    QTest::newRow("last line without an end")
        << QByteArray("A=1\nFKP_server=old") << QByteArray("A=1\nFKP_server=new\n");
    QTest::newRow("empty file") << QByteArray() << QByteArray("FKP_server=new\n");
}

void TestSettingsFile::updateSetting()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QString path = userDirectory() + QStringLiteral("Settings");
    QDir().mkdir(userDirectory());
    write(path, before);
    QVERIFY(::updateSetting(QStringLiteral("FKP_server"), QStringLiteral("new")));
    QCOMPARE(contents(path), after);
    QVERIFY(!QFile::exists(path + QStringLiteral("_tmp")));
}

void TestSettingsFile::updateWithoutSettingsFile()
{
    QDir(userDirectory()).removeRecursively();
    QVERIFY(!::updateSetting(QStringLiteral("FKP_server"), QStringLiteral("new")));
    // The directory was made, and both files were tried.
    QCOMPARE(QDir(userDirectory()).entryList(QDir::Files),
             QStringList{QStringLiteral("Settings_tmp")});
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
