#include "app/settingscollector.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/base/buttoncaption.h"
#include "pages/job/jobtab.h"
#include "pages/job/jobtexts.h"
#include "storage/passwordcipher.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

namespace {

/// The page's groups: the switch, then the inputs.
const QMap<QString, QStringList> groups = {
    {"storage",
     {"chkButBXCollate1", "cmbBxBXCollate1", "lnEditJobStorage", "lnEditBoxNumber",
      "lnEditBoxPassword"}},
    {"accounting", {"chkButBqManagment", "cmbBxBqManagment", "lnEditAccountID", "cmbBxAccountID"}},
    {"login", {"chkButUserLogin", "lnEditLoginUserName", "lnEditLoginPassword"}},
    {"name", {"cmbBxJobName", "lnEditJobName", "cmbBxOverwrite"}},
    {"email", {"chkButJobEmail", "lnEditJobEmail"}},
};

// A printer that can do everything the page offers.
const QString everything = QStringLiteral(R"(
Option18 1 None SSDrive HardDisk* Card
BXCollate1/Job_settings 7 None* Proof/Proof_and_hold JobStorage/Job_storage
cJobStore 7 False True
BqManagment/Job_accounting 99 Default*
cJobAccount 7 False True
cUserLogin 7 False True
cEmail 99 False True
cJobName 99 False True
cPrivatePrint 99 False True
cCustomBox 99 False True
JobName 99 off* Custom.Report
JobDate 99 true* false
)");

/// That printer without one option or choice.
QString without(const QString &keyword)
{
    const QRegularExpression lineOrWord(QString("\\n%1[ /].*| %1/\\S*").arg(keyword));
    return QString(everything).remove(lineOrWord);
}

/// A main dialog that runs the constraint pass for one page, if told to.
class PassDialog : public RecordingDialog
{
public:
    void setConstraints() override
    {
        RecordingDialog::setConstraints();
        if (!page)
            return;
        page->setMarked(false);
        page->enableOptions();
        page->beforeConstraints();
        page->clearMarks();
        page->markConstraintWidgets();
    }

    JobTab *page = nullptr;
};

struct Panel
{
    /// Settings are lines with "; " between them.
    void load(const QString &options = everything, QString settings = QString())
    {
        dialog.selectPrinter(options, settings.replace("; ", "\n"));
        const QList<bOption *> all = currentStore->optionList();
        for (bOption *option : all)
            option->setCurrent(option->defaultChoice()); // as after the import of a PPD
        page->retranslate();
        page->reload();
    }

    /// Finds hidden ones too.
    template <typename Widget>
    Widget *find(const QString &name) const
    {
        const QList<Widget *> widgets = page->findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->accessibleName() == name)
                return widget;
        }
        qFatal("no widget %s", qPrintable(name));
        return nullptr;
    }
    ComboBoxEx *box(const char *name) const { return find<ComboBoxEx>(name); }
    QLineEdit *edit(const char *name) const { return find<QLineEdit>(name); }
    QString tip(const QString &label) const { return find<QLabel>(label)->toolTip(); }

    /// What a user does, separated by "; ": "chkBut..." is a click, "cmbBx...=TEXT" a choice,
    /// "lnEdit...=TEXT" types the text over what stands there, "Option18=..." is a change on
    /// another page, "reload" comes after a change of the profile. "pass" is a constraint pass, and
    /// from then on each change starts one.
    void act(const QString &steps)
    {
        const QStringList list = steps.split(QStringLiteral("; "), Qt::SkipEmptyParts);
        for (const QString &step : list) {
            const QString name = step.section('=', 0, 0);
            const QString value = step.section('=', 1);
            if (step == QLatin1String("pass")) {
                dialog.page = page;
                dialog.setConstraints();
            } else if (step == QLatin1String("reload")) {
                page->reload();
            } else if (name.startsWith("chkBut")) {
                find<BixCheckBoxButton>(name)->findChild<QCheckBox *>()->click();
            } else if (name.startsWith("cmbBx")) {
                find<ComboBoxEx>(name)->setCurrentText(value);
            } else if (name.startsWith("lnEdit")) {
                auto *line = find<QLineEdit>(name);
                line->selectAll();
                QTest::keyClick(line, Qt::Key_Delete);
                QTest::keyClicks(line, value);
            } else {
                selectValues(*currentStore, step);
            }
        }
    }

    /// A group in words: the switch, then each control that shows, "-" before what is greyed.
    QString shown(const QString &group) const
    {
        QStringList words;
        for (const QString &name : groups.value(group)) {
            const auto *widget = find<QWidget>(name);
            QString text;
            if (const auto *line = qobject_cast<const QLineEdit *>(widget))
                text = '"' + line->text() + '"';
            else if (const auto *combo = qobject_cast<const ComboBoxEx *>(widget))
                text = '[' + combo->currentText() + ']';
            else
                text = find<BixCheckBoxButton>(name)->isChecked() ? "on" : "off";
            if (!widget->isHidden())
                words << (widget->isEnabled() ? text : '-' + text);
        }
        return words.join(' ');
    }
    QStringList shown() const
    {
        QStringList texts;
        for (const QString &group : groups.keys())
            texts << shown(group);
        return texts;
    }

    PassDialog dialog;
    JobTab *page = new JobTab(&dialog);
};

