// The profile dialogs, each by itself under a recording main dialog, and as the unchanged program
// shows them.

#include "app/language.h"
#include "model/optionstore.h"
#include "storage/profiledialog.h"
#include "storage/profileeditdialog.h"
#include "storage/profilereader.h"
#include "storage/profilesavedialog.h"
#include "storage/settingsfile.h"
#include "storage/settingssource.h"
#include "support/paneldriver.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString factory = QStringLiteral("Factory Default");

QString fileOf(const QString &profile)
{
    return userDirectory() + profile + QStringLiteral(".cfg");
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

bool makeProfile(const QString &name, const QByteArray &lines = "[Brixola PX-4500]\n")
{
    return write(fileOf(name), "[Profile]\n" + lines);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the pages would give.
class FixedSettings : public SettingsSource
{
public:
    const Settings &collect() override { return settings; }

private:
    Settings settings{{QStringLiteral("PageSize"), QStringLiteral("A5")}};
};

QPushButton *button(const QWidget *dialog, const char *text)
{
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        if (button->window() == dialog && button->text() == QLatin1String(text))
            return button;
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

void clickOk(const QDialog *dialog)
{
    QTest::mouseClick(okButton(dialog), Qt::LeftButton);
}

void setFields(const QDialog *dialog, const QString &name, const QString &description = QString())
{
    auto *edit = dialog->findChild<QLineEdit *>();
    edit->clear();
    edit->insert(name); // past no validator, unlike setText()
    dialog->findChild<QTextEdit *>()->setPlainText(description);
}

/// Opens a modal dialog, does something with it, and closes it if it is open still.
template <typename Dialog>
void whileOpen(const std::function<void()> &open, const std::function<void(Dialog *)> &act)
{
    bool done = false;
    QTimer::singleShot(0, qApp, [&] {
        if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            done = true;
            act(dialog);
            dialog->close();
        }
    });
    open();
    QCoreApplication::processEvents();
    QVERIFY2(done, Dialog::staticMetaObject.className());
}

/// Title and text of the message that something brings up; empty if there is none.
QStringList messageOf(const std::function<void()> &act)
{
    QStringList message;
    QTimer::singleShot(0, qApp, [&message] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            message = QStringList{box->windowTitle(), box->text()};
            box->accept();
        }
    });
    act();
    QCoreApplication::processEvents();
    return message;
}

