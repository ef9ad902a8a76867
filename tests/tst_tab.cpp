// What of the pages shows in the order of calls alone.

#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/basic/generaltab.h"
#include "pages/finishing/finishingtab.h"
#include "pages/imaging/imagingtab.h"
#include "pages/job/jobtab.h"
#include "pages/layout/booklettab.h"
#include "pages/login/userlogintab.h"
#include "pages/printer/printertab.h"
#include "pages/publishing/publishingtab.h"
#include "pages/watermark/watermarktab.h"
#include "policy/fkptab.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace {

QStringList steps; ///< of the page that reloads

/// A real page that notes the steps of its reload, and the keywords as their values reach the
/// model; "!" follows if the widgets tell of changes meanwhile.
template <typename Base>
class Recorder : public Base
{
public:
    using Base::Base;

    void setTabName() override { note("name"), Base::setTabName(); }
    void beforeLoad() override { note("before"), Base::beforeLoad(); }
    void clearMarks() override { note("clear"), Base::clearMarks(); }
    void loadOptions() override { note("load"), Base::loadOptions(); }
    void applyAllWidgets() override { note("apply:"), Base::applyAllWidgets(); }
    void afterLoad() override { note("after"), Base::afterLoad(); }
    bool enableOptions() override { return note("enable"), Base::enableOptions(); }
    void applyWidgetValue(int value, QObject *widget) override
    {
        note(this->boundWidgets.key(widget));
        Base::applyWidgetValue(value, widget);
    }

private:
    void note(const QString &step)
    {
        bool loud = false;
        for (const auto &[keyword, widget] : this->boundWidgets)
            loud = loud || !widget->signalsBlocked();
        steps << step + (loud ? "!" : "");
    }
};

/// The widget below a page with this accessible name; one without a name goes by its class.
QWidget *find(const QWidget *page, const QString &name)
{
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        const QString own = widget->accessibleName();
        if (own == name || (own.isEmpty() && widget->inherits(qPrintable(name))))
            return widget;
    }
    qFatal("no widget %s", qPrintable(name));
}

/// Does what a user does: "WIDGET" is a click, "GROUP=2" one on a button of a group, "BOX=ITEM" a
/// choice, "FIELD=TEXT" types.
void act(const QWidget *page, const QString &step)
{
    QWidget *widget = find(page, step.section('=', 0, 0));
    const QString value = step.section('=', 1);
    if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
        button->findChild<QCheckBox *>()->click();
    else if (auto *group = qobject_cast<BixButtonGroup *>(widget))
        group->buttonAt(value.toInt())->click();
    else if (auto *box = qobject_cast<ComboBoxEx *>(widget))
        box->setCurrentText(value);
    else if (auto *plain = qobject_cast<QAbstractButton *>(widget))
        plain->click();
    else
        QTest::keyClicks(widget, value);
}

template <typename Base>
Tab *make(PanelDialog *dialog)
{
    return new Recorder<Base>(dialog);
}

const QHash<QString, Tab *(*)(PanelDialog *)> pages = {
    {"Printer", make<PrinterTab>},  {"Basic", make<GeneralTab>},
    {"Layout", make<BookletTab>},   {"Finishing", make<FinishingTab>},
    {"Imaging", make<ImagingTab>},  {"Publishing", make<PublishingTab>},
    {"Job", make<JobTab>},          {"Watermark", make<WatermarkTab>},
    {"Fleet Keeper", make<FKPTab>}, {"Login", make<UserLoginTab>}};

/// Options that several rows use, by the words that stand for them.
const QHash<QString, QString> commonOptions = {
    {"%color", "ColorModel 9 CMYK/Full_color* Gray/Black_&_white"},
    {"%folds", "FldA 6 None/Off* Bifold Trifold; FldB 9 A*; FldC 9 A*; FldD 9 A*; BFpS 9 A*; "
               "cBiFld 6 False True; cTriFld 6 False True"},
    {"%sides", "CvrM 8 Plain*; cCovBut 8 False True; cCovTRad 8 False True; cCovBRad 8 False True"},
    {"%storage", "BXCollate1 7 None* Proof JobStorage/Job_storage; BXColate1 9 None Proof*; "
                 "cJobStore 7 False True; cCustomBox 9 False True; Option18 1 HardDisk*"},
    {"%account", "BqManagment 99 Default*; cJobAccount 7 False True"},
    {"%watermark", "Wren 2 False* True; Wtxt 9 Confidential/CONFIDENTIAL* Draft/DRAFT Custom"},
};

QString withCommonOptions(QString options)
{
    for (auto it = commonOptions.cbegin(); it != commonOptions.cend(); ++it)
        options.replace(it.key(), it.value());
    return options.replace("; ", "\n");
}

} // namespace

class TestTab : public QObject
{
    Q_OBJECT

private slots:
    void reload_data();
    void reload();
    void changes_data();
    void changes();
};