QStringList lines(const QHash<QString, QString> &settings)
{
    QStringList list;
    for (auto entry = settings.cbegin(); entry != settings.cend(); ++entry)
        list << entry.key() + '=' + entry.value();
    list.sort();
    return list;
}

/// Entries that are new against `before`, then "-" and the keys that are gone.
QString changes(const QHash<QString, QString> &before, const QHash<QString, QString> &after)
{
    QStringList list = lines(after);
    for (const QString &line : lines(before)) {
        if (!list.removeOne(line) && !after.contains(line.section('=', 0, 0)))
            list << '-' + line.section('=', 0, 0);
    }
    return list.join(' ');
}

QString secret(const QByteArray &text)
{
    return toHex(encryptText(text));
}

/// A table of rows. A word in braces stands for itself as the settings file has it, backslashes
/// doubled and encrypted.
QByteArray withSecrets(QString table)
{
    static const QRegularExpression braces("\\{(.*?)\\}");
    for (QRegularExpressionMatch match; (match = braces.match(table)).hasMatch();)
        table.replace(match.capturedStart(), match.capturedLength(),
                      secret(match.captured(1).replace('\\', "\\\\").toUtf8()));
    return table.toUtf8();
}

} // namespace

class TestJobTab : public QObject
{
    Q_OBJECT

private slots:
    void captions();

    void shows_data();
    void shows();
    void anotherPrinterLeavesNothing();
    void brokenSecrets_data();
    void brokenSecrets();
    void storageList_data();
    void storageList();
    void storageInputsChangeBeforeThePass();
    void retranslateIsSilent();

    void marks_data();
    void marks();
    void quoteInAddress();
    void unavailablePage();

    void settingsOfAnUntouchedPage();
    void settings_data();
    void settings();
};

void TestJobTab::captions()
{
    QCOMPARE(ButtonCaption::inTwoLines("User login"), QString("User login"));
    QCOMPARE(ButtonCaption::inTwoLines("Job e-mail notification"),
             QString("Job e-mail\nnotification"));
    QCOMPARE(ButtonCaption::inTwoLines("E-Mail-Nachricht"), QString("E-Mail-\nNachricht"));
    QCOMPARE(ButtonCaption::inTwoLines("Auftragsabrechnung"), QString("Auftragsabrechnung"));
    BixCheckBoxButton button(nullptr, QString(), QIcon());
    ButtonCaption::set(&button, "Insert", "Page insert");
    for (const QAbstractButton *part : button.findChildren<QAbstractButton *>())
        QCOMPARE(part->accessibleName(), QString("Page insert"));
    QLabel rich;
    JobTexts::setRichText(&rich, "One\\nA & B");
    QCOMPARE(rich.text(), QString("<font>One<br>A &amp; B</font>"));
}

// Loading, and what the user does

