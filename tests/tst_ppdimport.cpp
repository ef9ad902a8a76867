#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "support/testhelpers.h"

#include <QTemporaryFile>

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

/// An option of a PPD; its first choice is the default.
QString optionText(const QString &keyword, const QStringList &choices)
{
    QString text = QStringLiteral("*OpenUI *%1/The %1: PickOne\n*Default%1: %2\n")
                       .arg(keyword, choices.first());
    for (const QString &key : choices)
        text += QStringLiteral("*%1 %2/Text %2: \"\"\n").arg(keyword, key);
    return text + QStringLiteral("*CloseUI: *%1\n").arg(keyword);
}

std::unique_ptr<OptionStore> importText(const QString &text)
{
    QTemporaryFile file;
    if (!file.open())
        return nullptr;
    file.write(header + text.toLatin1());
    file.close();
    return importPpdFile(file.fileName());
}

/// A store from a PPD with these parts, separated by semicolons: options as "Keyword: Choice...",
/// attributes as "Name=Value", a pair or three-way rule as its values, "*Option Choice" each.
std::unique_ptr<OptionStore> import(const QString &parts)
{
    QString text;
    for (const QString &each : parts.split(';', Qt::SkipEmptyParts)) {
        const QString part = each.trimmed();
        if (part.contains(": "))
            text += optionText(part.section(": ", 0, 0), part.section(": ", 1).split(' '));
        else if (part.contains('='))
            text += '*' + part.section('=', 0, 0) + ": \"" + part.section('=', 1) + "\"\n";
        else if (part.count('*') == 3 || !part.startsWith('*'))
            text += "*cupsUIConstraints: \"" + part + "\"\n";
        else
            text += "*UIConstraints: " + part + '\n';
    }
    return importText(text);
}

OptionChoice *findValue(const OptionStore &store, const QString &value)
{
    const bOption *option = store.find(value.section('=', 0, 0));
    return option ? option->findChoice(value.section('=', 1)) : nullptr;
}

QString nameOf(const OptionRef &value)
{
    return value.option->key() + '=' + value.choice->key();
}

/// As addRows(), for long rows: a line that begins with blanks continues the one before.
void addLongRows(std::initializer_list<const char *> columns, const char *table)
{
    addRows(columns, qPrintable(QString(table).replace(QRegularExpression("\n +"), " ")));
}

/// Options that most of the rules name.
const QString media =
    "MediaType: Plain Transparency Label; PageSize: A4 A5; InputSlot: Auto Tray1;";

} // namespace

class TestPpdImport : public QObject
{
    Q_OBJECT

private slots:
    void optionsKeepOrderTextAndDefault();
    void defaultsBlockAtOnce();
    void filters_data();
    void filters();
    void abilities_data();
    void abilities();
    void pairRules_data();
    void pairRules();
    void groupRules_data();
    void groupRules();
    void priorities();
};

void TestPpdImport::optionsKeepOrderTextAndDefault()
{
    QString text = optionText("MediaType", {"Plain", "Heavy", "Label"});
    const auto store = importText(text);
    QCOMPARE(store->modelName(), QString("Brixola Test"));
    const bOption *option = store->find("MediaType");
    QVERIFY(option->isPpdOption());
    QCOMPARE(option->text(), QString("The MediaType"));
    const QList<OptionChoice *> choices = option->choiceList();
    QCOMPARE(choices.size(), 3);
    QCOMPARE(choices[1]->key(), QString("Heavy"));
    QCOMPARE(choices[1]->text(), QString("Text Heavy"));
    QCOMPARE(option->defaultChoice(), choices.first());
    QCOMPARE(option->current(), choices.first());

    text.replace("*DefaultMediaType: Plain", "*DefaultMediaType: Velvet");
    const auto broken = importText(text);
    QVERIFY(!broken->find("MediaType")->defaultChoice());
    QCOMPARE(broken->find("MediaType")->currentKey(), QString("MediaTypeNULL"));

    const auto doubled = importText("*OpenGroup: One\n" + optionText("Fold", {"A", "B"}) +
                                    "*CloseGroup: One\n*OpenGroup: Two\n" +
                                    optionText("Fold", {"C", "D", "E"}) + "*CloseGroup: Two\n");
    QCOMPARE(doubled->find("Fold")->choiceList().last()->key(), QString("E"));
}

void TestPpdImport::defaultsBlockAtOnce()
{
    // Only the PPD's own pairs act before the pages load, and with equal ranks both sides block.
    const auto store = import("PageSize: A5 A4; Duplex: Tumble None; CvrM: None Front;"
                              "*PageSize A5 *Duplex Tumble");
    QVERIFY(findValue(*store, "PageSize=A5")->isBlocked());
    QVERIFY(findValue(*store, "Duplex=Tumble")->isBlocked());
    QVERIFY(!findValue(*store, "cCovPOFI=True")->isBlocked());
    store->releaseAllConstraints();
    QVERIFY(!findValue(*store, "Duplex=Tumble")->isBlocked());
    QCOMPARE(store->find("Duplex")->currentKey(), QString("Tumble"));
}