/// The dialog under test with all that it needs.
struct Profiles
{
    Profiles()
    {
        main.selectPrinter(QStringLiteral("Duplex 99 None/Off Tumble/Short_edge*"));
        currentStore->setPrinterName(QStringLiteral("Office_C3"));
        currentStore->setModelName(QStringLiteral("Brixola PX-4500"));
        currentCfgPath = QStringLiteral("/as/it/was.cfg");
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
        return tree->findItems(QLatin1String(label), Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    QString detail(const char *label) const
    {
        return item(label) ? item(label)->text(1) : QString();
    }
    bool canChange() const
    {
        return button(&dialog, "Edit...")->isEnabled() && button(&dialog, "Delete")->isEnabled();
    }

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
    void load_data();
    void load();
    void conflictsCannotBeSaved();
    void manyFiles();

    void save_data();
    void save();
    void unsavable_data();
    void unsavable();
    void limit();
    void okButtonFollowsTheFields();
    void editAndDelete();
    void commands_data();
    void commands();
    void layout();
    void labelsFit_data();
    void labelsFit();

    void profileTravels();
    void deletedProfileStaysInTheWindow();
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
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("removed");
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QString>("current");
    const auto row = [](const char *what, const QString &chosen, const QStringList &removed,
                        const QStringList &added, const QString &current) {
        QTest::newRow(what) << chosen << removed << added << current;
    };
    const QString a = QStringLiteral("A"), m = QStringLiteral("M"), s = QStringLiteral("S");
    row("nothing changed", m, {}, {}, m);
    row("a new one before it", m, {}, {a}, a);
    row("a new one behind it", m, {}, {s}, s);
    row("two new ones", m, {}, {s, a}, a);
    row("a new one, factory settings chosen", factory, {}, {a}, a);
    row("renamed", m, {m}, {s}, s);
    row("deleted", m, {m}, {}, factory);
    row("another one deleted", m, {QStringLiteral("L")}, {}, m);
}

void TestProfiles::currentRow()
{
    QFETCH(QString, chosen);
    QFETCH(QStringList, removed);
    QFETCH(QStringList, added);
    QVERIFY(makeProfile(QStringLiteral("L")) && makeProfile(QStringLiteral("M")));
    QVERIFY(write(fileOf(QStringLiteral("Office_C3")), "PageSize=A4\n"));
    Profiles profiles;
    QCOMPARE(profiles.table->currentRow(), 0);
    QCOMPARE(profiles.rows(), QStringList({factory, QStringLiteral("L"), QStringLiteral("M")}));
    profiles.select(chosen);
    for (const QString &name : qAsConst(removed))
        QVERIFY(QFile::remove(fileOf(name)));
    for (const QString &name : qAsConst(added))
        QVERIFY(makeProfile(name));
    profiles.open();
    QTEST(profiles.current(), "current");
    QCOMPARE(profiles.canChange(), profiles.table->currentRow() != 0);
}

void TestProfiles::treeFollowsTheRow()
{
    const QString marked = QStringLiteral("<b>b<img src=x>");
    QVERIFY(makeProfile(marked, "[Brixola PX-4500]\nDuplex=DuplexNoTumble\n"
                                "ProfileDescription=<i>one\\ntwo\n"));
    QVERIFY(makeProfile(factory, "[Brixola Gone]\nDuplex=None\n"));
    Profiles profiles;
    QCOMPARE(profiles.detail("User login"), QStringLiteral("Off"));
    profiles.select(marked);
    QCOMPARE(profiles.detail("Duplex"), QStringLiteral("Long edge"));
    QCOMPARE(profiles.detail("Description"), QStringLiteral("<i>one\ntwo"));
    QVERIFY(profiles.tree->topLevelItem(0)->isExpanded());
    // Tool tips would take it for markup.
    QVERIFY(profiles.item("Description")->toolTip(1).contains(QLatin1String("&lt;i&gt;one")));
    QVERIFY(profiles.table->currentItem()->toolTip().contains(QLatin1String("&lt;b&gt;b")));
    // A profile that has come to the factory entry's name is one all the same.
    profiles.table->setCurrentCell(2, 0);
    QCOMPARE(profiles.detail("Duplex"), QStringLiteral("ERROR 3"));
    QVERIFY(profiles.canChange());

    QVERIFY(QFile::setPermissions(fileOf(marked), {}));
    profiles.select(marked);
    QCOMPARE(profiles.tree->topLevelItemCount(), 1); // Fleet Keeper
    profiles.dialog.loadDetailsFromCell(99, 0, 0, 0);
    QCOMPARE(profiles.tree->topLevelItemCount(), 0);
    QVERIFY(!profiles.canChange());
}

void TestProfiles::load_data()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QByteArray>("with");
    QTest::addColumn<bool>("staysOpen");
    QTest::newRow("OK") << QStringLiteral("M") << QByteArray("OK") << false;
    QTest::newRow("Apply") << QStringLiteral("M") << QByteArray("Apply") << true;
    QTest::newRow("factory settings") << factory << QByteArray("Apply") << true;
}

void TestProfiles::load()
{
    QFETCH(QString, profile);
    QFETCH(QByteArray, with);
    QVERIFY(makeProfile(QStringLiteral("M"), "PageSize=A3\n"));
    Profiles profiles;
    profiles.select(profile);
    click(&profiles.dialog, with.constData());
    const bool isFactory = profile == factory;
    const QString path = isFactory ? userDirectory() : fileOf(profile);
    QCOMPARE(profiles.main.takeCalls(), QStringList({QStringLiteral("profileChanged ") + path,
                                                     QStringLiteral("setConstraints ") + path}));
    QTEST(profiles.dialog.isVisible(), "staysOpen");
    // Nothing is saved for the factory settings, so that every option takes its default.
    QCOMPARE(readSetting(QStringLiteral("PageSize")), isFactory ? QString() : QStringLiteral("A3"));
    profiles.open();
    click(&profiles.dialog, "Close");
    QVERIFY(!profiles.dialog.isVisible());
    QCOMPARE(profiles.main.takeCalls(), QStringList());
}

void TestProfiles::conflictsCannotBeSaved()
{
    Profiles profiles;
    const QPushButton *save = button(&profiles.dialog, "Save...");
    QVERIFY(save->isEnabled());
    constraintsClear = false;
    profiles.open();
    QVERIFY(!save->isEnabled());
    constraintsClear = true; // as the profile that gets loaded here is free of conflicts
    click(&profiles.dialog, "Apply");
    QVERIFY(save->isEnabled());
}

void TestProfiles::manyFiles()
{
    for (int i = 0; i < 10000; ++i)
        QVERIFY(write(fileOf(QString::number(i)), i % 2 ? "A=1\n" : "[Profile]\nA=1\n"));
    Profiles profiles;
    QCOMPARE(profiles.table->rowCount(), 5001);
    profiles.select(QStringLiteral("9998"));
    QCOMPARE(messageOf([&] { click(&profiles.dialog, "Save..."); }).size(), 2);
    click(&profiles.dialog, "Delete");
    QCOMPARE(profiles.table->rowCount(), 5000);
}

// Saving

void TestProfiles::save_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QByteArray>("stored");
    const auto row = [](const char *what, const QByteArray &name, const char *description,
                        const QByteArray &stored) {
        QTest::newRow(what) << QString::fromUtf8(name) << QString::fromUtf8(description) << stored;
    };
    row("without description", "Draft", "", "");
    row("over another one", "Old", "x", "x");
    row("several lines and backslashes", "Draft", "a\\b\n\nü=\\", "a\\b\\n\\nü=\\");
    row("leading blank and quotes", " 'a' %1 “b” $PATH *", "x", "x");
    row("251 bytes", QByteArray("ß").repeated(125) + 's', "x", "x");
}