void TestJobTab::shows_data()
{
    // How the page loads what it saved itself: see settings().
    addRows({"group", "lacks", "settings", "steps", "shown"}, withSecrets(R"(
storage: nothing saved              | storage    |            |                                                          | | off -[Proof and hold]
storage: proof and hold             | storage    |            | BXCollate1=Proof                                         | | on [Proof and hold]
storage: printer has no boxes       | storage    | cCustomBox | BXCollate1=Custom2; CustomBox=7                          | | on [Proof and hold]
storage: off wins over a leftover   | storage    |            | BXCollate1=None; PrivatePrint=True                       | | off -[Proof and hold]
backslashes of a code stay double   | storage    |            | BXCollate1=JobStorage; JobStorage=True; AccessCode={1\2} | | on [Job storage] "1\\2"
storage: nothing but a place        | storage    | Proof      | BXCollate1=None                                          | | off -[Job storage] -""
storage: no such option             | storage    | BXCollate1 | BXCollate1=Proof; cJobStore=True                         | | -off -[]
accounting: nothing saved           | accounting | |  | | off -[Select account ID] -[]
accounting: off                     | accounting | | BqManagment=Default; CustomAccountIDStore=20=b; CustomAccountIDStore=100=a | | off -[Select account ID] -[100]
accounting: picked                  | accounting | | BqManagment=20; CustomAccountID=20; CustomAccountIDStore=20=b; CustomAccountIDStore=100=a | | on [Select account ID] [20]
accounting: typed                   | accounting | | BqManagment=5; CustomAccountID=5; CustomAccountIDStore=20=b | | on [Use specific account ID] "5"
accounting: no longer in the list   | accounting | | BqManagment=20; CustomAccountID=20 | | on [Use specific account ID] "20"
accounting: on without an ID        | accounting | | BqManagment=20; CustomAccountIDStore=20=b | | off -[Select account ID] -[20]
accounting: no such option          | accounting | BqManagment | BqManagment=20; CustomAccountID=20; CustomAccountIDStore=20=b | | -off -[Use specific account ID] -""
login: nothing saved                | login      |            |                                                          | | off -"" -""
login: saved                        | login      |            | UserLoginName={jö\\d}; UserLoginPass={x\y}               | | on "jö\\d" "x\y"
login: no such option               | login      | cUserLogin | UserLoginName={jo}                                       | | -off -"" -""
name: nothing saved                 | name       |            |                                                          | | [Application defined] -"" [Use job name + date and time]
name: printer can't                 | name       | cJobName   |                                                          | | -[Application defined] -"" -[Use job name + date and time]
e-mail: off                         | email      |            | cEmail=False; EMailNotification=off                      | | off -""
e-mail: address alone               | email      |            | EMailNotification=a@b.c                                  | | on "a@b.c"
e-mail: on without address          | email      |            | cEmail=True                                              | | on "True"
e-mail: no such option              | email      | cEmail     | EMailNotification=a@b.c                                  | | -off -""
typing: code                        | storage    |  |  | chkButBXCollate1; cmbBxBXCollate1=Job storage; lnEditJobStorage=12345 | on [Job storage] "1234"
typing: box                         | storage    |  |  | chkButBXCollate1; cmbBxBXCollate1=Custom box; lnEditBoxNumber=1a2-34567; lnEditBoxPassword= a"b 456789012345xyz | on [Custom box] "1234" " a"b 45678901234"
typing: account                     | accounting |  |  | chkButBqManagment; cmbBxBqManagment=Use specific account ID; lnEditAccountID=a0012x3456789 | on [Use specific account ID] "00123456"
typing: login                       | login      |  |  | chkButUserLogin; lnEditLoginUserName= "n n"nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn; lnEditLoginPassword= "nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn | on "n nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn" " "nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn"
typing: job name                    | name       |  |  | cmbBxJobName=Custom; lnEditJobName= "n n"nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn | [Custom] "n nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn" [Use job name + date and time]
typing: e-mail                      | email      |  |  | chkButJobEmail; lnEditJobEmail= a!b"c d#e'f+g@h.i,j;k<l=m>n?o%pnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn | on "abcdef+g@h.i,j;k<l=m>n?o%pnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn"
another place clears the code       | storage    | | | chkButBXCollate1; cmbBxBXCollate1=Job storage; lnEditJobStorage=12; cmbBxBXCollate1=Private print                                                             | on [Private print] ""
storage off: proof and hold         | storage    | | | chkButBXCollate1; cmbBxBXCollate1=Custom box; chkButBXCollate1                                                                                                | off -[Proof and hold]
letters leave the code              | storage    | | | chkButBXCollate1; cmbBxBXCollate1=Job storage; lnEditJobStorage=1a2b; pass                                                                                    | on [Job storage] "12"
an ID goes with its field           | accounting | | | chkButBqManagment; cmbBxBqManagment=Use specific account ID; lnEditAccountID=12; cmbBxBqManagment=Select account ID; cmbBxBqManagment=Use specific account ID | on [Use specific account ID] ""
it goes with the switch             | accounting | | | chkButBqManagment; cmbBxBqManagment=Use specific account ID; lnEditAccountID=12; chkButBqManagment                                                            | off -[Use specific account ID] -""
accounting excludes the login       | login      | | | chkButUserLogin; pass; chkButUserLogin; chkButBqManagment; pass                                                                                               | -off -"" -""
login off forgets both              | login      | | | chkButUserLogin; lnEditLoginUserName=jo; lnEditLoginPassword=x; chkButUserLogin                                                                               | off -"" -""
application's name forgets one's own | name      | | | cmbBxJobName=Custom; lnEditJobName=My job; cmbBxJobName=Application defined                                                                                   | [Application defined] -"" [Use job name + date and time]
defaults of the print system        | name       | | | JobName=Custom.Report; JobDate=false; reload                                                                                                                  | [Custom] "Report" [Replace existing file]
e-mail off forgets it               | email      | | | chkButJobEmail; lnEditJobEmail=a@b.c; chkButJobEmail; chkButJobEmail                                                                                          | on ""
)"));
}

void TestJobTab::shows()
{
    QFETCH(QString, group);
    QFETCH(QString, lacks);
    QFETCH(QString, settings);
    QFETCH(QString, steps);
    Panel panel;
    const QString rule = lacks.isEmpty() ? "cJobAccount=True cUserLogin=True" : "";
    panel.load(without(lacks) + rule, settings);
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    QVERIFY(!panel.box("cmbBxBXCollate1")->signalsBlocked());
    panel.act(steps);
    QTEST(panel.shown(group), "shown");
    for (const char *name : {"lnEditJobStorage", "lnEditBoxPassword", "lnEditLoginPassword"})
        QCOMPARE(panel.edit(name)->echoMode(), QLineEdit::Password);
}

void TestJobTab::anotherPrinterLeavesNothing()
{
    Panel panel;
    panel.load();
    const QStringList untouched = panel.shown();
    panel.load(everything, withSecrets("BXCollate1=Custom1; PrivatePrint=True; AccessCode={1234}; "
                                       "CustomBoxPassword={pass}; BqManagment=5; "
                                       "CustomAccountID=5; CustomAccountIDStore=5=five; "
                                       "UserLoginName={jo}; UserLoginPass={x}; "
                                       "CustomJobName=Job; JobDate=false; "
                                       "cEmail=True; EMailNotification=a@b.c"));
    QVERIFY(panel.shown() != untouched);
    panel.load();
    QCOMPARE(panel.shown(), untouched);
    for (const char *name : {"lnEditJobStorage", "lnEditBoxPassword", "lnEditAccountID"})
        QCOMPARE(panel.edit(name)->text(), QString());
    QCOMPARE(panel.box("cmbBxAccountID")->count(), 0);
}

void TestJobTab::brokenSecrets_data()
{
    QTest::addColumn<QString>("stored");
    addRow("odd length", secret("1234").chopped(1));
    addRow("not hexadecimal", "what is this? no secret at all..");
    addRow("another key", "00112233445566778899aabbccddeeff");
    addRow("longer than a line", QString(5000, 'a'));
}

void TestJobTab::brokenSecrets()
{
    QFETCH(QString, stored);
    Panel panel;
    panel.load(everything, "BXCollate1=Custom2; CustomBox=12345678; AccessCode=" + stored +
                               "; CustomBoxPassword=" + stored + "; UserLoginName=" + stored +
                               "; UserLoginPass=" + stored);
    panel.act("pass");
    QVERIFY(panel.edit("lnEditJobStorage")->text().size() <= 4);
    QCOMPARE(panel.edit("lnEditBoxNumber")->text(), QString("1234"));
    QVERIFY(panel.page->hasMarks()); // there is no such box
    // What the user enters instead works.
    panel.act("lnEditBoxNumber=7; lnEditBoxPassword=x; lnEditLoginUserName=jo");
    QCOMPARE(panel.edit("lnEditLoginUserName")->text(), QString("jo"));
    QCOMPARE(panel.page->extraSettings().value("CustomBoxPassword"), secret("x"));
}

void TestJobTab::storageList_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("items"); // behind "Proof and hold,Job storage"
    QTest::addColumn<QString>("shown");
    const QString on = "chkButBXCollate1; ";
    const QString code = on + "cmbBxBXCollate1=Job storage; lnEditJobStorage=12; ";
    const QString box = on + "cmbBxBXCollate1=Custom box; lnEditBoxNumber=7; ";
    // Here "Custom box" is a choice of the printer's own that stands before the current one.
    const QString ownBox =
        QString(everything).replace("Proof/Proof_and_hold", "Box/Custom_box Proof/Proof_and_hold");
    const QString proof = "on [Proof and hold]";
    const QString kept = "on [Job storage] \"12\"";
    addRow("no storage to install", without("Option18"), on, "", proof);
    addRow("not known what is installed", QString(everything).replace("HardDisk*", "HardDisk"), on,
           "", proof);
    addRow("no private print", without("cPrivatePrint"), on, ",Custom box", proof);
    addRow("no custom box", without("cCustomBox"), on, ",Private print", proof);
    addRow("box without a disk", everything, box + "Option18=Card; pass", ",Private print", proof);
    addRow("box on another disk", everything, box + "Option18=SSDrive; pass",
           ",Private print,Custom box", "on [Custom box] \"7\" \"\"");
    addRow("both go", everything, code + "Option18=None; pass", "", kept);
    addRow("both come", everything, code + "Option18=None; pass; Option18=SSDrive; pass",
           ",Private print,Custom box", kept);
    addRow("an item goes before the current one", ownBox, code + "Option18=Card; pass",
           ",Private print", kept);
    addRow("conflict", everything + "Option18=Card BXCollate1=JobStorage",
           code + "Option18=Card; pass", ",Private print", proof);
}

