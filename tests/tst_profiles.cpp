// The profile dialogs, each by itself under a recording main dialog, and as the unchanged program
// shows them.

#include "app/language.h"
#include "model/optionstore.h"
#include "profiles/profiledialog.h"
#include "profiles/profileeditdialog.h"
#include "profiles/profilereader.h"
#include "profiles/profilesavedialog.h"
#include "profiles/profilestore.h"
#include "profiles/settingssource.h"
#include "storage/settingsfile.h"
#include "support/dialogs.h"
#include "support/panelsteps.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QTranslator>
#include <QTreeWidget>

namespace {

const QString factory = "Factory Default";

bool makeProfile(const QString &name, const QByteArray &lines = "[Brixola PX-4500]\n")
{
    return setFileText(profilePath(name), "[Profile]\n" + lines);
}

QPushButton *button(const QWidget *dialog, const char *text)
{
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->window() == dialog && button->text() == text)
            return button;
    }
    return nullptr;
}

void click(const QWidget *dialog, const char *text)
{
    QTest::mouseClick(button(dialog, text), Qt::LeftButton);
}

QPushButton *okButton(const QDialog *dialog)
{
    return dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

/// Fills the fields.
/// \return whether OK may be clicked
bool fill(const QDialog *dialog, const QString &name, const QString &description = QString())
{
    auto *edit = dialog->findChild<QLineEdit *>();
    edit->clear();
    edit->insert(name); // past no validator, unlike setText()
    dialog->findChild<QTextEdit *>()->setPlainText(description);
    return okButton(dialog)->isEnabled();
}

/// Settings that no page gives.
class FixedSettings : public SettingsSource
{
public:
    const Settings &collect() override { return settings; }

private:
    Settings settings{{"PageSize", "A5"}};
};

/// The dialog under test with all that it needs.
struct Profiles
{
    Profiles()
    {
        main.selectPrinter("Duplex 99 None/Off Tumble/Short_edge*");
        currentStore->setPrinterName("Office_C3");
        currentStore->setModelName("Brixola PX-4500");
        currentCfgPath = "/as/it/was.cfg";
        main.remark = [] { return currentCfgPath; };
        constraintsClear = true;
        open();
    }

    void open()
    {
        dialog.fillProfileTable();
        dialog.show();
    }
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < table->rowCount(); ++row)
            texts.append(table->item(row, 0)->text());
        return texts;
    }
    QString current() const { return table->currentItem()->text(); }
    void select(const QString &name) { table->setCurrentCell(rows().indexOf(name), 0); }
    /// The item in the tree; null for a label that doesn't show.
    QTreeWidgetItem *item(const char *label) const
    {
        return tree->findItems(label, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    QString detail(const char *label) const
    {
        return item(label) ? item(label)->text(1) : QString();
    }
    bool canChange() const
    {
        return button(&dialog, "Edit...")->isEnabled() && button(&dialog, "Delete")->isEnabled();
    }
    /// Clicks, fills the fields of the dialog that comes up, and clicks its OK.
    template <typename Dialog>
    bool fillAfter(const char *text, const QString &name, const QString &description)
    {
        bool closed = false;
        whileOpen<Dialog>([&] { click(&dialog, text); },
                          [&](Dialog *form) {
                              fill(form, name, description);
                              okButton(form)->click();
                              closed = !form->isVisible();
                          });
        return closed;
    }

    MessageBoxes boxes;
    RecordingDialog main;
    FixedSettings source;
    ProfileDialog dialog{&main, &source};
    QTableWidget *table = dialog.findChild<QTableWidget *>();
    QTreeWidget *tree = dialog.findChild<QTreeWidget *>();
};

} // namespace

class TestProfiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void currentRow_data();
    void currentRow();
    void treeFollowsTheRow();
    void load();
    void manyFiles();
    void save_data();
    void save();
    void saveDialogChecks();
    void saveDialogRefuses();
    void editAndDelete();
    void windows();
    void labelsFit();

    void profileOnTwoPrinters();
};

void TestProfiles::init()
{
    userDir = userDirectory();
    QVERIFY(QDir(userDir).removeRecursively());
    QVERIFY(QDir().mkpath(userDir));
}