void TestProfiles::save()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QFETCH(QByteArray, stored);
    QVERIFY(makeProfile(QStringLiteral("Old"), "Old=1\n"));
    Profiles profiles;
    profiles.select(QStringLiteral("Old"));
    whileOpen<ProfileSaveDialog>([&] { click(&profiles.dialog, "Save..."); },
                                 [&](ProfileSaveDialog *dialog) {
                                     QCOMPARE(dialog->windowTitle(),
                                              QStringLiteral("Save Profiles"));
                                     setFields(dialog, name, description);
                                     QCOMPARE(messageOf([&] { clickOk(dialog); }), QStringList());
                                     QVERIFY(!dialog->isVisible());
                                 });
    QCOMPARE(contents(fileOf(name)),
             "[Profile]\n[Brixola PX-4500]\nProfileDescription=" + stored + "\nPageSize=A5\n");
    QCOMPARE(profiles.current(), name);
    QCOMPARE(profiles.detail("Print size"), QStringLiteral("A5"));
    QTEST(profiles.detail("Description"), "description");
    QCOMPARE(currentCfgPath, QStringLiteral("/as/it/was.cfg"));

    QCOMPARE(messageOf([&] { click(&profiles.dialog, "Delete"); }), QStringList());
    QVERIFY(!QFile::exists(fileOf(name)));
    QCOMPARE(currentCfgPath, fileOf(name));
    QCOMPARE(profiles.current(), factory);
}

void TestProfiles::unsavable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("printerGone");
    QTest::addColumn<QString>("message");
    QTest::newRow("the printer's name")
        << QStringLiteral("Office_C3") << false << QStringLiteral("This name is reserved");
    QTest::newRow("no name") << QString() << false
                             << QStringLiteral("You must enter a profile name");
    QTest::newRow("no printer any more")
        << QStringLiteral("Draft") << true << QStringLiteral("Select a printer.");
}

void TestProfiles::unsavable()
{
    QFETCH(QString, name);
    QFETCH(bool, printerGone);
    QFETCH(QString, message);
    Profiles profiles;
    ProfileSaveDialog dialog(&profiles.source, nullptr);
    dialog.show();
    setFields(&dialog, name);
    if (printerGone)
        currentStore = nullptr;
    QCOMPARE(messageOf([&] { dialog.saveProfile(); }),
             QStringList({QStringLiteral("Save Profile"), message}));
    QVERIFY(dialog.isVisible());
    QVERIFY(QDir(userDir).isEmpty());
}