void TestJobTab::storageList()
{
    QFETCH(QString, options);
    QFETCH(QString, steps);
    Panel panel;
    panel.load(options);
    panel.act("pass; " + steps);
    const ComboBoxEx *box = panel.box("cmbBxBXCollate1");
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    QTEST(items.join(',').remove("Proof and hold,Job storage"), "items");
    QTEST(panel.shown("storage"), "shown");
}

void TestJobTab::storageInputsChangeBeforeThePass()
{
    Panel panel;
    panel.load(everything + "BXColate1 99 None Proof*");
    panel.act("chkButBXCollate1");
    panel.dialog.takeCalls();
    const auto selected = [&] {
        return panel.dialog.current("BXCollate1") + ' ' + panel.dialog.current("BXColate1");
    };
    panel.dialog.remark = [&] { return selected() + ' ' + panel.shown("storage"); };
    panel.act("cmbBxBXCollate1=Job storage; cmbBxBXCollate1=Custom box");
    QCOMPARE(panel.dialog.takeCalls(),
             QStringList({"setConstraints JobStorage Proof on [Job storage] \"\"",
                          "setConstraints None Proof on [Custom box] \"\" \"\""}));
    panel.act("cmbBxBXCollate1=Job storage; chkButBXCollate1");
    QCOMPARE(selected(), QString("None None"));
}