// The list

void TestProfiles::currentRow_data()
{
    addRows({"chosen", "removed", "added", "current"}, R"(
nothing changed                      | M               |   |     | M
a new one before it                  | M               |   | A   | A
a new one behind it                  | M               |   | S   | S
two new ones                         | M               |   | S A | A
a new one, factory settings chosen   | Factory Default |   | A   | A
renamed                              | M               | M | S   | S
deleted                              | M               | M |     | Factory Default
another one deleted                  | M               | L |     | M)");
}

void TestProfiles::currentRow()
{
    QFETCH(QString, chosen);
    QFETCH(QString, removed);
    QFETCH(QString, added);
    QVERIFY(makeProfile("L") && makeProfile("M"));
    QVERIFY(setFileText(cfgPath("Office_C3"), "PageSize=A4\n"));
    Profiles profiles;
    QCOMPARE(profiles.table->currentRow(), 0);
    QCOMPARE(profiles.rows(), QStringList({factory, "L", "M"}));
    profiles.select(chosen);
    if (!removed.isEmpty())
        QVERIFY(QFile::remove(profilePath(removed)));
    for (const QString &name : added.split(' ', Qt::SkipEmptyParts))
        QVERIFY(makeProfile(name));
    profiles.open();
    QTEST(profiles.current(), "current");
    QCOMPARE(profiles.canChange(), profiles.table->currentRow() != 0);
}

void TestProfiles::treeFollowsTheRow()
{
    const QString marked = "<b>b<img src=x>";
    QVERIFY(makeProfile(marked, "[Brixola PX-4500]\nDuplex=DuplexNoTumble\n"
                                "ProfileDescription=<i>one\\ntwo\n"));
    QVERIFY(makeProfile(factory, "[Brixola Gone]\nDuplex=None\n"));
    Profiles profiles;
    QCOMPARE(profiles.detail("User login"), QString("Off"));
    profiles.select(marked);
    QCOMPARE(profiles.detail("Duplex"), QString("Long edge"));
    QCOMPARE(profiles.detail("Description"), QString("<i>one\ntwo"));
    QVERIFY(profiles.tree->topLevelItem(0)->isExpanded());
    // Tool tips would take it for markup.
    QVERIFY(profiles.item("Description")->toolTip(1).contains("&lt;i&gt;one"));
    QVERIFY(profiles.table->currentItem()->toolTip().contains("&lt;b&gt;b"));
    // A profile that has come to the factory entry's name is one all the same.
    profiles.table->setCurrentCell(2, 0);
    QCOMPARE(profiles.detail("Duplex"), QString("ERROR 3"));
    QVERIFY(profiles.canChange());

    QVERIFY(QFile::setPermissions(profilePath(marked), {}));
    profiles.select(marked);
    QCOMPARE(profiles.tree->topLevelItemCount(), 1); // Fleet Keeper
    profiles.dialog.loadDetailsFromCell(99, 0, 0, 0);
    QCOMPARE(profiles.tree->topLevelItemCount(), 0);
    QVERIFY(!profiles.canChange());
}

void TestProfiles::load()
{
    QVERIFY(makeProfile("M", "PageSize=A3\n"));
    Profiles profiles;
    const auto callsOf = [&](const QString &profile, const char *with) {
        profiles.select(profile);
        click(&profiles.dialog, with);
        return profiles.main.takeCalls();
    };
    const auto reloads = [](const QString &path) {
        return QStringList{"profileChanged " + path, "setConstraints " + path};
    };
    QCOMPARE(callsOf("M", "Apply"), reloads(profilePath("M")));
    QCOMPARE(readSetting("PageSize"), QString("A3"));
    // Nothing is saved for the factory settings, so that every option takes its default.
    QCOMPARE(callsOf(factory, "Apply"), reloads(userDir));
    QVERIFY(readSetting("PageSize").isNull());
    QVERIFY(profiles.dialog.isVisible());
    // Conflicts can't be saved, but a profile without any takes their place.
    constraintsClear = false;
    profiles.open();
    QVERIFY(!button(&profiles.dialog, "Save...")->isEnabled());
    constraintsClear = true;
    callsOf("M", "Apply");
    QVERIFY(button(&profiles.dialog, "Save...")->isEnabled());
    QCOMPARE(callsOf("M", "OK"), reloads(profilePath("M")));
    QVERIFY(!profiles.dialog.isVisible());
    profiles.open();
    QCOMPARE(callsOf(factory, "Close"), QStringList());
    QVERIFY(!profiles.dialog.isVisible());
}