void TestProfiles::limit()
{
    const QStringList full{QStringLiteral("Save Profile"),
                           QStringLiteral("The profile could not be added. A maximum profile "
                                          "count of 25 has been reached.")};
    for (int i = 1; i <= 24; ++i)
        QVERIFY(makeProfile(QString::number(i)));
    FixedSettings source;
    ProfileSaveDialog dialog(&source, nullptr);
    whileOpen<ProfileSaveDialog>([&] { dialog.exec(); }, [](ProfileSaveDialog *) {});
    dialog.show();
    QVERIFY(dialog.isVisible());
    dialog.close();

    QVERIFY(makeProfile(QStringLiteral("25")));
    QCOMPARE(messageOf([&] { dialog.exec(); }), full);
    QCOMPARE(messageOf([&] { dialog.show(); }), full);
    QVERIFY(!dialog.isVisible());
}

void TestProfiles::okButtonFollowsTheFields()
{
    const QString ppd = QStringLiteral("/etc/cups/ppd/Annex.ppd.O");
    QVERIFY(write(ppd, {}));
    FixedSettings source;
    ProfileSaveDialog dialog(&source, nullptr);
    auto *nameEdit = dialog.findChild<QLineEdit *>();
    const auto okWith = [&](const QString &name, const QString &description = QString()) {
        setFields(&dialog, name, description);
        return okButton(&dialog)->isEnabled();
    };
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Save Profile"));
    dialog.show();
    QVERIFY(!okButton(&dialog)->isEnabled());
    QVERIFY(okWith(QStringLiteral("Draft")));
    QVERIFY(!okWith(QStringLiteral("Draft"), QString(1025, QLatin1Char('x'))));
    QVERIFY(!okWith(QString()));
    QVERIFY(!okWith(QString::fromUtf8("ä").repeated(126)));
    QVERIFY(okWith(QString(251, QLatin1Char('x'))));
    QTest::keyClicks(nameEdit, QStringLiteral("y"));
    QCOMPARE(nameEdit->text(), QString(251, QLatin1Char('x')));
    // The queues are asked for each time, and what was typed doesn't come again.
    QVERIFY(!okWith(QStringLiteral("annex")));
    ProfileEditDialog edit(nullptr);
    edit.setProfile(QStringLiteral("annex"), QString());
    edit.show();
    QVERIFY(!okButton(&edit)->isEnabled());
    QVERIFY(QFile::remove(ppd));
    dialog.close();
    dialog.show();
    QCOMPARE(nameEdit->text(), QString());
    QVERIFY(okWith(QStringLiteral("annex")));
}

// Editing and deleting

void TestProfiles::editAndDelete()
{
    // Without its PPD a profile keeps its description too.
    QVERIFY(makeProfile(QStringLiteral("M"), "[Brixola Gone]\nProfileDescription=a\\nb\nA=1\n"));
    QVERIFY(makeProfile(QStringLiteral("S"), "B=2\n"));
    Profiles profiles;
    const auto edit = [&](const QString &name, const QString &description) {
        whileOpen<ProfileEditDialog>([&] { click(&profiles.dialog, "Edit..."); },
                                     [&](ProfileEditDialog *dialog) {
                                         QVERIFY(okButton(dialog)->isEnabled());
                                         setFields(dialog, name, description);
                                         QCOMPARE(messageOf([&] { clickOk(dialog); }),
                                                  QStringList());
                                         QVERIFY(!dialog->isVisible());
                                     });
    };
    profiles.select(QStringLiteral("M"));
    click(&profiles.dialog, "Apply");
    whileOpen<ProfileEditDialog>(
        [&] { click(&profiles.dialog, "Edit..."); },
        [](ProfileEditDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Edit Profile"));
            QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QStringLiteral("M"));
            QCOMPARE(dialog->findChild<QTextEdit *>()->toPlainText(), QStringLiteral("a\nb"));
        });
    edit(QStringLiteral("M"), QStringLiteral("c\n"));
    QCOMPARE(profiles.current(), QStringLiteral("M"));
    edit(QStringLiteral(" it's "), QStringLiteral("c\n"));
    QCOMPARE(profiles.current(), QStringLiteral(" it's "));
    edit(QStringLiteral("S"), QStringLiteral("c\n")); // takes the place of another one
    QCOMPARE(profiles.rows(), QStringList({factory, QStringLiteral("S")}));
    QCOMPARE(contents(fileOf(QStringLiteral("S"))),
             QByteArray("[Profile]\n[Brixola Gone]\nProfileDescription=c\\n\nA=1\n"));
    QCOMPARE(currentCfgPath, fileOf(QStringLiteral("M"))); // the loaded one's first name

    profiles.select(QStringLiteral("S"));
    click(&profiles.dialog, "Delete");
    QCOMPARE(profiles.rows(), QStringList(factory));
    QCOMPARE(currentCfgPath, fileOf(QStringLiteral("S")));
    QVERIFY(QDir(userDir).isEmpty());
}