void TestPpdImport::filters_data()
{
    addRows({"ppd", "rasterOrPdf"}, R"(
none            |                                                          | no
PostScript      | cupsFilter=application/vnd.cups-postscript 0 bixfilter_F | no
raster          | cupsFilter=application/vnd.cups-raster 0 bixfilter_ras_F | yes
pdf in the type | cupsFilter=application/vnd.cups-pdf 0 bixfilter_F        | yes
)");
}

void TestPpdImport::filters()
{
    QFETCH(QString, ppd);
    QFETCH(QString, rasterOrPdf);
    QCOMPARE(import(ppd)->rasterOrPdfFilter(), rasterOrPdf == "yes");
}

void TestPpdImport::abilities_data()
{
    // The panel's own options but for the policy's, sorted.
    addRows({"ppd", "keys"}, R"(
nothing                | |
folding                | FldA: None Bifold Trifold | cBiFld cTriFld
folding of other kinds | FldA: None Zfold | cBiFld cTriFld
punching and stapling  | Pnch: None Two; Stpl: None Top | cHole cStpl
covers                 | CvrM: None Front | cCovBRad cCovBut cCovPOBI cCovPOBO cCovPOFI cCovPOFO cCovTRad cInsBut cInsPrnB cInsPrnF cIntBut cIntPrn
storage and accounting | BXCollate1: None Proof; BqManagment: Off On | cJobAccount cJobStore
presence is enough     | SupportsUserLogin=False; JobFinishNotice=no; SupportsCustomJobName=; SupportsCustomBox=False | cCustomBox cEmail cJobName cUserLogin
private print          | SupportsPrivatePrint=True | cPrivatePrint
private print refused  | SupportsPrivatePrint=False |
in other letters       | SupportsPrivatePrint=true |
super watermark        | BXSuperWatermark: None All | cSuper
)");
}

void TestPpdImport::abilities()
{
    QFETCH(QString, ppd);
    const auto store = import(ppd);
    QStringList found;
    QStringList policy;
    for (const bOption *option : store->optionList()) {
        if (option->isPpdOption())
            continue;
        const bool isPolicy = option->key().startsWith("FKP");
        (isPolicy ? policy : found).append(option->key());
        QCOMPARE(option->choiceCount(), 2);
        QCOMPARE(option->choiceList().first()->key(), QString(isPolicy ? "Off" : "False"));
        QCOMPARE(option->choiceList().last()->text(), QString(isPolicy ? "On" : "True"));
        QVERIFY(!option->current() && !option->defaultChoice());
    }
    found.sort();
    policy.sort();
    QTEST(found.join(' '), "keys");
    QCOMPARE(policy, QStringList({"FKPColorMode", "FKPDuplex", "FKPLeanprint", "FKPToggle"}));
}

void TestPpdImport::pairRules_data()
{
    // What the value excludes, sorted.
    addLongRows({"value", "excluded", "ppd"}, R"(
a rule written twice, and both ways, is one | MediaType=Label | PageSize=A5
  | *MediaType Label *PageSize A5; *PageSize A5 *MediaType Label; *MediaType Label *PageSize A5
unknown options and values make no rule | MediaType=Label |
  | *MediaType Label *Nothing A5; *MediaType Label *MediaType Velvet; *MediaType *PageSize
collation and storage have rules of their own | BXCollate1=Proof |
  | Coll: True False; BXCollate1: None Proof; *Coll False *BXCollate1 Proof; *BXCollate1 Proof *Coll False
a fold mode has the conflicts of its fold | cBiFld=True | MediaType=Label cTriFld=True
  | FldA: None Bifold Trifold; *FldA Bifold *MediaType Label; *FldA Trifold *PageSize A5
a punch mode has what all punches share | cHole=True | MediaType=Label
  | Pnch: None Two Three; *Pnch Two *MediaType Label; *Pnch Two *PageSize A5; *Pnch Three *MediaType Label;
    *Pnch None *PageSize A4
with nothing in common the last style counts | cStpl=True | PageSize=A4
  | Stpl: None One Two Three; *Stpl One *MediaType Label; *Stpl Two *PageSize A5; *Stpl Three *PageSize A4
a mode without styles has no conflicts | cHole=True | | Pnch: None
cover mode off | cCovBut=False | cCovPOBI=True cCovPOBO=True cCovPOFI=True cCovPOFO=True | CvrM: None Front
interleaving takes transparencies alone | cIntBut=True | FKPToggle=On MediaType=Label MediaType=Plain cCovBut=True cInsBut=True
  | CvrM: None Front
no sorting, no sets | Coll=False | cCovBut=True cInsBut=True cIntBut=True cJobStore=True cSuper=True
  | Coll: True False; CvrM: None Front; BXCollate1: None Proof; BXSuperWatermark: None All
no storage, no sets that need it | Option18=None
  | BXCollate1=Proof cCovBut=True cCustomBox=True cInsBut=True cIntBut=True cJobStore=True cPrivatePrint=True
  | Coll: True False; Option18: None Disk; Option8: Off On; *Coll False *Option8 On; CvrM: None Front;
    BXCollate1: None Proof; SupportsPrivatePrint=True; SupportsCustomBox=True
forced duplex has conflicts of duplex, the lower ranks | FKPDuplex=On | Duplex=None FKPToggle=Off OutputBin=Side
  | Duplex: None DuplexTumble DuplexNoTumble; OutputBin: Top Side; *Duplex DuplexTumble *OutputBin Side;
    *Duplex DuplexNoTumble *PageSize A5
accounting or a login | cJobAccount=True | FKPToggle=On cUserLogin=True
  | BqManagment: Default; SupportsUserLogin=True
policy | FKPColorMode=On | ColorModel=CMYK ColorModel=RGB FKPToggle=Off | ColorModel: CMYK RGB Gray
coloured watermarks need colour | ColorModel=Gray | Wclr=Blue Wclr=Green Wclr=Red
  | ColorModel: CMYK Gray; Wclr: Black Red Green Blue
)");
}

