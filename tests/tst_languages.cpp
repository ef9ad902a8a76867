// The panel in the languages of its users: which catalogue, and that nothing stays in English.

#include "support/paneldriver.h"
#include "support/printserver.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

struct Words
{
    const char *locale;
    const char *apply, *cancel, *ok;
    const char *basic, *longEdge, *applied;
};

constexpr Words languages[] = {
    {"en_US", "Apply", "Cancel", "OK", "Basic", "Long edge", "Settings applied."},
    {"fr_FR", "Appliquer", "Annuler", "OK", "Base", "Bord long", "Paramètres appliqués."},
    {"de_DE", "Anwenden", "Abbrechen", "OK", "Basis", "Lange Kante", "Einstellungen übernommen."},
    {"it_IT", "Applica", "Annulla", "OK", "Base", "Lato lungo", "Impostazioni applicate."},
    {"pt_PT", "Aplicar", "Cancelar", "OK", "Básico", "Margem longa", "Definições aplicadas."},
    {"es_ES", "Aplicar", "Cancelar", "Aceptar", "Básico", "Borde largo", "Ajustes aplicados."},
};

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyText_data();
    void everyText();
    void whichLanguage_data();
    void whichLanguage();

private:
    static QString standardText(PanelDriver *panel, const char *button)
    {
        // Styles put a mnemonic in; a user doesn't read it as a letter.
        return panel->text(PanelWidget::standardButton(QLatin1String(button)))
            .remove(QLatin1Char('&'));
    }

    std::unique_ptr<PrintServer> server;
};

void TestLanguages::initTestCase()
{
    QVERIFY(QDir().mkpath(QStringLiteral("/usr/share/brixola/tester")));
    QFile settings(QStringLiteral("/usr/share/brixola/tester/Settings"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("Telemetry=False\n");
    settings.close();
    server = std::make_unique<PrintServer>();
    QVERIFY2(server->start() && server->addSampleQueues(), qPrintable(server->error()));
}

void TestLanguages::cleanupTestCase()
{
    server.reset();
}

void TestLanguages::everyText_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<bool>("gnome");
    for (int i = 0; i < int(std::size(languages)); ++i) {
        QTest::addRow("%s", languages[i].locale) << i << false;
        QTest::addRow("%s on GNOME", languages[i].locale) << i << true;
    }
}

void TestLanguages::everyText()
{
    QFETCH(int, language);
    QFETCH(bool, gnome);
    const Words &words = languages[language];
    PanelDriver panel(QStringLiteral(PRESSDESK_PROGRAM));
    panel.setLanguage(QLatin1String(words.locale));
    if (gnome)
        panel.setEnvironment(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("GNOME"));
    QVERIFY2(panel.start(), qPrintable(panel.error()));

    QCOMPARE(standardText(&panel, "Apply"), QString::fromUtf8(words.apply));
    QCOMPARE(standardText(&panel, "Cancel"), QString::fromUtf8(words.cancel));
    QCOMPARE(standardText(&panel, "Ok"), QString::fromUtf8(words.ok));

    QVERIFY2(panel.clickRow("tblPrinters", "Office_C3"), qPrintable(panel.error()));
    QVERIFY(panel.shownTabs().contains(QString::fromUtf8(words.basic)));
    QVERIFY2(panel.clickTab(QString::fromUtf8(words.basic)) &&
                 panel.clickGroupButton("butGroupDuplex", QString::fromUtf8(words.longEdge)) &&
                 panel.click(PanelWidget::standardButton(QStringLiteral("Apply"))),
             qPrintable(panel.error()));
    // The group has found its value by the PPD's text, and the box has its button translated.
    QCOMPARE(panel.messageBox().text, QString::fromUtf8(words.applied));
    QCOMPARE(standardText(&panel, "Ok"), QString::fromUtf8(words.ok));
    QFile saved(QStringLiteral("/usr/share/brixola/tester/Office_C3.cfg"));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().contains("Duplex=DuplexNoTumble\n"));
    saved.remove();
}

void TestLanguages::whichLanguage_data()
{
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QString>("language"); // the variable LANGUAGE
    QTest::addColumn<QString>("basic");    // a text of the catalogue
    QTest::addColumn<QString>("longEdge"); // a text of the PPD

    const auto row = [](const char *name, const char *lang, const char *language, int words) {
        QTest::newRow(name) << QString::fromLatin1(lang) << QString::fromLatin1(language)
                            << QString::fromUtf8(languages[words].basic)
                            << QString::fromUtf8(languages[words].longEdge);
    };
    row("Brazil reads Portuguese", "pt_BR.UTF-8", "", 4);
    row("Austria reads German", "de_AT.UTF-8", "", 2);
    row("Dutch has no catalogue", "nl_NL.UTF-8", "", 0);
    row("Dutch has none by LANGUAGE either", "de_DE.UTF-8", "nl", 0);
    row("the C locale is English", "C.UTF-8", "", 0);
    row("LANGUAGE overrules LANG", "en_US.UTF-8", "de", 2);
    row("LANGUAGE back to English", "de_DE.UTF-8", "en", 0);
    row("LANGUAGE means nothing in the C locale", "C", "de", 0);
}

void TestLanguages::whichLanguage()
{
    QFETCH(QString, lang);
    QFETCH(QString, language);
    QFETCH(QString, basic);
    QFETCH(QString, longEdge);
    PanelDriver panel(QStringLiteral(PRESSDESK_PROGRAM));
    panel.unsetEnvironment(QStringLiteral("LC_ALL"));
    panel.setEnvironment(QStringLiteral("LANG"), lang);
    if (language.isEmpty())
        panel.unsetEnvironment(QStringLiteral("LANGUAGE"));
    else
        panel.setEnvironment(QStringLiteral("LANGUAGE"), language);

    QVERIFY2(panel.start() && panel.clickRow("tblPrinters", "Office_C3"),
             qPrintable(panel.error()));
    QVERIFY2(panel.clickTab(basic), qPrintable(panel.error()));
    // Catalogue and PPD agree: the value is there to be chosen, and is taken for what it is.
    QVERIFY2(panel.clickGroupButton("butGroupDuplex", longEdge), qPrintable(panel.error()));
    QCOMPARE(panel.currentText("butGroupDuplex"), longEdge);
    QVERIFY(panel.click(PanelWidget::standardButton(QStringLiteral("Apply"))));
    QFile saved(QStringLiteral("/usr/share/brixola/tester/Office_C3.cfg"));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().contains("Duplex=DuplexNoTumble\n"));
    saved.remove();
}

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