void TestTab::reload_data()
{
    addRows({"steps"}, R"(
Printer      | name! clear! load! apply:! Option17! Option18! enable!
Basic        | name clear load apply: PageSize MediaType InputSlot OutputBin Coll Duplex ColorModel enable
Layout       | name before clear load apply: BXBooklet Fold after enable
Finishing    | name before clear load apply: Sep FldB FldC FldD BFpS Rotate Pnch Stpl Scnt cTriFld cBiFld cHole cStpl after enable
Imaging      | name clear load apply: BSCREENMODE Trap ColorModel GBTn Resolution Smoothing cLnpr BXGlossmode Crep RCM CIE
Publishing   | name clear load apply: CvrM Pmed Tmed cCovBut cCovTRad cCovBRad cCovPOFO cCovPOFI cCovPOBO cCovPOBI cInsBut cInsPrnF cInsPrnB cIntBut cIntPrn apply: CvrM Pmed Tmed cCovBut cCovTRad cCovBRad cCovPOFO cCovPOFI cCovPOBO cCovPOBI cInsBut cInsPrnF cInsPrnB cIntBut cIntPrn
Job          | name clear load apply: BXCollate1 cJobStore cJobAccount cJACLE cUserLogin cJULE cJPLE cEmail cJELE
Watermark    | before name load Wtxt Wfnt Wsze Wclr Wang Wtrans Wtyp Wflg apply: Wren Wtxt Wfnt Wsze Wclr Wang Wtrans Wtyp Wflg BXSuperWatermark Wtxt Wfnt Wsze Wclr Wang Wtrans Wtyp Wflg
Fleet Keeper | name clear load apply: FKPToggle after enable
Login        | name clear load apply:
)");
}

void TestTab::reload()
{
    RecordingDialog dialog;
    Tab *page = pages[QTest::currentDataTag()](&dialog);
    dialog.selectPrinter("Option18 5 None* Staple\nOption17 5 False* True");
    steps.clear();
    page->reload();
    QTEST(steps.join(' '), "steps");
    page->retranslate();
    QCOMPARE(dialog.takeCalls(), QStringList());
}

void TestTab::changes_data()
{
    // What the dialog is told of the last step, with the options' values and shown fields by then.
    addRows({"options", "steps", "watched", "calls"}, R"(
Basic: colour | %color | butGroupColorModelGeneral=1 | ColorModel | pass Gray, colour Gray
Imaging: colour | %color; Cadj 5 False* True; Lnpr 5 Off* Level1 | BixButtonGroup=1 | ColorModel | colour CMYK, pass Gray
Imaging: LeanPrint off | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5 | butGroupLnpr=1; cmbBxLnpr=Level1; butGroupLnpr=0 | Lnpr | pass Level1, pass Off
Finishing: fold | %folds | chkButTriFld | FldA cTriFld | pass Trifold True, pass Trifold True
Finishing: other fold | %folds | chkButTriFld; chkButBiFld; chkButTriFld | FldA cTriFld | pass Bifold True, pass Bifold False
Finishing: staple | Stpl 9 None/Off* FrontLeft; cStpl 9 False True | chkButStpl | Stpl cStpl | pass FrontLeft False, pass FrontLeft True
Publishing: cover | %sides | chkButCvr | cCovBut CvrM | pass False Plain, pass True Plain
Publishing: sides | %sides | chkButCvr; rdButCvrFrontBack | cCovTRad cCovBRad | pass False False, pass False True
Job: storage | %storage | chkButBXCollate1 | BXCollate1 cJobStore | pass Proof False, pass Proof True
Job: stored | %storage | chkButBXCollate1; cmbBxBXCollate1=Job storage | BXCollate1 BXColate1 lnEditJobStorage lnEditBoxNumber | pass JobStorage Proof shown hidden
Job: box | %storage | chkButBXCollate1; cmbBxBXCollate1=Custom box | BXCollate1 BXColate1 lnEditJobStorage lnEditBoxNumber | pass None Proof hidden shown
Job: not stored | %storage | chkButBXCollate1; cmbBxBXCollate1=Job storage; chkButBXCollate1 | BXCollate1 BXColate1 | pass None Proof, pass None None
Job: accounting | %account | chkButBqManagment | cJobAccount | pass False, pass False, pass True
Job: account | %account | chkButBqManagment; cmbBxBqManagment=Use specific account ID | cJobAccount lnEditAccountID | pass True shown
Job: name | cJobName 9 False True | cmbBxJobName=Custom | lnEditJobName | pass shown
Job: login | cUserLogin 7 False True | chkButUserLogin | cUserLogin | pass False, pass True
Job: e-mail | cEmail 9 False True | chkButJobEmail | cEmail | pass False, pass True
Watermark: on | %watermark | chkButWatermark | Wren | pass True, pass True
Watermark: text | %watermark | chkButWatermark; cmbBxWtxt=DRAFT | Wtxt | pass Draft, pass Draft
Fleet Keeper: on | FKPToggle 0 Off* On | butGroupFKP=1 | FKPToggle | pass On
Login: on | cUserLogin 7 False True | BixCheckBoxButton | cUserLogin | pass cUserLoginNULL
Printer: box | Option18 9 None* Staple; Option17 5 True False*; Option17=True Option18=Staple | chkBxOption17 | Option17 Option18 | pass True None
)");
}

void TestTab::changes()
{
    QFETCH(QString, options);
    QFETCH(QString, watched);
    QFETCH(QString, steps);
    RecordingDialog dialog;
    Tab *page = pages[QString(QTest::currentDataTag()).section(':', 0, 0)](&dialog);
    dialog.selectPrinter(withCommonOptions(options));
    for (bOption *option : currentStore->optionList())
        option->setCurrent(option->defaultChoice()); // as after the import of a PPD
    page->reload();
    QStringList wanted = steps.split("; ");
    const QString last = wanted.takeLast();
    for (const QString &step : wanted)
        act(page, step);
    dialog.takeCalls();
    dialog.remark = [&] {
        QStringList values;
        for (const QString &name : watched.split(' '))
            values << (currentStore->find(name)                     ? RecordingDialog::current(name)
                       : findNamed<QWidget>(page, qPrintable(name)) ? "shown"
                                                                    : "hidden");
        return values.join(' ');
    };
    act(page, last);
    QTEST(dialog.takeCalls()
              .join(", ")
              .replace("setConstraints", "pass")
              .replace("toggleColorMode", "colour"),
          "calls");
}

QTEST_MAIN(TestTab)

#include "tst_tab.moc"
