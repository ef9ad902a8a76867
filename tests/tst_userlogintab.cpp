#include "pages/userlogintab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"

#include <QLabel>
#include <QLineEdit>

namespace {

struct Panel
{
    void load(const Settings &settings)
    {
        dialog.selectPrinter("cUserLogin 7 False True");
        writeCfg(currentCfgPath, settings, true);
        page->reload();
    }
    /// The button and what stands in the fields, with "-" before greyed ones.
    QString shown() const
    {
        QString text = button->isChecked() ? "on" : "off";
        for (const QLineEdit *field : {name, password})
            text += (field->isEnabled() ? " " : " -") + field->text();
        return text;
    }

    RecordingDialog dialog;
    UserLoginTab *page = new UserLoginTab(&dialog);
    BixCheckBoxButton *button = page->findChild<BixCheckBoxButton *>();
    QLineEdit *name = page->findChildren<QLineEdit *>().at(0);
    QLineEdit *password = page->findChildren<QLineEdit *>().at(1);
    QLabel *error = page->findChildren<QLabel *>().last();
};

} // namespace

class TestUserLoginTab : public QObject
{
    Q_OBJECT

private slots:
    void startsOff();
    void logins_data();
    void logins();
    void damagedSettings();
};

void TestUserLoginTab::startsOff()
{
    Panel panel;
    QCOMPARE(panel.dialog.takeCalls(), QStringList()); // no pass while the page is built
    QCOMPARE(panel.shown(), QString("off - -"));
    QVERIFY(!panel.page->hasMarks());
    panel.button->setChecked(true);
    for (QLineEdit *field : {panel.name, panel.password})
        QTest::keyClicks(field, QString(70, 'n'));
    QCOMPARE(panel.dialog.takeCalls().size(), 1 + 2 * 64); // no longer texts
}

void TestUserLoginTab::logins_data()
{
    addRows({"name", "password", "error", "marked", "loaded"}, R"(
other alphabets, backslashes   | Zoë Ω | p\\w=#  |                                                    | 0 | on Zoë Ω p\\w=#
no name                        |       | secret | User name must be at least one character long.     | 1 | off - -secret
no password                    | ann   |        |                                                    | 1 | on ann
quote in the name              | a"n   | secret | Value cannot contain the double quote (") character. | 1 | on a"n secret
quote in the password, no name |       | "      | Value cannot contain the double quote (") character. | 1 | off - -"
)");
}

void TestUserLoginTab::logins()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    Panel panel;
    panel.load({});
    panel.button->setChecked(true);
    panel.name->setText(name);
    panel.password->setText(password + 'x'); // one typed too much, and taken back
    QTest::keyClick(panel.password, Qt::Key_Backspace);
    QTEST(panel.error->isHidden() ? QString() : panel.error->text(), "error");
    const bool marked = panel.page->hasMarks();
    QTEST(QString::number(marked), "marked");
    const Settings settings(panel.page->extraSettings());
    QCOMPARE(settings.size(), int(!name.isEmpty()) + int(!password.isEmpty()));
    panel.button->setChecked(false);
    QVERIFY(panel.page->extraSettings().isEmpty());

    Panel fresh;
    fresh.button->setChecked(true);
    fresh.dialog.takeCalls();
    fresh.load(settings);
    QTEST(fresh.shown().trimmed(), "loaded"); // a password alone is no login
    QCOMPARE(fresh.page->hasMarks(), marked && fresh.button->isChecked());
    QCOMPARE(fresh.dialog.takeCalls(), QStringList());
}

void TestUserLoginTab::damagedSettings()
{
    Panel panel;
    for (const QString &text : {QString("abc"), QString(64, 'f'), QString(1 << 20, 'a')}) {
        panel.name->setText("before");
        panel.password->setText("before");
        panel.load({{"UserLoginName", text}, {"UserLoginPass", text}});
        QVERIFY(panel.button->isChecked()); // somebody wanted a login
        for (const QLineEdit *field : {panel.name, panel.password})
            QVERIFY(field->text() != "before" && field->text().size() <= 64);
    }
}

QTEST_MAIN(TestUserLoginTab)

#include "tst_userlogintab.moc"
