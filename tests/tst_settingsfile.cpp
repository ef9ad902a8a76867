// The settings files: what is read from them, and what is left in them.

#include "model/optionstore.h"
#include "storage/settingsfile.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void valuesOfKey_data();
    void valuesOfKey();
    void noFileMeansNoValue();
    void writtenFiles();
    void directoryIsMadeWithItsParents();
    void updateSetting_data();
    void updateSetting();

private:
    std::unique_ptr<QTemporaryDir> directory;
};

void TestSettingsFile::init()
{
    directory = std::make_unique<QTemporaryDir>();
    userDir = directory->path() + "/user/";
    currentCfgPath = directory->filePath("printer.cfg");
}

void TestSettingsFile::valuesOfKey_data()
{
    addColumns<QByteArray, QString, QStringList>("file", "key", "values");
    const auto row = [](const char *name, const QByteArray &file, const char *key,
                        const QStringList &values) { addRow(name, file, key, values); };
    row("the first one wins", "M=b\nOther=1\nM=a\nM=\nM=b\n", "M", {"b", "a", "", "b"});
    row("equals sign in the value", "Text=a=b==c\n", "Text", {"a=b==c"});
    row("last line without an end", "A=1\nB=2", "B", {"2"});
    row("blanks belong to key and value", " A =1\nA= 2 \n", "A", {" 2 "});
    row("keys are case-sensitive", "pagesize=A4\n", "PageSize", {});
    row("a longer key is another key", "PageSizeX=A3\nPageSize=A4\n", "PageSize", {"A4"});
    row("empty value ends the search", "A=\nA=2\n", "A", {"", "2"});
    row("line without equals is a key without value", "A\nA=2\n", "A", {"", "2"});
    row("letters beyond ASCII", "Name=Größe ✓\n", "Name", {"Größe ✓"});
    row("rubbish around", QByteArray("\0\xff\xfe=\n\n===\nA=1\n", 14), "A", {"1"});
    row("a line of 1030 characters is two lines", QByteArray(1023, 'x') + "=A=1\n", "A", {"1"});
    row("a line of a megabyte", "A=" + QByteArray(1 << 20, 'y') + "\nB=2\n", "B", {"2"});
}

void TestSettingsFile::valuesOfKey()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, key);
    QFETCH(QStringList, values);
    QVERIFY(setFileText(currentCfgPath, file));
    QCOMPARE(readSettingValues(key), values);
    QCOMPARE(readSetting(key), values.value(0));
    QCOMPARE(readSetting(key).isNull(), values.value(0).isEmpty());
}

void TestSettingsFile::noFileMeansNoValue()
{
    for (const QString &path : {QString(), directory->filePath("absent"), directory->path()}) {
        currentCfgPath = path;
        QVERIFY(readSetting("A").isNull());
        QVERIFY(readSettingValues("A").isEmpty());
    }
}

void TestSettingsFile::writtenFiles()
{
    const QString path = cfgPath("Office C3");
    QVERIFY(!cfgExists("Office C3"));
    writeCfg(path, {{"Name", "from the option"}, {"Name", "Größe = 1"}}, true);
    QVERIFY(cfgExists("Office C3"));
    QCOMPARE(fileText(path), QByteArray("Name=Größe = 1\nName=from the option\n"));
    writeProfile(path, {{"Empty", ""}}, false, "Two lines\\nof text");
    QCOMPARE(fileText(path),
             QByteArray("[Profile]\n[]\nProfileDescription=Two lines\\nof text\nEmpty=\n"));
    OptionStore store;
    store.setModelName("Brixola PX-4500");
    currentStore = &store;
    writeCfg(path, {{"A", "1"}}, false);
    currentStore = nullptr;
    QCOMPARE(fileText(path), QByteArray("[Profile]\n[Brixola PX-4500]\nA=1\n"));
}

void TestSettingsFile::directoryIsMadeWithItsParents()
{
    userDir = directory->path() + "/a/b/c/";
    const mode_t before = umask(022);
    ensureUserDir();
    umask(before);
    for (const char *path : {"a", "a/b", "a/b/c"}) {
        struct stat status;
        QCOMPARE(stat(QFile::encodeName(directory->filePath(path)), &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0755U);
    }
}

void TestSettingsFile::updateSetting_data()
{
    addColumns<QByteArray, QByteArray>("before", "after");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
        addRow(name, before, after);
    };
    row("replaced in place", "Telemetry=True\nFKP_server=old\nFKP_port=1\n",
        "Telemetry=True\nFKP_server=new\nFKP_port=1\n");
    row("added at the end", "Telemetry=True\n", "Telemetry=True\nFKP_server=new\n");
    row("every line that contains the text is replaced", "Note=see FKP_server\nXFKP_server2=1\n",
        "FKP_server=new\nFKP_server=new\n");
    row("last line without an end", "A=1\nFKP_server=old", "A=1\nFKP_server=new\n");
    row("empty file", "", "FKP_server=new\n");
    row("no file", {}, {});
}

void TestSettingsFile::updateSetting()
{
    QFETCH(QByteArray, before);
    const bool found = !before.isNull();
    const QString path = userDirectory() + "Settings";
    QDir(userDirectory()).removeRecursively();
    if (found)
        QVERIFY(setFileText(settingsPath(), before));
    QCOMPARE(::updateSetting("FKP_server", "new"), found);
    QTEST(fileText(path), "after");
    // The copy is begun even when there is nothing to copy.
    QCOMPARE(QFile::exists(path + "_tmp"), !found);
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
