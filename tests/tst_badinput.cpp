// What a real machine may throw at the panel: PPDs, settings files and user directories that are
// not as they should be. Nothing here may crash, hang, or lose what is well.

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "pages/generaltab.h"
#include "pages/printertab.h"
#include "storage/settingsfile.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray samplePpd()
{
    return fileText(PrintServer::sourceFile(QStringLiteral("demo/ppd/mx210.ppd")));
}

/// The sample with its media types replaced.
QByteArray withMediaType(const QByteArray &lines)
{
    QByteArray text = samplePpd();
    const int begin = text.indexOf("*OpenUI *MediaType");
    const QByteArray last = "*CloseUI: *MediaType";
    const int end = text.indexOf(last);
    return text.replace(begin, end - begin, "*OpenUI *MediaType/Media: PickOne\n" + lines);
}

/// Pages on the options of a PPD, as the main window would have them.
struct Pages
{
    RecordingDialog dialog;
    GeneralTab general{&dialog};
    PrinterTab printer{&dialog};

    void reload()
    {
        if (currentStore)
            currentStore->releaseAllConstraints();
        for (Tab *page : {static_cast<Tab *>(&printer), static_cast<Tab *>(&general)}) {
            page->retranslate();
            page->reload();
            page->enableOptions();
            page->beforeConstraints();
            page->clearMarks();
            page->markConstraintWidgets();
        }
    }
};

} // namespace

class TestBadInput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ppdCutOffAnywhere();
    void brokenPpd_data();
    void brokenPpd();
    void markupInPpdIsText();
    void brokenSettings_data();
    void brokenSettings();
    void userDirectory_data();
    void userDirectory();

private:
    std::unique_ptr<OptionStore> importText(const QByteArray &text);

    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<OptionStore> store;
};

void TestBadInput::init()
{
    directory = std::make_unique<QTemporaryDir>();
    userDir = directory->path() + QStringLiteral("/user/");
    currentCfgPath.clear();
}

void TestBadInput::cleanup()
{
    currentStore = nullptr;
    store.reset();
}

std::unique_ptr<OptionStore> TestBadInput::importText(const QByteArray &text)
{
    const QString path = directory->filePath(QStringLiteral("bad.ppd"));
    if (!setFileText(path, text))
        qFatal("can't write the PPD");
    return importPpdFile(path);
}

void TestBadInput::ppdCutOffAnywhere()
{
    const QByteArray whole = samplePpd();
    QVERIFY(whole.size() > 10000);
    Pages pages;
    int opened = 0;
    for (int length = 0; length < whole.size(); length += 50) {
        store = importText(whole.left(length));
        currentStore = store.get();
        if (!store)
            continue;
        ++opened;
        // The pages of every tenth are enough; the import is what meets the torn line.
        if (opened % 10 == 0)
            pages.reload();
    }
    QVERIFY(opened > 0);
}

void TestBadInput::brokenPpd_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("opens");

    QByteArray binary(4096, '\0');
    for (int i = 0; i < binary.size(); ++i)
        binary[i] = char((i * 7919) >> 3);
    QByteArray constraints = samplePpd();
    for (int i = 0; i < 10000; ++i)
        constraints += "*UIConstraints: *PageSize A4 *MediaType Heavy" + QByteArray::number(i % 7) +
                       "\n*UIConstraints: *Duplex None *PageSize A5\n";
    const QByteArray longText(79, 'x');

    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no PPD at all") << QByteArray("Hello\n") << false;
    QTest::newRow("binary") << binary << false;
    QTest::newRow("binary after the header")
        << "*PPD-Adobe: \"4.3\"\n*ModelName: \"X\"\n" + binary << false;
    QTest::newRow("20,000 constraints") << constraints << true;
    QTest::newRow("unknown default")
        << withMediaType("*DefaultMediaType: Velvet\n*MediaType Plain/Plain: \"\"\n") << true;
    QTest::newRow("no default") << withMediaType("*MediaType Plain/Plain: \"\"\n") << true;
    QTest::newRow("no choices") << withMediaType("*DefaultMediaType: Plain\n") << true;
    QTest::newRow("doubled option")
        << samplePpd() + "*OpenUI *PageSize/Again: PickOne\n*DefaultPageSize: Tiny\n" +
               "*PageSize Tiny/Tiny: \"\"\n*CloseUI: *PageSize\n"
        << true;
    QTest::newRow("choices without text")
        << withMediaType(
               "*DefaultMediaType: Plain\n*MediaType Plain: \"\"\n*MediaType Heavy: \"\"\n")
        << true;
    QTest::newRow("doubled choices and texts")
        << withMediaType("*DefaultMediaType: A\n*MediaType A/Same: \"\"\n*MediaType A/Same: \"\"\n"
                         "*MediaType B/Same: \"\"\n")
        << true;
    QTest::newRow("letters beyond ASCII")
        << withMediaType("*DefaultMediaType: A\n*MediaType A/\xe4\xf6\xfc \xff<>: \"\"\n") << true;
    QTest::newRow("long texts") << withMediaType("*DefaultMediaType: A\n*MediaType A/" + longText +
                                                 ": \"\"\n")
                                << true;
    QTest::newRow("over-long text")
        << withMediaType("*DefaultMediaType: A\n*MediaType A/" + longText.repeated(40) + ": \"\"\n")
        << false;
    QTest::newRow("PickMany") << samplePpd().replace("*OpenUI *MediaType",
                                                     "*OpenUI *MediaType/M: PickMany\n*% ")
                              << true;
}