void TestProfiles::commands_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Draft", " two  blanks ", "it's $HOME \\ *", "a\" \"b"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

/// Stand-ins write down what they are called with, one argument a line.
void TestProfiles::commands()
{
    QFETCH(QString, name);
    QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("log"));
    for (const char *command : {"rm", "mv"}) {
        const QString script = folder.filePath(QLatin1String(command));
        QVERIFY(write(script, "#!/bin/sh\nprintf '%s\\n' \"${0##*/}\" \"$@\" >> " +
                                  QFile::encodeName(log) + '\n'));
        QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner));
    }
    QVERIFY(makeProfile(name));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ':' + path);
    Profiles profiles;
    profiles.select(name);
    click(&profiles.dialog, "Delete");
    ProfileEditDialog dialog(nullptr);
    dialog.setProfile(name, QString());
    dialog.editProfile();
    qputenv("PATH", path);
    QCOMPARE(QString::fromUtf8(contents(log)),
             QStringLiteral("rm\n-f\n%1.cfg\nmv\n%1.tmp\n%1.cfg\n").arg(userDir + name));
}

void TestProfiles::layout()
{
    Profiles profiles;
    ProfileSaveDialog save(&profiles.source, nullptr);
    ProfileEditDialog edit(nullptr);
    save.show();
    edit.show();
    QVERIFY(profiles.dialog.width() >= 450 && profiles.dialog.height() >= 500);
    for (const QDialog *dialog : std::initializer_list<QDialog *>{&profiles.dialog, &save, &edit}) {
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

void TestProfiles::labelsFit_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"fr_FR", "de_DE", "it_IT", "pt_BR", "es_ES"})
        QTest::newRow(locale) << QString::fromLatin1(locale);
}

void TestProfiles::labelsFit()
{
    QFETCH(QString, locale);
    QTranslator translator;
    QVERIFY(translator.load(catalogueForLocale(locale)));
    QCoreApplication::installTranslator(&translator);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12); // 9 points on an ordinary screen
    QApplication::setFont(font);
    QVERIFY(QFile::copy(QStringLiteral(PRESSDESK_SOURCE_DIR "/tests/data/profiles/px4500.cfg"),
                        fileOf(QStringLiteral("M"))));
    Profiles profiles;
    profiles.select(QStringLiteral("M"));
    QStringList cut;
    for (QTreeWidgetItemIterator item(profiles.tree); *item; ++item) {
        const int indentation = profiles.tree->indentation() * ((*item)->parent() ? 2 : 1);
        if (profiles.tree->fontMetrics().horizontalAdvance((*item)->text(0)) + indentation + 8 >
            190)
            cut.append((*item)->text(0));
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral(", "))));
    const auto buttons = profiles.dialog.findChildren<QPushButton *>();
    for (const QPushButton *each : buttons)
        QVERIFY2(each->window() != &profiles.dialog || each->width() >= each->sizeHint().width(),
                 qPrintable(each->text()));
}

// The unchanged program

namespace {

struct Panel : PanelDriver
{
    Panel()
        : PanelDriver(QStringLiteral(PRESSDESK_PROGRAM))
    {
    }