void TestJobTab::retranslateIsSilent()
{
    Panel panel;
    panel.load();
    panel.act("cmbBxJobName=Custom; cmbBxOverwrite=Replace existing file; chkButBqManagment; "
              "cmbBxBqManagment=Use specific account ID");
    panel.dialog.takeCalls();
    panel.page->retranslate();
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    for (const char *name : {"cmbBxJobName", "cmbBxOverwrite", "cmbBxBqManagment"}) {
        QCOMPARE(panel.box(name)->count(), 2);
        QCOMPARE(panel.box(name)->currentIndex(), 0);
    }
}

// Marks

void TestJobTab::marks_data()
{
    // A choice or a letter starts one pass, a switch two, that of the accounting three.
    addRows({"steps", "passes", "label", "message", "holdsBack"}, R"(
storage: no code needed              | chkButBXCollate1; cmbBxBXCollate1=Job storage                                           | 3 | lblBXCollate1  |                                                                           | no
storage: short code                  | chkButBXCollate1; cmbBxBXCollate1=Job storage; lnEditJobStorage=123                     | 6 | lblBXCollate1  | Access code must be 4 numbers in length.                                  | yes
private print: no code               | chkButBXCollate1; cmbBxBXCollate1=Private print                                         | 3 | lblBXCollate1  | Access code must be 4 numbers in length.                                  | yes
private print: code                  | chkButBXCollate1; cmbBxBXCollate1=Private print; lnEditJobStorage=0000                  | 7 | lblBXCollate1  |                                                                           | no
custom box: no number                | chkButBXCollate1; cmbBxBXCollate1=Custom box                                            | 3 | lblBXCollate1  | Enter a custom box number between 1 and 1000.                             | yes
custom box: 0                        | chkButBXCollate1; cmbBxBXCollate1=Custom box; lnEditBoxNumber=0                         | 4 | lblBXCollate1  | Enter a custom box number between 1 and 1000.                             | yes
custom box: last                     | chkButBXCollate1; cmbBxBXCollate1=Custom box; lnEditBoxNumber=1000; lnEditBoxPassword=p | 8 | lblBXCollate1  |                                                                           | no
custom box: 1001                     | chkButBXCollate1; cmbBxBXCollate1=Custom box; lnEditBoxNumber=1001                      | 7 | lblBXCollate1  | Enter a custom box number between 1 and 1000.                             | yes
storage: off                         | chkButBXCollate1; cmbBxBXCollate1=Private print; chkButBXCollate1                       | 5 | lblBXCollate1  |                                                                           | no
accounting: empty list               | chkButBqManagment                                                                       | 3 | lblBqManagment | You must add an account ID to the list.                                   | yes
accounting: nothing typed            | chkButBqManagment; cmbBxBqManagment=Use specific account ID                             | 4 | lblBqManagment | Account ID must be 1 to 8 numbers in length                               | yes
accounting: typed                    | chkButBqManagment; cmbBxBqManagment=Use specific account ID; lnEditAccountID=1          | 5 | lblBqManagment |                                                                           | no
accounting: off                      | chkButBqManagment; chkButBqManagment                                                    | 6 | lblBqManagment |                                                                           | no
name: given                          | cmbBxJobName=Custom; lnEditJobName=j                                                    | 2 | lblJobName     |                                                                           | no
name: emptied                        | cmbBxJobName=Custom; lnEditJobName=j; lnEditJobName=                                    | 3 | lblJobName     | The custom job name field requires a name within a 64 character limit.    | yes
login: no name                       | chkButUserLogin                                                                         | 2 | lblUserLogin   | User name must be at least one character long.                            | yes
login: quote in the password         | chkButUserLogin; lnEditLoginUserName=j; lnEditLoginPassword=a"b                         | 6 | lblUserLogin   | Value cannot contain the double quote (") character.                      | no
login: quote is told before the name | chkButUserLogin; lnEditLoginPassword="                                                  | 3 | lblUserLogin   | Value cannot contain the double quote (") character.                      | yes
e-mail: none                         | chkButJobEmail                                                                          | 2 | lblJobEmail    | Enter a valid e-mail address.                                             | yes
e-mail: half                         | chkButJobEmail; lnEditJobEmail=jo@                                                      | 5 | lblJobEmail    | Enter the e-mail address in a valid format. For example: name@example.com | yes
e-mail: good                         | chkButJobEmail; lnEditJobEmail=jo@x.y                                                   | 8 | lblJobEmail    |                                                                           | no
e-mail: off                          | chkButJobEmail; lnEditJobEmail=jo; chkButJobEmail                                       | 7 | lblJobEmail    |                                                                           | no
)");
}

