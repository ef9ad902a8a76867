// The settings files: what is read from them, and what is left in them.

#include "storage/settingsfile.h"

#include "functiontests.h"
#include "model/optionstore.h"
#include "profiles/profilestore.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QTemporaryDir>

#include <climits>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestSettingsFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        userDir = directory->path() + "/user/";
        currentCfgPath = directory->filePath("printer.cfg");
    }
    void valuesOfKey_data();
    void valuesOfKey();
    void written();
    void directoryIsMadeWithItsParents();
    void updated_data();
    void updated();
    void wholeAtEachKill_data();
    void wholeAtEachKill();
    void wholeOnFullDisk_data();
    void wholeOnFullDisk();

private:
    void laySettings();
    static QByteArray savedText();

    std::unique_ptr<QTemporaryDir> directory;
};

void TestSettingsFile::valuesOfKey_data()
{
    // "/" stands for a line's end in the file, and is between the values.
    addRows({"file", "key", "values"}, R"(
the first one wins                    | M=b/Other=1/M=a/M=/M=b/  | M        | b/a//b
equals sign in the value              | Text=a=b==c/             | Text     | a=b==c
last line without an end              | A=1/B=2                  | B        | 2
keys are case-sensitive               | pagesize=A4/             | PageSize |
a longer key is another key           | PageSizeX=A3/PageSize=A4 | PageSize | A4
an empty value ends the search        | A=/A=2/                  | A        | /2
a line without equals is no entry     | A/A=2/A                  | A        | 2
letters beyond ASCII                  | Name=Größe ✓/            | Name     | Größe ✓
)");
    addRow("blanks belong to key and value", QString(" A =1/A= 2 "), QString("A"), QString(" 2 "));
    // Longer lines are taken apart.
    addRow("a line of 1030 characters", QString(1023, 'x') + "=A=1/", QString("A"), QString("1"));
    addRow("a line of a megabyte", "A=" + QString(1 << 20, 'y') + "/B=2/", QString("B"),
           QString("2"));
}

void TestSettingsFile::valuesOfKey()
{
    QFETCH(QString, file);
    QFETCH(QString, key);
    QVERIFY(setFileText(currentCfgPath, file.replace('/', '\n').toUtf8()));
    const QStringList values = readSettingValues(key);
    QTEST(values.join('/'), "values");
    QCOMPARE(readSetting(key), values.value(0));
    QCOMPARE(readSetting(key).isNull(), values.value(0).isEmpty());
}