    bool clickButton(const char *text) { return click(PanelWidget::button(QLatin1String(text))); }
    bool clickStandardButton(const char *name)
    {
        return click(PanelWidget::standardButton(QLatin1String(name)));
    }
    bool selectPrinter(const char *printer)
    {
        return clickTab("Printer") && clickRow("tblPrinters", printer) && clickTab("Basic");
    }
    bool startWith(const char *printer)
    {
        // The question about data collection has been answered.
        return write(userDirectory() + QStringLiteral("Settings"), "Telemetry=False\n") &&
               start() && selectPrinter(printer);
    }
    bool saveProfile(const char *name)
    {
        return clickButton("Save As...") &&
               enter(PanelWidget::ofClass(QStringLiteral("QLineEdit")), QLatin1String(name)) &&
               clickStandardButton("Ok");
    }
    bool openProfiles(const char *name)
    {
        return clickButton("Profiles...") && clickRow(list, name);
    }
    bool applyAndAnswer()
    {
        return clickStandardButton("Apply") &&
               messageBox().text == QLatin1String("Settings applied.") && clickStandardButton("Ok");
    }

    const PanelWidget list = PanelWidget::ofClass(QStringLiteral("QTableWidget"));
};

const char paper[] = "cmbBxPageSize";
const char duplex[] = "butGroupDuplex";

} // namespace

void TestProfiles::profileTravels()
{
    PrintServer server;
    QVERIFY2(server.start() && server.addSampleQueues(), qPrintable(server.error()));
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.choose(paper, "A5") &&
                 panel.clickGroupButton(duplex, "Long edge") && panel.saveProfile("A5, 2 sides"),
             qPrintable(panel.error()));
    QVERIFY(contents(fileOf(QStringLiteral("A5, 2 sides"))).contains("\nPageSize=A5\n"));
    QVERIFY(!contents(fileOf(QStringLiteral("Office_C3"))).contains("PageSize=A5"));
    // All that the pages write can be shown in words.
    const QList<ProfileSection> sections =
        profileSections(readProfile(fileOf(QStringLiteral("A5, 2 sides"))));
    for (const ProfileSection &section : sections)
        for (const ProfileRow &row : section.rows)
            QVERIFY2(!row.text.startsWith(QLatin1String("ERROR")), qPrintable(row.label));

    // Another model takes over what both have, and nothing is saved before Apply.
    QVERIFY2(panel.selectPrinter("Warehouse_M1") && panel.openProfiles("A5, 2 sides") &&
                 panel.clickButton("OK"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(paper), QStringLiteral("A5"));
    QCOMPARE(panel.currentText(duplex), QStringLiteral("Long edge"));
    const QString printer = fileOf(QStringLiteral("Warehouse_M1"));
    QVERIFY(!contents(printer).contains("PageSize=A5"));
    QVERIFY2(panel.applyAndAnswer(), qPrintable(panel.error()));
    QVERIFY(contents(printer).contains("PageSize=A5\n"));

    QVERIFY2(panel.openProfiles("Factory Default") && panel.clickButton("OK"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(paper), QStringLiteral("A4"));
    // The next selection reads the printer's own file again.
    QVERIFY2(panel.selectPrinter("Office_C3") && panel.selectPrinter("Warehouse_M1"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(paper), QStringLiteral("A5"));
    QCOMPARE(panel.standardError(), QString());
}

void TestProfiles::deletedProfileStaysInTheWindow()
{
    PrintServer server;
    QVERIFY2(server.start() && server.addSampleQueues(), qPrintable(server.error()));
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.choose(paper, "A5") && panel.saveProfile("P") &&
                 panel.choose(paper, "A3") && panel.openProfiles("P") &&
                 panel.clickButton("Apply") && panel.clickButton("Delete"),
             qPrintable(panel.error()));
    QVERIFY(!panel.messageBox().shown);
    QCOMPARE(panel.table(panel.list).rows.size(), 1);
    QVERIFY(!QFile::exists(fileOf(QStringLiteral("P"))));

    QVERIFY2(panel.clickButton("Close") && panel.clickGroupButton("butGroupCol", "Off"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(paper), QStringLiteral("A5"));
    QVERIFY2(panel.applyAndAnswer(), qPrintable(panel.error()));
    const QByteArray saved = contents(fileOf(QStringLiteral("Office_C3")));
    QVERIFY2(saved.contains("PageSize=A5\n") && saved.contains("Coll=False\n"), saved.constData());
    QCOMPARE(panel.standardError(), QString());
}

QTEST_MAIN(TestProfiles)
#include "tst_profiles.moc"