void TestBadInput::brokenPpd()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, opens);
    store = importText(text);
    QCOMPARE(store != nullptr, opens);
    currentStore = store.get();
    Pages pages;
    pages.reload();
    const QHash<QString, QString> settings = pages.general.collectSettings();
    // What the rest of the PPD says still stands.
    QCOMPARE(settings.contains(QStringLiteral("Duplex")), opens);
    for (const char *keyword : {"PageSize", "MediaType", "Duplex"}) {
        const QString value = settings.value(QLatin1String(keyword));
        if (!value.isEmpty())
            QVERIFY2(store->find(QLatin1String(keyword))->hasChoice(value), keyword);
    }
}

void TestBadInput::markupInPpdIsText()
{
    QByteArray text = withMediaType("*DefaultMediaType: A\n*MediaType A/<u>under</u> & co: \"\"\n");
    text.replace("*OpenUI *MediaType/Media", "*OpenUI *MediaType/<img src='file' >");
    text += "*OpenGroup: InstallableOptions/Installed\n"
            "*OpenUI *Option01/<h1>Big</h1> & more: Boolean\n*DefaultOption01: False\n"
            "*Option01 False/No: \"\"\n*Option01 True/Yes: \"\"\n*CloseUI: *Option01\n"
            "*OpenUI *Option8/<i>slanted</i>: PickOne\n*DefaultOption8: A\n"
            "*Option8 A/<u>A</u>: \"\"\n*CloseUI: *Option8\n"
            "*CloseGroup: InstallableOptions\n";
    store = importText(text);
    QVERIFY(store);
    currentStore = store.get();
    Pages pages;
    pages.reload();

    QStringList shown;
    const QList<QLabel *> labels =
        pages.general.findChildren<QLabel *>() + pages.printer.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text().contains(QLatin1Char('<'))) {
            QCOMPARE(label->textFormat(), Qt::PlainText);
            shown.append(label->text());
        }
    }
    QVERIFY(shown.contains(QStringLiteral("<img src='file' >:")));
    QVERIFY(shown.contains(QStringLiteral("<i>slanted</i>:")));
    QCOMPARE(findNamed<ComboBoxEx>(&pages.general, "cmbBxMediaType")->currentText(),
             QStringLiteral("<u>under</u> & co"));
    // A check box shows "&&" as the character.
    QCOMPARE(findNamed<QCheckBox>(&pages.printer, "chkBxOption01")->text(),
             QStringLiteral("<h1>Big</h1> && more"));

    pages.general.markKeyword(QStringLiteral("MediaType"), QString());
    const auto marked = std::find_if(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->textFormat() == Qt::RichText;
    });
    QVERIFY(marked != labels.end());
    QVERIFY((*marked)->text().startsWith(QLatin1String("&lt;img src='file' &gt;: <img src=':/")));
}

void TestBadInput::brokenSettings_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("paper");

    QByteArray rubbish(100000, '\0');
    for (int i = 0; i < rubbish.size(); ++i)
        rubbish[i] = char((i * 7919) >> 2);
    const QByteArray longLine(1024 * 1024, 'z');
    QTest::newRow("rubbish") << rubbish << QStringLiteral("A4");
    QTest::newRow("a setting after rubbish") << rubbish + "\nPageSize=A5\n" << QStringLiteral("A5");
    QTest::newRow("lines of a megabyte") << longLine + "\n" + longLine + "=1\nPageSize=A5\n"
                                         << QStringLiteral("A5");
    QTest::newRow("a value of a megabyte") << "PageSize=" + longLine + "\nPageSize=A5\n"
                                           << QStringLiteral("A4");
    QTest::newRow("carriage returns")
        << QByteArray("PageSize=A5\r\nDuplex=None\r\n") << QStringLiteral("A5");
}

void TestBadInput::brokenSettings()
{
    QFETCH(QByteArray, file);
    Pages pages;
    store = importText(samplePpd());
    QVERIFY(store);
    currentStore = store.get();
    currentCfgPath = directory->filePath(QStringLiteral("printer.cfg"));
    QVERIFY(setFileText(currentCfgPath, file));

    pages.reload();
    QTEST(pages.general.collectSettings().value(QStringLiteral("PageSize")), "paper");
}

void TestBadInput::userDirectory_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("can't be written to") << false;
    QTest::newRow("a file stands in its place") << true;
}

void TestBadInput::userDirectory()
{
    QFETCH(bool, isFile);
    const QByteArray encoded = QFile::encodeName(userDir).chopped(1);
    currentCfgPath = cfgPath(QStringLiteral("P"));
    if (isFile) {
        QVERIFY(setFileText(userDir.chopped(1), ""));
    } else {
        writeCfg(currentCfgPath, {{QStringLiteral("A"), QStringLiteral("old")}}, true);
        QCOMPARE(chmod(encoded.constData(), 0555), 0);
    }
    writeCfg(currentCfgPath, {{QStringLiteral("A"), QStringLiteral("new")}}, true);
    const QString value = readSetting(QStringLiteral("A"));
    chmod(encoded.constData(), 0755);
    QVERIFY(isFile ? value.isNull()
                   : value == QLatin1String("old") || value == QLatin1String("new"));
}

QTEST_MAIN(TestBadInput)
#include "tst_badinput.moc"