void TestJobTab::marks()
{
    QFETCH(QString, steps);
    QFETCH(QString, label);
    QFETCH(QString, message);
    QFETCH(QString, holdsBack);
    Panel panel;
    panel.load();
    panel.act("pass");
    QVERIFY(!panel.page->hasMarks());
    panel.dialog.takeCalls();
    panel.act(steps);
    QTEST(QString::number(panel.dialog.takeCalls().size()), "passes");
    for (int round = 0; round < 2; ++round) { // another pass doesn't change anything
        QCOMPARE(panel.tip(label).replace('\n', ' '), message);
        const int images = panel.find<QLabel>(label)->text().count("<img src=':/icons/error'>");
        QCOMPARE(images, message.isEmpty() ? 0 : 1);
        QCOMPARE(panel.page->hasMarks(), holdsBack == "yes");
        panel.act("pass");
    }
}

void TestJobTab::quoteInAddress()
{
    // The message stands below the field, and the mark stays as it is.
    Panel panel;
    const auto state = [&] {
        QString messages;
        const QList<QLabel *> labels = panel.page->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->styleSheet().contains("color: red") && !label->isHidden())
                messages += label->text();
        }
        return messages + (panel.tip("lblJobEmail").isEmpty() ? "" : " marked");
    };
    const QString message = "Value cannot contain the double quote (\") character.";
    const QString settings = "cEmail=True; EMailNotification=a\"b@c.d";
    panel.load(everything, settings);
    panel.act("pass");
    QCOMPARE(state(), message);
    panel.act("lnEditJobEmail=a");
    QCOMPARE(state(), QString(" marked"));
    panel.edit("lnEditJobEmail")->setText("a\"b");
    QCOMPARE(state(), message + " marked");
    panel.act("chkButJobEmail");
    QCOMPARE(state(), QString());
    panel.load(everything, settings);
    panel.load();
    QCOMPARE(state(), QString());
}