void TestPpdImport::pairRules()
{
    QFETCH(QString, ppd);
    QFETCH(QString, value);
    const auto store = import(media + ppd);
    QStringList names;
    for (const OptionRef &other : findValue(*store, value)->pairConstraintList())
        names.append(nameOf(other));
    names.sort();
    QTEST(names.join(' '), "excluded");
}

void TestPpdImport::groupRules_data()
{
    // The rules of the value in their order, as it is walked.
    addLongRows({"value", "rules", "ppd"}, R"(
sorted by rank, the lowest last | PageSize=A4 | InputSlot=Tray1>PageSize=A4>cStpl=True
  | Stpl: None Top; *Stpl Top *PageSize A4 *InputSlot Tray1
any staple style, even none | cStpl=True | InputSlot=Tray1>PageSize=A4>cStpl=True
  | Stpl: None Top; *Stpl None *PageSize A4 *InputSlot Tray1
any punch style | cHole=True | InputSlot=Tray1>PageSize=A4>cHole=True
  | Pnch: None Two; *Pnch Two *PageSize A4 *InputSlot Tray1
folds by their choice alone | cBiFld=True | InputSlot=Tray1>PageSize=A4>cBiFld=True
  | FldA: None Bifold Trifold; *FldB Bifold *PageSize A4 *InputSlot Tray1
an unknown value drops the rule | cStpl=True | | Stpl: None Top; *Stpl Top *PageSize A3 *InputSlot Tray1
two values make no rule | PageSize=A4 | | cupsUIConstraints=*PageSize A4 *InputSlot Tray1
rubbish | PageSize=A4 | | Stpl: None Top; Stpl Top ** PageSize
the same rule twice is one | InputSlot=Tray1 | InputSlot=Tray1>PageSize=A4>cStpl=True
  | Stpl: None Top; *Stpl Top *PageSize A4 *InputSlot Tray1; *InputSlot Tray1 *PageSize A4 *Stpl Other
options without a rank | Z=1 | X=1>Y=1>Z=1>Y=1>X=1>Z=1>Z=1>X=1>Y=1 | X: 0 1; Y: 0 1; Z: 0 1; *X 1 *Y 1 *Z 1
ranks rising to the left | Duplex=Tumble | InputSlot=Tray1>PageSize=A4>Duplex=Tumble>PageSize=A4>InputSlot=Tray1>Duplex=Tumble
  | Duplex: None Tumble; *Duplex Tumble *InputSlot Tray1 *PageSize A4
booklets and short paper, unstapled | cStpl=True
  | Option22=False>BXBooklet=Left>cStpl=True Option22=False>BXBooklet=Right>cStpl=True
    PageSize=A5>BXBooklet=None>cStpl=True
  | Stpl: None Top; BXBooklet: None Left Right; Option22: False True
)");
}

void TestPpdImport::groupRules()
{
    QFETCH(QString, ppd);
    QFETCH(QString, value);
    const auto store = import(media + ppd);
    QStringList rules;
    for (const OptionRefList &rule : findValue(*store, value)->groupConstraintList()) {
        QStringList names;
        for (const OptionRef &entry : rule)
            names.append(nameOf(entry));
        rules.append(names.join('>'));
    }
    QTEST(rules.join(' '), "rules");
}

void TestPpdImport::priorities()
{
    // "Wtyp" is another spelling and so another option than "WTyp".
    const QHash<QString, int> expected{
        {"Option17", 0}, {"Option01", 1}, {"ColorModel", 2}, {"Wang", 3},      {"BXBooklet", 5},
        {"WTyp", 6},     {"Wtyp", 99},    {"BXCollate1", 7}, {"Tmed", 8},      {"OutputBin", 9},
        {"Coll", 10},    {"Unheard", 99}, {"FKPDuplex", 4},  {"FKPToggle", 0},
    };
    const auto store = import(QStringList(expected.keys()).join(": A B;") + ": A B");
    for (auto i = expected.begin(); i != expected.end(); ++i)
        QVERIFY2(store->find(i.key())->priority() == i.value(), qPrintable(i.key()));
}

QTEST_GUILESS_MAIN(TestPpdImport)
#include "tst_ppdimport.moc"