void TestSettingsFile::written()
{
    const QString path = cfgPath("Office C3");
    QVERIFY(!cfgExists("Office C3"));
    writeCfg(path, {{"Name", "from the option"}, {"Name", "Größe = 1"}}, true);
    QVERIFY(cfgExists("Office C3"));
    // The last one inserted comes first, where readers stop.
    QCOMPARE(fileText(path), QByteArray("Name=Größe = 1\nName=from the option\n"));
    writeProfile(path, {{"Empty", ""}}, false, "Two lines\\nof text");
    QCOMPARE(fileText(path),
             QByteArray("[Profile]\n[]\nProfileDescription=Two lines\\nof text\nEmpty=\n"));
    OptionStore store;
    currentStore = &store;
    // What was pasted is no further entry.
    store.setModelName("Brixola\nPX-4500");
    writeCfg(path, {{"A\r", "1\r\nB=2"}}, false);
    currentStore = nullptr;
    QCOMPARE(fileText(path), QByteArray("[Profile]\n[Brixola PX-4500]\nA =1  B=2\n"));
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

void TestSettingsFile::updated_data()
{
    addRows({"before", "after"}, R"(
replaced in place                 | T=1/FKP_server=old/FKP_port=1/     | T=1/FKP_server=new/FKP_port=1/
added at the end                  | T=1/                               | T=1/FKP_server=new/
every line with the text          | Note=see FKP_server/XFKP_server2=1 | FKP_server=new/FKP_server=new/
empty file                        |                                    | FKP_server=new/
no file                           | -                                  | -
)");
}

void TestSettingsFile::updated()
{
    QFETCH(QString, before);
    const bool found = before != "-";
    const QString path = userDirectory() + "Settings";
    QDir(userDirectory()).removeRecursively();
    if (found)
        QVERIFY(setFileText(settingsPath(), before.replace('/', '\n').toUtf8()));
    QCOMPARE(updateSetting("FKP_server", "new"), found);
    QTEST(found ? QString(fileText(path).replace('\n', '/')) : "-", "after");
    // The copy is begun even when there is nothing to copy.
    QCOMPARE(QFile::exists(path + "_tmp"), !found);
}

// Each way to save is stopped, or refused the disk, where something is saved already: that or the
// new text has to be there afterwards, as a whole.

namespace {

const Settings changed{{"Key", QString(1 << 17, 'n')}};
const QByteArray textBefore =
    "[Profile]\nProfileDescription=old\nKey=" + QByteArray(300, 'o') + '\n';

const std::pair<const char *, bool (*)()> waysToSave[] = {
    {"a printer's settings", [] { return writeCfg(cfgPath("Office"), changed, true); }},
    {"a profile", [] { return writeProfile(cfgPath("Office"), changed, false, "new"); }},
    {"a new description", [] { return rewriteProfile("Office", "Office", QString(1 << 17, 'n')); }},
    {"a new name", [] { return rewriteProfile("Office", "Annex", QString(1 << 17, 'n')); }},
    {"the panel's settings", [] { return updateSetting("Key", QString(1 << 17, 'n')); }},
};

/// Runs it in a process of its own, and kills that as it enters or leaves system call `last`.
/// \return whether it ended before
bool runUntil(int last, bool (*save)())
{
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        _exit(save() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    for (int calls = 0; calls < last && WIFSTOPPED(status);) {
        const int signal = WSTOPSIG(status);
        const bool isCall = signal == SIGTRAP || signal == SIGSTOP;
        calls += isCall ? 1 : 0;
        ptrace(PTRACE_SYSCALL, child, nullptr, isCall ? 0 : signal);
        waitpid(child, &status, 0);
    }
    if (!WIFSTOPPED(status))
        return true;
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return false;
}

void addWaysToSave()
{
    QTest::addColumn<int>("way");
    for (int way = 0; way < int(std::size(waysToSave)); ++way)
        addRow(waysToSave[way].first, way);
}

} // namespace

void TestSettingsFile::laySettings()
{
    directory = std::make_unique<QTemporaryDir>();
    userDir = directory->path() + '/';
    QVERIFY(setFileText(cfgPath("Office"), textBefore) && setFileText(settingsPath(), textBefore));
}

/// What is saved by any name, but for the text from before; null if that isn't there either.
QByteArray TestSettingsFile::savedText()
{
    for (const QString &path : {cfgPath("Annex"), cfgPath("Office"), settingsPath()}) {
        const QByteArray text = fileText(path);
        if (text.isNull() && path != cfgPath("Annex") && !QFile::exists(cfgPath("Annex")))
            return QByteArray();
        if (!text.isNull() && text != textBefore)
            return text;
    }
    return textBefore;
}

void TestSettingsFile::wholeAtEachKill_data()
{
    addWaysToSave();
}

void TestSettingsFile::wholeAtEachKill()
{
    QFETCH(int, way);
    laySettings();
    QVERIFY(runUntil(INT_MAX, waysToSave[way].second));
    const QByteArray textAfter = savedText();
    QVERIFY(textAfter.size() > 1 << 17);
    int kills = 0;
    for (bool ended = false; !ended; ++kills) {
        laySettings();
        ended = runUntil(kills + 1, waysToSave[way].second);
        const QByteArray text = savedText();
        QVERIFY2(text == textBefore || text == textAfter, qPrintable(QString::number(kills)));
        QVERIFY(!ended || text == textAfter);
    }
    QVERIFY(kills > 20);
}

void TestSettingsFile::wholeOnFullDisk_data()
{
    addWaysToSave();
}

void TestSettingsFile::wholeOnFullDisk()
{
    QFETCH(int, way);
    // In a folder that takes no further file too.
    for (const bool closedFolder : {false, true}) {
        laySettings();
        const QString folder = way == 4 ? userDirectory() : userDir;
        const QStringList files = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden);
        chmod(QFile::encodeName(folder).constData(), closedFolder ? 0500 : 0700);
        // A limit to the size of files fails a write as a full disk does, for root too.
        rlimit usual{};
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit small{1 << 16, usual.rlim_max};
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
        const bool written = waysToSave[way].second();
        setrlimit(RLIMIT_FSIZE, &usual);
        std::signal(SIGXFSZ, handler);
        chmod(QFile::encodeName(folder).constData(), 0700);
        QVERIFY(!written);
        QCOMPARE(savedText(), textBefore);
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden), files);
    }
}

static const FunctionTests::Entry<TestSettingsFile> entry;
#include "settingsfile.moc"