void TestJobTab::unavailablePage()
{
    Panel panel;
    QVERIFY(!panel.page->isAvailable());
    panel.load("cEmail 99 False True");
    QVERIFY(panel.page->isAvailable());
    panel.act("cmbBxJobName=Custom");
    QVERIFY(panel.page->hasMarks());
    panel.load("cJobName 99 False True");
    QVERIFY(!panel.page->isAvailable());
    panel.act("cmbBxJobName=Custom");
    QVERIFY(!panel.page->hasMarks());
    currentStore = nullptr;
    panel.act("chkButBXCollate1; chkButBqManagment; chkButJobEmail; cmbBxJobName=Custom");
    panel.page->reload();
    panel.page->beforeConstraints();
    panel.page->markConstraintWidgets();
    QVERIFY(!panel.page->hasMarks());
}

// Settings

void TestJobTab::settingsOfAnUntouchedPage()
{
    Panel panel;
    panel.load();
    QCOMPARE(lines(panel.page->collectSettings()).join(' '),
             QString("BXCollate1=None Email=off JobDate=true JobName=off cEmail=False "
                     "cJobAccount=False cJobStore=False cUserLogin=False"));
    QCOMPARE(lines(panel.page->extraSettings()).join(' '),
             QString("BqManagment=Default EMailNotification=off UserLogin=False"));
    // Without job accounting the list of the printer before is no longer saved either.
    panel.load(everything, "CustomAccountIDStore=5=five");
    panel.load("cEmail 99 False True");
    QCOMPARE(lines(panel.page->extraSettings()).join(' '),
             QString("EMailNotification=off UserLogin=False"));
}