void TestProfiles::manyFiles()
{
    for (int i = 0; i < 10000; ++i)
        QVERIFY(setFileText(cfgPath(QString::number(i)), i % 2 ? "A=1\n" : "[Profile]\nA=1\n"));
    Profiles profiles;
    QCOMPARE(profiles.table->rowCount(), 5001);
    profiles.select("9998");
    click(&profiles.dialog, "Save...");
    QCOMPARE(profiles.boxes.take().size(), 1); // too many
    click(&profiles.dialog, "Delete");
    QCOMPARE(profiles.table->rowCount(), 5000);
}

// Saving

void TestProfiles::save_data()
{
    addColumns<QString, QString, QString>("name", "description", "stored");
    addRow("over another one, without description", "Old", "", "");
    addRow("several lines and backslashes", "Draft", "a\\b\n\nü=\\", "a\\b\\n\\nü=\\");
    addRow("leading blank and quotes", " 'a' %1 “b” $PATH *", "x", "x");
    addRow("251 bytes", QString(125, QChar(0xe4)) + 's', "x", "x");
}

void TestProfiles::save()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QFETCH(QString, stored);
    QVERIFY(makeProfile("Old", "Old=1\n"));
    Profiles profiles;
    profiles.select("Old");
    QVERIFY(profiles.fillAfter<ProfileSaveDialog>("Save...", name, description));
    const QString file = profilePath(name);
    QCOMPARE(QString::fromUtf8(fileText(file)),
             "[Profile]\n[Brixola PX-4500]\nProfileDescription=" + stored + "\nPageSize=A5\n");
    QCOMPARE(profiles.current(), name);
    QCOMPARE(profiles.detail("Print size"), QString("A5"));
    QCOMPARE(profiles.detail("Description"), description);
    QCOMPARE(currentCfgPath, QString("/as/it/was.cfg"));

    click(&profiles.dialog, "Delete");
    QVERIFY(!QFile::exists(file));
    QCOMPARE(currentCfgPath, file);
    QCOMPARE(profiles.current(), factory);
    QCOMPARE(profiles.boxes.take(), QStringList()); // nobody has been asked
}

void TestProfiles::saveDialogChecks()
{
    const QString ppd = "/etc/cups/ppd/Annex.ppd.O";
    QVERIFY(setFileText(ppd, ""));
    Profiles profiles;
    ProfileSaveDialog dialog(&profiles.source, nullptr);
    dialog.show();
    QVERIFY(!okButton(&dialog)->isEnabled());
    QVERIFY(!fill(&dialog, "Draft", QString(1025, 'x')));
    QVERIFY(fill(&dialog, QString(251, 'x')));
    auto *nameEdit = dialog.findChild<QLineEdit *>();
    QTest::keyClicks(nameEdit, "y");
    QCOMPARE(nameEdit->text(), QString(251, 'x'));
    // The queues are asked for each time, and what was typed doesn't come again.
    QVERIFY(!fill(&dialog, "annex"));
    ProfileEditDialog edit(nullptr);
    edit.setProfile("annex", QString());
    edit.show();
    QVERIFY(!okButton(&edit)->isEnabled());
    QVERIFY(QFile::remove(ppd));
    dialog.close();
    dialog.show();
    QCOMPARE(nameEdit->text(), QString());
    QVERIFY(fill(&dialog, "annex"));
}

