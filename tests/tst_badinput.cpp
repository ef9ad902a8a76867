// What a real machine may throw at the panel: PPDs and settings files that are not as they should
// be. Nothing here may crash, hang, or lose what is well.

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "pages/basic/generaltab.h"
#include "pages/printer/printertab.h"
#include "storage/settingsfile.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QTemporaryDir>

namespace {

QByteArray rubbish(int size, int shift)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 7919) >> shift);
    return bytes;
}

QByteArray samplePpd()
{
    return fileText(PrintServer::sourceFile("demo/ppd/mx210.ppd"));
}

/// The sample with its media types replaced.
QByteArray withMediaType(const QByteArray &lines)
{
    QByteArray text = samplePpd();
    const int begin = text.indexOf("*OpenUI *MediaType");
    const int end = text.indexOf("*CloseUI: *MediaType");
    return text.replace(begin, end - begin, "*OpenUI *MediaType/Media: PickOne\n" + lines);
}

/// Pages on the options of a PPD, as the main window would have them.
struct Pages
{
    ~Pages() { currentStore = nullptr; }

    /// Loads the pages with a PPD. False if it can't be opened: then there is no printer.
    bool load(const QByteArray &ppd)
    {
        const QString path = directory.filePath("bad.ppd");
        if (!setFileText(path, ppd))
            qFatal("can't write the PPD");
        store = importPpdFile(path);
        currentStore = store.get();
        for (Tab *page : {static_cast<Tab *>(&printer), static_cast<Tab *>(&general)}) {
            page->retranslate();
            page->reload();
            page->enableOptions();
            page->beforeConstraints();
            page->clearMarks();
            page->markConstraintWidgets();
        }
        return store != nullptr;
    }

    QTemporaryDir directory;
    std::unique_ptr<OptionStore> store;
    RecordingDialog dialog;
    GeneralTab general{&dialog};
    PrinterTab printer{&dialog};
};

} // namespace

class TestBadInput : public QObject
{
    Q_OBJECT

private slots:
    void ppdCutOffAnywhere();
    void brokenPpd_data();
    void brokenPpd();
    void markupInPpdIsText();
    void brokenSettings_data();
    void brokenSettings();
};

void TestBadInput::ppdCutOffAnywhere()
{
    const QByteArray whole = samplePpd();
    QVERIFY(whole.size() > 10000);
    Pages pages;
    int opened = 0;
    for (int length = 0; length < whole.size(); length += 50)
        opened += pages.load(whole.left(length)) ? 1 : 0;
    QVERIFY(opened > 0);
}

void TestBadInput::brokenPpd_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("opens");

    const QByteArray binary = rubbish(4096, 3);
    addRow("empty", QByteArray(""), false);
    addRow("no PPD at all", QByteArray("Hello\n"), false);
    addRow("binary", binary, false);
    addRow("binary after the header", "*PPD-Adobe: \"4.3\"\n*ModelName: \"X\"\n" + binary, false);
    QByteArray constraints = "*UIConstraints: *Duplex None *PageSize A5\n";
    for (int i = 0; i < 7; ++i)
        constraints +=
            "*UIConstraints: *PageSize A4 *MediaType Heavy" + QByteArray::number(i) + '\n';
    addRow("16,000 constraints", samplePpd() + constraints.repeated(2000), true);
    addRow("doubled option",
           samplePpd() + "*OpenUI *PageSize/Again: PickOne\n*DefaultPageSize: Tiny\n"
                         "*PageSize Tiny/Tiny: \"\"\n*CloseUI: *PageSize\n",
           true);
    addRow("PickMany",
           samplePpd().replace("*OpenUI *MediaType", "*OpenUI *MediaType/M: PickMany\n*% "), true);

    const auto mediaRow = [](const char *name, const QByteArray &lines, bool opens = true) {
        addRow(name, withMediaType(lines), opens);
    };
    const QByteArray longText(79, 'x');
    mediaRow("unknown default", "*DefaultMediaType: Velvet\n*MediaType Plain/Plain: \"\"\n");
    mediaRow("no default", "*MediaType Plain/Plain: \"\"\n");
    mediaRow("no choices", "*DefaultMediaType: Plain\n");
    mediaRow("choices without text",
             "*DefaultMediaType: Plain\n*MediaType Plain: \"\"\n*MediaType Heavy: \"\"\n");
    mediaRow("doubled choices and texts", "*DefaultMediaType: A\n*MediaType A/Same: \"\"\n"
                                          "*MediaType A/Same: \"\"\n*MediaType B/Same: \"\"\n");
    mediaRow("letters beyond ASCII",
             "*DefaultMediaType: A\n*MediaType A/\xe4\xf6\xfc \xff<>: \"\"\n");
    mediaRow("long text", "*DefaultMediaType: A\n*MediaType A/" + longText + ": \"\"\n");
    mediaRow("over-long text",
             "*DefaultMediaType: A\n*MediaType A/" + longText.repeated(40) + ": \"\"\n", false);
}

