#include "pages/userlogintab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "widgets/bixcheckboxbutton.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace {

struct Panel
{
    void load(const Settings &settings)
    {
        dialog.selectPrinter("cUserLogin 7 False True");
        writeCfg(currentCfgPath, settings, true);
        page->reload();
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
    void damagedSettings_data();
    void damagedSettings();
};

void TestUserLoginTab::startsOff()
{
    Panel panel;
    QCOMPARE(panel.dialog.takeCalls(), QStringList()); // no pass while the page is built
    QVERIFY(!panel.name->isEnabled() && !panel.password->isEnabled() && !panel.page->hasMarks());
    panel.button->setChecked(true);
    QVERIFY(panel.name->isEnabled() && panel.password->isEnabled());
    for (QLineEdit *field : {panel.name, panel.password}) {
        QTest::keyClicks(field, QString(70, 'n'));
        QCOMPARE(field->text().size(), 64);
    }
    QCOMPARE(panel.dialog.takeCalls().size(), 1 + 2 * 64);
}

void TestUserLoginTab::logins_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("marked");
    const auto row = [](const char *title, bool on, const QString &name, const QString &password,
                        const char *error, bool marked) {
        QTest::newRow(title) << on << name << password << error << marked;
    };
    const char *const quote = "Value cannot contain the double quote (\") character.";
    const char *const noName = "User name must be at least one character long.";
    row("longest", true, QString(64, QChar(0x20ac)), QString(63, 'x'), "", false);
    row("other alphabets, backslashes", true, "Zoë Ω", "p\\\\w=#", "", false);
    row("no name", true, "", "secret", noName, true);
    row("no password", true, "ann", "", "", true);
    row("quote in the name", true, "a\"n", "secret", quote, true);
    row("quote in the password, no name", true, "", "\"", quote, true);
    row("off", false, "a\"n", "", "", false);
}

void TestUserLoginTab::logins()
{
    QFETCH(bool, on);
    QFETCH(QString, name);
    QFETCH(QString, password);
    Panel panel;
    panel.load({});
    panel.button->setChecked(true);
    panel.name->setText(name);
    panel.password->setText(password + 'x'); // one typed too much, and taken back
    QTest::keyClick(panel.password, Qt::Key_Backspace);
    panel.button->setChecked(on);
    QTEST(panel.error->isHidden() ? QString() : panel.error->text(), "error");
    QTEST(panel.page->hasMarks(), "marked");
    const Settings settings(panel.page->extraSettings());
    QCOMPARE(settings.size(), on ? int(!name.isEmpty()) + int(!password.isEmpty()) : 0);

    Panel fresh;
    fresh.button->setChecked(true);
    QVERIFY(!fresh.error->isHidden());
    fresh.dialog.takeCalls();
    fresh.load(settings);
    const bool loadsOn = on && !name.isEmpty(); // a password alone is no login
    QCOMPARE(fresh.button->isChecked(), loadsOn);
    QCOMPARE(fresh.name->isEnabled(), loadsOn);
    QCOMPARE(fresh.name->text(), on ? name : QString());
    QCOMPARE(fresh.password->text(), on ? password : QString());
    QCOMPARE(fresh.page->hasMarks(), loadsOn && panel.page->hasMarks());
    QCOMPARE(fresh.dialog.takeCalls(), QStringList());
}

void TestUserLoginTab::damagedSettings_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("odd number of digits") << "abc";
    QTest::newRow("no digits") << "hello!";
    QTest::newRow("foreign bytes") << QString(64, 'f');
    QTest::newRow("a megabyte") << QString(1 << 20, 'a');
}

void TestUserLoginTab::damagedSettings()
{
    QFETCH(QString, text);
    Panel panel;
    panel.load({});
    panel.name->setText("before");
    panel.password->setText("before");
    panel.load({{"UserLoginName", text}, {"UserLoginPass", text}});
    QVERIFY(panel.button->isChecked()); // somebody wanted a login
    for (const QLineEdit *field : {panel.name, panel.password})
        QVERIFY(field->text() != "before" && field->text().size() <= 64);
}

QTEST_MAIN(TestUserLoginTab)

#include "tst_userlogintab.moc"