void TestProfiles::saveDialogRefuses()
{
    Profiles profiles;
    ProfileSaveDialog dialog(&profiles.source, nullptr);
    dialog.show();
    const auto saying = [&](const QString &name) {
        fill(&dialog, name);
        dialog.saveProfile();
        return profiles.boxes.take();
    };
    QCOMPARE(saying("Office_C3"), QStringList("Save Profile: This name is reserved"));
    QCOMPARE(saying(""), QStringList("Save Profile: You must enter a profile name"));
    currentStore = nullptr; // the printer has gone
    QCOMPARE(saying("Draft"), QStringList("Save Profile: Select a printer."));
    QVERIFY(dialog.isVisible());
    dialog.close();
    QVERIFY(QDir(userDir).isEmpty());

    for (int i = 1; i <= 24; ++i)
        QVERIFY(makeProfile(QString::number(i)));
    QVERIFY(whileOpen<ProfileSaveDialog>([&] { dialog.exec(); }, [](ProfileSaveDialog *) {}));
    dialog.show();
    QVERIFY(dialog.isVisible());
    dialog.close();
    QVERIFY(makeProfile("25"));
    const QString full = "Save Profile: The profile could not be added. A maximum profile count of "
                         "25 has been reached.";
    dialog.exec();
    dialog.show();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(profiles.boxes.take(), QStringList({full, full}));
}

// Editing and deleting

void TestProfiles::editAndDelete()
{
    // Without its PPD a profile keeps its description too.
    QVERIFY(makeProfile("M", "[Brixola Gone]\nProfileDescription=a\\nb\nA=1\n"));
    QVERIFY(makeProfile("S", "B=2\n"));
    Profiles profiles;
    const auto edit = [&](const char *name) {
        return profiles.fillAfter<ProfileEditDialog>("Edit...", name, "c\n");
    };
    profiles.select("M");
    click(&profiles.dialog, "Apply");
    QVERIFY(whileOpen<ProfileEditDialog>(
        [&] { click(&profiles.dialog, "Edit..."); },
        [](ProfileEditDialog *dialog) {
            QVERIFY(okButton(dialog)->isEnabled());
            QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QString("M"));
            QCOMPARE(dialog->findChild<QTextEdit *>()->toPlainText(), QString("a\nb"));
        }));
    QVERIFY(edit("M"));
    QCOMPARE(profiles.current(), QString("M"));
    QVERIFY(edit(" it's "));
    QCOMPARE(profiles.current(), QString(" it's "));
    QVERIFY(edit("S")); // takes the place of another one
    QCOMPARE(profiles.rows(), QStringList({factory, "S"}));
    QCOMPARE(fileText(profilePath("S")),
             QByteArray("[Profile]\n[Brixola Gone]\nProfileDescription=c\\n\nA=1\n"));
    QCOMPARE(currentCfgPath, profilePath("M")); // the loaded one's first name

    profiles.select("S");
    click(&profiles.dialog, "Delete");
    QCOMPARE(profiles.rows(), QStringList(factory));
    QCOMPARE(currentCfgPath, profilePath("S"));
    QVERIFY(QDir(userDir).isEmpty());
    QCOMPARE(profiles.boxes.take(), QStringList());
}

// The looks

void TestProfiles::windows()
{
    Profiles profiles;
    auto *save = profiles.dialog.findChild<ProfileSaveDialog *>();
    auto *edit = profiles.dialog.findChild<ProfileEditDialog *>();
    save->show();
    edit->show();
    QCOMPARE(save->windowTitle(), QString("Save Profiles"));
    QCOMPARE(edit->windowTitle(), QString("Edit Profile"));
    QVERIFY(profiles.dialog.width() >= 450 && profiles.dialog.height() >= 500);
    for (const QDialog *dialog : std::initializer_list<QDialog *>{&profiles.dialog, save, edit}) {
        QVERIFY(dialog->width() >= 350 && dialog->height() >= 200);
        QCOMPARE(dialog->minimumSize(), dialog->maximumSize());
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        const auto widgets = dialog->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
                continue;
            QAccessibleInterface *control = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(control && !control->text(QAccessible::Name).isEmpty(),
                     widget->metaObject()->className());
        }
    }
}