void TestBadInput::brokenPpd()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, opens);
    Pages pages;
    QCOMPARE(pages.load(text), opens);
    const QHash<QString, QString> settings = pages.general.collectSettings();
    // What the rest of the PPD says still stands.
    QCOMPARE(settings.contains("Duplex"), opens);
    for (const char *keyword : {"PageSize", "MediaType", "Duplex"}) {
        const QString value = settings.value(keyword);
        if (!value.isEmpty())
            QVERIFY2(pages.store->find(keyword)->hasChoice(value), keyword);
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
    Pages pages;
    QVERIFY(pages.load(text));

    auto *media = findNamed<QLabel>(&pages.general, "lblMediaType");
    QCOMPARE(media->text(), QString("<img src='file' >:"));
    QCOMPARE(media->textFormat(), Qt::PlainText);
    const auto *disk = findNamed<QLabel>(&pages.printer, "lblOption8");
    QCOMPARE(disk->text(), QString("<i>slanted</i>:"));
    QCOMPARE(disk->textFormat(), Qt::PlainText);
    QCOMPARE(findNamed<ComboBoxEx>(&pages.general, "cmbBxMediaType")->currentText(),
             QString("<u>under</u> & co"));
    // A check box shows "&&" as the character.
    QCOMPARE(findNamed<QCheckBox>(&pages.printer, "chkBxOption01")->text(),
             QString("<h1>Big</h1> && more"));

    pages.general.markKeyword("MediaType", QString());
    QCOMPARE(media->textFormat(), Qt::RichText);
    QVERIFY(media->text().startsWith("&lt;img src='file' &gt;: <img src=':/"));
}

void TestBadInput::brokenSettings_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("paper");
    const QByteArray bytes = rubbish(100000, 2);
    const QByteArray longLine(1024 * 1024, 'z');
    addRow("rubbish", bytes, "A4");
    addRow("a setting after rubbish", bytes + "\nPageSize=A5\n", "A5");
    addRow("lines of a megabyte", longLine + '\n' + longLine + "=1\nPageSize=A5\n", "A5");
    addRow("a value of a megabyte", "PageSize=" + longLine + "\nPageSize=A5\n", "A4");
    addRow("carriage returns", QByteArray("PageSize=A5\r\nDuplex=None\r\n"), "A5");
}

void TestBadInput::brokenSettings()
{
    QFETCH(QByteArray, file);
    Pages pages;
    currentCfgPath = pages.directory.filePath("printer.cfg");
    QVERIFY(setFileText(currentCfgPath, file));
    QVERIFY(pages.load(samplePpd()));
    QTEST(pages.general.collectSettings().value("PageSize"), "paper");
    currentCfgPath.clear();
}

QTEST_MAIN(TestBadInput)
#include "tst_badinput.moc"