void TestJobTab::settings_data()
{
    addRows({"steps", "collected", "extra"}, withSecrets(R"(
proof and hold                | chkButBXCollate1                                                                          | BXCollate1=Proof cJobStore=True |
job storage                   | chkButBXCollate1; cmbBxBXCollate1=Job storage                                             | cJobStore=True -BXCollate1      | BXCollate1=JobStorage JobStorage=True
job storage with a short code | chkButBXCollate1; cmbBxBXCollate1=Job storage; lnEditJobStorage=123                       | cJobStore=True -BXCollate1      | BXCollate1=JobStorage JobStorage=True
job storage with a code       | chkButBXCollate1; cmbBxBXCollate1=Job storage; lnEditJobStorage=1234                      | cJobStore=True -BXCollate1      | AccessCode={1234} BXCollate1=JobStorage JobStorage=True
private print                 | chkButBXCollate1; cmbBxBXCollate1=Private print; lnEditJobStorage=1234                    | cJobStore=True -BXCollate1      | AccessCode={1234} BXCollate1=Custom1 PrivatePrint=True
private print without a code  | chkButBXCollate1; cmbBxBXCollate1=Private print                                           | cJobStore=True -BXCollate1      | BXCollate1=Custom1 PrivatePrint=True
custom box                    | chkButBXCollate1; cmbBxBXCollate1=Custom box; lnEditBoxNumber=7                           | cJobStore=True -BXCollate1      | BXCollate1=Custom2 CustomBox=0007 CustomBoxPassword=
custom box with a password    | chkButBXCollate1; cmbBxBXCollate1=Custom box; lnEditBoxNumber=1000; lnEditBoxPassword=a\b | cJobStore=True -BXCollate1      | BXCollate1=Custom2 CustomBox=1000 CustomBoxPassword={a\b}
typed account                 | chkButBqManagment; cmbBxBqManagment=Use specific account ID; lnEditAccountID=0012         | cJobAccount=True                | BqManagment=0012 CustomAccountID=0012
no account yet                | chkButBqManagment                                                                         | cJobAccount=True                | -BqManagment
login                         | chkButUserLogin; lnEditLoginUserName=j\d; lnEditLoginPassword=x\\y                        | cUserLogin=True                 | UserLogin=True UserLoginName={j\d} UserLoginPass={x\\y}
login without password        | chkButUserLogin; lnEditLoginUserName=jo                                                   | cUserLogin=True                 | UserLogin=True UserLoginName={jo}
job name                      | cmbBxJobName=Custom; lnEditJobName=My job                                                 | -JobName                        | CustomJobName=My job
replace                       | cmbBxOverwrite=Replace existing file                                                      | JobDate=false                   | JobDate=false ReplaceJob=true
e-mail                        | chkButJobEmail; lnEditJobEmail=a@b.c                                                      | Email=a@b.c cEmail=True         | EMailNotification=a@b.c
)"));
}

void TestJobTab::settings()
{
    QFETCH(QString, steps);
    Panel panel;
    panel.load();
    const auto collectedBefore = panel.page->collectSettings();
    const auto extraBefore = panel.page->extraSettings();
    panel.act(steps);
    QTEST(changes(collectedBefore, panel.page->collectSettings()), "collected");
    QTEST(changes(extraBefore, panel.page->extraSettings()), "extra");

    panel.act("pass");
    if (panel.page->hasMarks())
        return; // the main window doesn't save this
    const QList<Tab *> pages = {panel.page};
    SettingsCollector collector(pages);
    writeCfg(currentCfgPath, collector.collect(), true);
    const QByteArray file = fileText(currentCfgPath);
    Panel fresh;
    fresh.load(everything, file);
    fresh.act("pass");
    // The box number shows as it is saved; a password that was left empty is greyed next time.
    QCOMPARE(fresh.shown(), panel.shown().replaceInStrings("\"jo\" \"\"", "\"jo\" -\"\""));
    QCOMPARE(lines(fresh.page->collectSettings()), lines(panel.page->collectSettings()));
    QCOMPARE(lines(fresh.page->extraSettings()), lines(panel.page->extraSettings()));
}

QTEST_MAIN(TestJobTab)

#include "tst_jobtab.moc"
