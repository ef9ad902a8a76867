#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"

#include <QTemporaryFile>
#include <QtTest>

namespace {

constexpr char header[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Manufacturer: "Brixola"
*Product: "(Test)"
*ModelName: "Brixola Test"
*ShortNickName: "Brixola Test"
*NickName: "Brixola Test"
*PSVersion: "(3010.000) 0"
)PPD";

/// An option of a PPD; the first choice is its default. Choices are separated by blanks.
QByteArray ui(const QByteArray &keyword, const QByteArray &choices)
{
    const QList<QByteArray> keys = choices.split(' ');
    QByteArray text = "*OpenUI *" + keyword + "/The " + keyword + ": PickOne\n*Default" + keyword +
                      ": " + keys.first() + "\n";
    for (const QByteArray &key : keys)
        text += "*" + keyword + " " + key + "/Text " + key + ": \"\"\n";
    return text + "*CloseUI: *" + keyword + "\n";
}

std::unique_ptr<OptionStore> import(const QByteArray &body)
{
    QTemporaryFile file;
    if (!file.open())
        return nullptr;
    file.write(header + body);
    file.close();
    return importPpdFile(file.fileName());
}

OptionChoice *choice(const OptionStore &store, const char *option, const char *key)
{
    const bOption *found = store.find(QLatin1String(option));
    return found ? found->findChoice(QLatin1String(key)) : nullptr;
}

/// The values that one excludes, as "Option=Choice", sorted and joined by blanks.
QString conflicts(const OptionStore &store, const char *option, const char *key)
{
    const OptionChoice *source = choice(store, option, key);
    if (!source)
        return QStringLiteral("no such value");
    QStringList names;
    const QList<OptionRef> pairs = source->pairConstraintList();
    for (const OptionRef &other : pairs)
        names.append(other.option->key() + QLatin1Char('=') + other.choice->key());
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// The three-way rules of a value, in order, as "A=1>B=2>C=3".
QStringList groups(const OptionStore &store, const char *option, const char *key)
{
    QStringList rules;
    const OptionChoice *source = choice(store, option, key);
    const QList<OptionRefList> lists =
        source ? source->groupConstraintList() : QList<OptionRefList>();
    for (const OptionRefList &list : lists) {
        QStringList names;
        for (const OptionRef &entry : list)
            names.append(entry.option->key() + QLatin1Char('=') + entry.choice->key());
        rules.append(names.join(QLatin1Char('>')));
    }
    return rules;
}

} // namespace

class TestPpdImport : public QObject
{
    Q_OBJECT

private slots:
    void emptyPpdHasThePolicyOptions();
    void optionsKeepOrderTextAndDefault();
    void brokenDefaultSelectsNothing();
    void doubledOptionKeepsTheLater();
    void filters_data();
    void filters();
    void abilities_data();
    void abilities();
    void pairRules_data();
    void pairRules();
    void groupRules_data();
    void groupRules();
    void defaultsBlockAtOnce();
    void priorities_data();
    void priorities();
};

void TestPpdImport::emptyPpdHasThePolicyOptions()
{
    const auto store = import(QByteArray());
    QStringList keys;
    const QList<bOption *> options = store->optionList();
    for (const bOption *option : options) {
        keys.append(option->key());
        QVERIFY(!option->isPpdOption());
        QVERIFY(!option->current() && !option->defaultChoice());
        QCOMPARE(option->choiceList().first()->key(), QStringLiteral("Off"));
    }
    keys.sort();
    QCOMPARE(keys.join(QLatin1Char(' ')),
             QStringLiteral("FKPColorMode FKPDuplex FKPLeanprint FKPToggle"));
    QCOMPARE(store->modelName(), QStringLiteral("Brixola Test"));
    QVERIFY(store->printerName().isEmpty());
}

void TestPpdImport::optionsKeepOrderTextAndDefault()
{
    const auto store = import(ui("MediaType", "Plain Heavy Label"));
    const bOption *option = store->find(QStringLiteral("MediaType"));
    QVERIFY(option->isPpdOption());
    QCOMPARE(option->text(), QStringLiteral("The MediaType"));
    QStringList keys;
    const QList<OptionChoice *> choices = option->choiceList();
    for (const OptionChoice *choice : choices)
        keys.append(choice->key());
    QCOMPARE(keys.join(QLatin1Char(' ')), QStringLiteral("Plain Heavy Label"));
    QCOMPARE(option->findChoiceByText(QStringLiteral("Text Heavy"))->key(),
             QStringLiteral("Heavy"));
    QCOMPARE(option->defaultChoice(), choices.first());
    QCOMPARE(option->current(), choices.first());
}

void TestPpdImport::brokenDefaultSelectsNothing()
{
    QByteArray text = ui("MediaType", "Plain Heavy");
    text.replace("*DefaultMediaType: Plain", "*DefaultMediaType: Velvet");
    const auto store = import(text);
    const bOption *option = store->find(QStringLiteral("MediaType"));
    QVERIFY(!option->defaultChoice());
    QCOMPARE(option->currentKey(), QStringLiteral("MediaTypeNULL"));
}

void TestPpdImport::doubledOptionKeepsTheLater()
{
    const auto store = import("*OpenGroup: One\n" + ui("Fold", "A B") + "*CloseGroup: One\n" +
                              "*OpenGroup: Two\n" + ui("Fold", "C D E") + "*CloseGroup: Two\n");
    QCOMPARE(store->find(QStringLiteral("Fold"))->choiceList().last()->key(), QStringLiteral("E"));
}

void TestPpdImport::filters_data()
{
    QTest::addColumn<QByteArray>("filter");
    QTest::addColumn<bool>("rasterOrPdf");
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("PostScript") << QByteArray("application/vnd.cups-postscript 0 bixfilter_F")
                                << false;
    QTest::newRow("raster") << QByteArray("application/vnd.cups-raster 0 bixfilter_ras_F") << true;
    QTest::newRow("pdf in the type")
        << QByteArray("application/vnd.cups-pdf 0 bixfilter_F") << true;
}

void TestPpdImport::filters()
{
    QFETCH(QByteArray, filter);
    QFETCH(bool, rasterOrPdf);
    const auto store = import(filter.isEmpty() ? filter : "*cupsFilter: \"" + filter + "\"\n");
    QCOMPARE(store->rasterOrPdfFilter(), rasterOrPdf);
}

void TestPpdImport::abilities_data()
{
    QTest::addColumn<QByteArray>("ppd");
    QTest::addColumn<QString>("keys"); // the panel's own options but for the policy's, sorted

    const auto row = [](const char *name, const QByteArray &ppd, const char *keys) {
        QTest::newRow(name) << ppd << QString::fromLatin1(keys);
    };
    row("folding", ui("FldA", "None Bifold Trifold"), "cBiFld cTriFld");
    row("folding of other kinds", ui("FldA", "None Zfold"), "cBiFld cTriFld");
    row("punching and stapling", ui("Pnch", "None Two") + ui("Stpl", "None Top"), "cHole cStpl");
    row("covers", ui("CvrM", "None Front"),
        "cCovBRad cCovBut cCovPOBI cCovPOBO cCovPOFI cCovPOFO cCovTRad cInsBut cInsPrnB cInsPrnF "
        "cIntBut cIntPrn");
    row("storage and accounting", ui("BXCollate1", "None Proof") + ui("BqManagment", "Off On"),
        "cJobAccount cJobStore");
    row("presence is enough",
        "*SupportsUserLogin: \"False\"\n*JobFinishNotice: \"no\"\n*SupportsCustomJobName: \"\"\n"
        "*SupportsCustomBox: \"False\"\n",
        "cCustomBox cEmail cJobName cUserLogin");
    row("private print", "*SupportsPrivatePrint: \"True\"\n", "cPrivatePrint");
    row("private print refused", "*SupportsPrivatePrint: \"False\"\n", "");
    row("private print in other letters", "*SupportsPrivatePrint: \"true\"\n", "");
    row("super watermark", ui("BXSuperWatermark", "None All"), "cSuper");
}

void TestPpdImport::abilities()
{
    QFETCH(QByteArray, ppd);
    QFETCH(QString, keys);
    const auto store = import(ppd);
    QStringList found;
    const QList<bOption *> options = store->optionList();
    for (const bOption *option : options) {
        if (option->isPpdOption() || option->key().startsWith(QLatin1String("FKP")))
            continue;
        found.append(option->key());
        QCOMPARE(option->choiceCount(), 2);
        QCOMPARE(option->choiceList().first()->key(), QStringLiteral("False"));
        QCOMPARE(option->choiceList().last()->text(), QStringLiteral("True"));
        QVERIFY(!option->current());
    }
    found.sort();
    QCOMPARE(found.join(QLatin1Char(' ')), keys);
}

void TestPpdImport::pairRules_data()
{
    QTest::addColumn<QByteArray>("ppd");
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QString>("conflicts"); // sorted

    const auto row = [](const char *name, const QByteArray &ppd, const char *option,
                        const char *choice, const char *conflicts) {
        QTest::newRow(name) << ppd << QByteArray(option) << QByteArray(choice)
                            << QString::fromLatin1(conflicts);
    };
    const QByteArray coll = ui("Coll", "True False");
    const QByteArray storage = ui("Option18", "None Disk");
    const QByteArray duplex = ui("Duplex", "None DuplexTumble DuplexNoTumble");
    const QByteArray media = ui("MediaType", "Plain Transparency Label");
    const QByteArray paper = ui("PageSize", "A4 A5");

    row("a rule written twice, and both ways, is one",
        media + paper +
            "*UIConstraints: *MediaType Label *PageSize A5\n"
            "*UIConstraints: *PageSize A5 *MediaType Label\n"
            "*UIConstraints: *MediaType Label *PageSize A5\n",
        "MediaType", "Label", "PageSize=A5");
    row("unknown options and values make no rule",
        media + "*UIConstraints: *MediaType Label *Nothing A5\n"
                "*UIConstraints: *MediaType Label *MediaType Velvet\n"
                "*UIConstraints: *MediaType *PageSize\n",
        "MediaType", "Label", "");
    row("collation and storage have rules of their own",
        coll + ui("BXCollate1", "None Proof") +
            "*UIConstraints: *Coll False *BXCollate1 Proof\n"
            "*UIConstraints: *BXCollate1 Proof *Coll False\n",
        "BXCollate1", "Proof", "");
    row("a fold mode has the conflicts of its fold",
        ui("FldA", "None Bifold Trifold") + media + paper +
            "*UIConstraints: *FldA Bifold *MediaType Label\n"
            "*UIConstraints: *FldA Trifold *PageSize A5\n",
        "cBiFld", "True", "MediaType=Label cTriFld=True");
    row("a punch mode has what all punches share",
        ui("Pnch", "None Two Three") + media + paper +
            "*UIConstraints: *Pnch Two *MediaType Label\n"
            "*UIConstraints: *Pnch Two *PageSize A5\n"
            "*UIConstraints: *Pnch Three *MediaType Label\n"
            "*UIConstraints: *Pnch None *PageSize A4\n",
        "cHole", "True", "MediaType=Label");
    row("with nothing in common the last style counts",
        ui("Stpl", "None One Two Three") + media + paper +
            "*UIConstraints: *Stpl One *MediaType Label\n"
            "*UIConstraints: *Stpl Two *PageSize A5\n"
            "*UIConstraints: *Stpl Three *PageSize A4\n",
        "cStpl", "True", "PageSize=A4");
    row("a mode without styles has no conflicts", ui("Pnch", "None"), "cHole", "True", "");
    row("cover mode off", ui("CvrM", "None Front"), "cCovBut", "False",
        "cCovPOBI=True cCovPOBO=True cCovPOFI=True cCovPOFO=True");
    row("interleaving takes transparencies alone", ui("CvrM", "None Front") + media, "cIntBut",
        "True", "FKPToggle=On MediaType=Label MediaType=Plain cCovBut=True cInsBut=True");
    row("no sorting, no sets",
        coll + ui("CvrM", "None Front") + ui("BXCollate1", "None Proof") +
            ui("BXSuperWatermark", "None All"),
        "Coll", "False", "cCovBut=True cInsBut=True cIntBut=True cJobStore=True cSuper=True");
    row("no storage, no sets that need it",
        coll + storage + ui("CvrM", "None Front") + ui("BXCollate1", "None Proof") +
            "*SupportsPrivatePrint: \"True\"\n*SupportsCustomBox: \"True\"\n",
        "Option18", "None",
        "BXCollate1=Proof cCovBut=True cCustomBox=True cInsBut=True cIntBut=True cJobStore=True "
        "cPrivatePrint=True");
    row("forced duplex has the conflicts of duplex, those that rank lower",
        duplex + paper + ui("OutputBin", "Top Side") +
            "*UIConstraints: *Duplex DuplexTumble *OutputBin Side\n"
            "*UIConstraints: *Duplex DuplexNoTumble *PageSize A5\n",
        "FKPDuplex", "On", "Duplex=None FKPToggle=Off OutputBin=Side");
    row("policy", ui("ColorModel", "CMYK RGB Gray"), "FKPColorMode", "On",
        "ColorModel=CMYK ColorModel=RGB FKPToggle=Off");
    row("coloured watermarks need colour",
        ui("ColorModel", "CMYK Gray") + ui("Wclr", "Black Red Green Blue"), "ColorModel", "Gray",
        "Wclr=Blue Wclr=Green Wclr=Red");
}

void TestPpdImport::pairRules()
{
    QFETCH(QByteArray, ppd);
    QFETCH(QByteArray, option);
    QFETCH(QByteArray, choice);
    const auto store = import(ppd);
    QTEST(::conflicts(*store, option.constData(), choice.constData()), "conflicts");
}

void TestPpdImport::groupRules_data()
{
    QTest::addColumn<QByteArray>("ppd");
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QStringList>("rules");

    const auto row = [](const char *name, const QByteArray &ppd, const char *option,
                        const char *choice, const QStringList &rules) {
        QTest::newRow(name) << ppd << QByteArray(option) << QByteArray(choice) << rules;
    };
    const QByteArray staple = ui("Stpl", "None Top");
    const QByteArray media = ui("InputSlot", "Auto Tray1") + ui("PageSize", "A4 A5");
    const auto ppdRule = [](const QByteArray &value) {
        return "*cupsUIConstraints: \"" + value + "\"\n";
    };

    row("sorted by rank, the lowest last",
        staple + media + ppdRule("*Stpl Top *PageSize A4 *InputSlot Tray1"), "PageSize", "A4",
        {QStringLiteral("InputSlot=Tray1>PageSize=A4>cStpl=True")});
    row("any staple style, even none",
        staple + media + ppdRule("*Stpl None *PageSize A4 *InputSlot Tray1"), "cStpl", "True",
        {QStringLiteral("InputSlot=Tray1>PageSize=A4>cStpl=True")});
    row("folds by their choice, whatever the keyword",
        ui("FldA", "None Bifold Trifold") + media +
            ppdRule("*FldB Bifold *PageSize A4 *InputSlot Tray1"),
        "cBiFld", "True", {QStringLiteral("InputSlot=Tray1>PageSize=A4>cBiFld=True")});
    row("two values make no rule", media + ppdRule("*PageSize A4 *InputSlot Tray1"), "PageSize",
        "A4", {});
    row("an unknown value drops the rule",
        staple + media + ppdRule("*Stpl Top *PageSize A3 *InputSlot Tray1"), "cStpl", "True", {});
    row("rubbish", staple + media + ppdRule("Stpl Top ** PageSize"), "PageSize", "A4", {});
    row("the same rule twice is one",
        staple + media + ppdRule("*Stpl Top *PageSize A4 *InputSlot Tray1") +
            ppdRule("*InputSlot Tray1 *PageSize A4 *Stpl Other"),
        "InputSlot", "Tray1", {QStringLiteral("InputSlot=Tray1>PageSize=A4>cStpl=True")});
    row("options without a rank",
        ui("X", "0 1") + ui("Y", "0 1") + ui("Z", "0 1") + ppdRule("*X 1 *Y 1 *Z 1"), "Z", "1",
        {QStringLiteral("X=1>Y=1>Z=1>Y=1>X=1>Z=1>Z=1>X=1>Y=1")});
    row("rising to the left",
        staple + media + ppdRule("*PageSize A4 *InputSlot Tray1 *Stpl Top") +
            ui("Duplex", "None Tumble") + ppdRule("*Duplex Tumble *InputSlot Tray1 *PageSize A4"),
        "Duplex", "Tumble",
        {QStringLiteral("InputSlot=Tray1>PageSize=A4>Duplex=Tumble>PageSize=A4>InputSlot=Tray1>"
                        "Duplex=Tumble")});
    row("booklets and short paper against stapling",
        staple + media + ui("BXBooklet", "None Left Right") + ui("Option22", "False True"), "cStpl",
        "True",
        {QStringLiteral("Option22=False>BXBooklet=Left>cStpl=True"),
         QStringLiteral("Option22=False>BXBooklet=Right>cStpl=True"),
         QStringLiteral("PageSize=A5>BXBooklet=None>cStpl=True")});
}

void TestPpdImport::groupRules()
{
    QFETCH(QByteArray, ppd);
    QFETCH(QByteArray, option);
    QFETCH(QByteArray, choice);
    const auto store = import(ppd);
    QTEST(groups(*store, option.constData(), choice.constData()), "rules");
}

void TestPpdImport::defaultsBlockAtOnce()
{
    // Only the PPD's own pairs act before the pages load, and with equal ranks both sides block.
    const auto store =
        import(ui("PageSize", "A5 A4") + ui("Duplex", "Tumble None") + ui("CvrM", "None Front") +
               "*UIConstraints: *PageSize A5 *Duplex Tumble\n");
    QVERIFY(choice(*store, "PageSize", "A5")->isBlocked());
    QVERIFY(choice(*store, "Duplex", "Tumble")->isBlocked());
    QVERIFY(!choice(*store, "cCovPOFI", "True")->isBlocked());
    store->releaseAllConstraints();
    QVERIFY(!choice(*store, "Duplex", "Tumble")->isBlocked());
    QCOMPARE(store->find(QStringLiteral("Duplex"))->currentKey(), QStringLiteral("Tumble"));
}

void TestPpdImport::priorities_data()
{
    QTest::addColumn<int>("priority");
    QTest::newRow("Option17") << 0;
    QTest::newRow("Option01") << 1;
    QTest::newRow("ColorModel") << 2;
    QTest::newRow("Wang") << 3;
    QTest::newRow("BXBooklet") << 5;
    QTest::newRow("WTyp") << 6;
    QTest::newRow("Wtyp") << 99; // another spelling, another option
    QTest::newRow("BXCollate1") << 7;
    QTest::newRow("Tmed") << 8;
    QTest::newRow("OutputBin") << 9;
    QTest::newRow("Coll") << 10;
    QTest::newRow("Unheard") << 99;
}

void TestPpdImport::priorities()
{
    QFETCH(int, priority);
    const QByteArray keyword = QTest::currentDataTag();
    const auto store = import(ui(keyword, "A B"));
    QCOMPARE(store->find(QString::fromLatin1(keyword))->priority(), priority);
}

QTEST_GUILESS_MAIN(TestPpdImport)
#include "tst_ppdimport.moc"