void TestProfiles::labelsFit()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(12); // 9 points on an ordinary screen
    QApplication::setFont(font);
    QVERIFY(QFile::copy(PRESSDESK_SOURCE_DIR "/tests/data/profiles/px4500.cfg", profilePath("M")));
    for (const char *locale : {"fr_FR", "de_DE", "it_IT", "pt_BR", "es_ES"}) {
        QTranslator translator;
        QVERIFY(translator.load(catalogueForLocale(locale)));
        QCoreApplication::installTranslator(&translator);
        Profiles profiles;
        profiles.select("M");
        for (QTreeWidgetItemIterator item(profiles.tree); *item; ++item) {
            const int indentation = profiles.tree->indentation() * ((*item)->parent() ? 2 : 1);
            const QString text = (*item)->text(0);
            QVERIFY2(profiles.tree->fontMetrics().horizontalAdvance(text) + indentation + 8 <= 190,
                     qPrintable(text));
        }
    }
}

// The unchanged program

namespace {

constexpr char paper[] = "cmbBxPageSize";
constexpr char duplex[] = "butGroupDuplex";

struct ProfilePanel : Panel
{
    bool clickButton(const char *text) { return click(PanelWidget::button(text)); }
    bool changePrinter(const char *printer)
    {
        return clickTab("Printer") && select(printer) && clickTab("Basic");
    }
    bool saveProfile(const char *name)
    {
        return clickButton("Save As...") && enter(PanelWidget::ofClass("QLineEdit"), name) && ok();
    }
    bool loadProfile(const char *name, const char *with)
    {
        return clickButton("Profiles...") && clickRow(list, name) && clickButton(with);
    }
    bool applyAndAnswer() { return apply() && message() == applied && answer(); }

    const PanelWidget list = PanelWidget::ofClass("QTableWidget");
};

} // namespace

void TestProfiles::profileOnTwoPrinters()
{
    QVERIFY(makeUserFolder());
    PrintServer server;
    QVERIFY2(server.start() && server.addSampleQueues(), qPrintable(server.error()));
    ProfilePanel panel;
    QVERIFY(panel.startWith("Office_C3") && panel.clickTab("Basic") && panel.choose(paper, "A5") &&
            panel.clickGroupButton(duplex, "Long edge") && panel.saveProfile("A5, 2 sides"));
    QVERIFY(fileText(profilePath("A5, 2 sides")).contains("\nPageSize=A5\n"));
    QVERIFY(!savedLines("Office_C3").contains("PageSize=A5"));
    // All that the pages write can be shown in words.
    const QList<ProfileSection> sections = profileSections(readProfile(profilePath("A5, 2 sides")));
    for (const ProfileSection &section : sections) {
        for (const ProfileRow &row : section.rows)
            QVERIFY2(!row.text.startsWith("ERROR"), qPrintable(row.label));
    }

    // Another model takes over what both have, and nothing is saved before Apply.
    QVERIFY(panel.changePrinter("Warehouse_M1") && panel.loadProfile("A5, 2 sides", "OK"));
    QCOMPARE(panel.currentText(paper), QString("A5"));
    QCOMPARE(panel.currentText(duplex), QString("Long edge"));
    QVERIFY(!savedLines("Warehouse_M1").contains("PageSize=A5"));
    QVERIFY(panel.applyAndAnswer());
    QVERIFY(savedLines("Warehouse_M1").contains("PageSize=A5"));

    QVERIFY(panel.loadProfile("Factory Default", "OK"));
    QCOMPARE(panel.currentText(paper), QString("A4"));
    // The next selection reads the printer's own file again.
    QVERIFY(panel.changePrinter("Office_C3") && panel.changePrinter("Warehouse_M1"));
    QCOMPARE(panel.currentText(paper), QString("A5"));

    // A loaded profile stays in the window when it is deleted, which nobody asks about.
    QVERIFY(panel.changePrinter("Office_C3") && panel.choose(paper, "A3") &&
            panel.loadProfile("A5, 2 sides", "Apply") && panel.clickButton("Delete"));
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.table(panel.list).rows.size(), 1);
    QVERIFY(!QFile::exists(profilePath("A5, 2 sides")));
    QVERIFY(panel.clickButton("Close") && panel.clickGroupButton("butGroupCol", "Off"));
    QCOMPARE(panel.currentText(paper), QString("A5"));
    QVERIFY(panel.applyAndAnswer());
    QCOMPARE(missing({"PageSize=A5", "Coll=False"}, savedLines("Office_C3")), QStringList());
    QCOMPARE(panel.standardError(), QString());
}

QTEST_MAIN(TestProfiles)
#include "tst_profiles.moc"
