#include "pages/login/userlogintab.h"
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
    void typing();
    void roundTrip();
    void damagedSettings();
};

void TestUserLoginTab::typing()
{
    Panel panel;
    QCOMPARE(panel.dialog.takeCalls(), QStringList()); // no pass while the page is built
    QCOMPARE(panel.shown(), QString("off - -"));
    panel.button->setChecked(true);
    const auto errorFor = [&](const QString &name, const QString &password) {
        panel.name->setText(name);
        panel.password->setText(password + 'x'); // one typed too much, and taken back
        QTest::keyClick(panel.password, Qt::Key_Backspace);
        return (panel.page->hasMarks() ? "marked " : "") +
               (panel.error->isHidden() ? QString() : panel.error->text().section(' ', 0, 1));
    };
    QCOMPARE(errorFor("ann", "secret"), QString());
    QCOMPARE(errorFor("", "secret"), QString("marked User name"));
    QCOMPARE(errorFor("ann", ""), QString("marked "));
    QCOMPARE(errorFor("a\"n", "secret"), QString("marked Value cannot"));
    QCOMPARE(errorFor("", "\""), QString("marked Value cannot"));
    QCOMPARE(panel.dialog.takeCalls().size(), 1 + 5);
    panel.button->setChecked(false);
    QVERIFY(!panel.page->hasMarks() && panel.page->extraSettings().isEmpty());
}

void TestUserLoginTab::roundTrip()
{
    const QString longest(64, QChar(0x20ac));
    Panel panel;
    panel.button->setChecked(true);
    panel.name->setText(longest + "more");
    panel.password->setText("p\\w=# Ω");
    Panel fresh;
    fresh.button->setChecked(true); // without a name
    fresh.dialog.takeCalls();
    fresh.load(Settings(panel.page->extraSettings()));
    QCOMPARE(fresh.shown(), QString("on %1 p\\w=# Ω").arg(longest));
    QVERIFY(fresh.error->isHidden());
    QCOMPARE(fresh.dialog.takeCalls(), QStringList());
    panel.name->clear(); // a password alone is no login
    fresh.load(Settings(panel.page->extraSettings()));
    QCOMPARE(fresh.shown(), QString("off - -p\\w=# Ω"));
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
