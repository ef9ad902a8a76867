// The panel in the languages of its users: which catalogue, and that nothing stays in English.

#include "support/panelsteps.h"
#include "support/printserver.h"
#include "support/testhelpers.h"

namespace {

struct Words
{
    const char *apply, *cancel, *ok;
    const char *basic, *longEdge, *applied;
};

const QHash<QString, Words> languages{
    {"en", {"Apply", "Cancel", "OK", "Basic", "Long edge", "Settings applied."}},
    {"fr", {"Appliquer", "Annuler", "OK", "Base", "Bord long", "Paramètres appliqués."}},
    {"de", {"Anwenden", "Abbrechen", "OK", "Basis", "Lange Kante", "Einstellungen übernommen."}},
    {"it", {"Applica", "Annulla", "OK", "Base", "Lato lungo", "Impostazioni applicate."}},
    {"pt", {"Aplicar", "Cancelar", "OK", "Básico", "Margem longa", "Definições aplicadas."}},
    {"es", {"Aplicar", "Cancelar", "Aceptar", "Básico", "Borde largo", "Ajustes aplicados."}},
};

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyText_data();
    void everyText();

private:
    PrintServer server;
};

void TestLanguages::initTestCase()
{
    QVERIFY(makeUserFolder());
    QVERIFY2(server.start() && server.addSampleQueues(), qPrintable(server.error()));
}

void TestLanguages::everyText_data()
{
    addRows({"lang", "language", "desktop", "spoken"}, R"(
English                                | en_US.UTF-8 |    |       | en
English on GNOME                       | en_US.UTF-8 |    | GNOME | en
French                                 | fr_FR.UTF-8 |    |       | fr
French on GNOME                        | fr_FR.UTF-8 |    | GNOME | fr
German                                 | de_DE.UTF-8 |    |       | de
German on GNOME                        | de_DE.UTF-8 |    | GNOME | de
Italian                                | it_IT.UTF-8 |    |       | it
Italian on GNOME                       | it_IT.UTF-8 |    | GNOME | it
Portuguese                             | pt_PT.UTF-8 |    |       | pt
Portuguese on GNOME                    | pt_PT.UTF-8 |    | GNOME | pt
Spanish                                | es_ES.UTF-8 |    |       | es
Spanish on GNOME                       | es_ES.UTF-8 |    | GNOME | es
Brazil reads Portuguese                | pt_BR.UTF-8 |    |       | pt
Austria reads German                   | de_AT.UTF-8 |    |       | de
Dutch has no catalogue                 | nl_NL.UTF-8 |    |       | en
Dutch has none by LANGUAGE either      | de_DE.UTF-8 | nl |       | en
the C locale is English                | C.UTF-8     |    |       | en
LANGUAGE overrules LANG                | en_US.UTF-8 | de |       | de
LANGUAGE back to English               | de_DE.UTF-8 | en |       | en
LANGUAGE means nothing in the C locale | C           | de |       | en
)");
}

void TestLanguages::everyText()
{
    QFETCH(QString, lang);
    QFETCH(QString, language);
    QFETCH(QString, desktop);
    QFETCH(QString, spoken);
    const Words words = languages.value(spoken);
    Panel panel;
    panel.unsetEnvironment("LC_ALL");
    panel.setEnvironment("LANG", lang);
    panel.setEnvironment("LANGUAGE", language);
    panel.setEnvironment("XDG_CURRENT_DESKTOP", desktop);
    const auto standardText = [&panel](const char *button) {
        // Styles put a mnemonic in; a user doesn't read it as a letter.
        return panel.text(Panel::standardButton(button)).remove('&');
    };
    QVERIFY(panel.startWith("Office_C3"));
    QCOMPARE(standardText("Apply"), QString(words.apply));
    QCOMPARE(standardText("Cancel"), QString(words.cancel));
    QCOMPARE(standardText("Ok"), QString(words.ok));

    // Catalogue and PPD agree: the group finds its value by the PPD's text.
    QVERIFY(panel.clickTab(words.basic) &&
            panel.clickGroupButton("butGroupDuplex", words.longEdge) && panel.apply());
    QCOMPARE(panel.messageBox().text, QString(words.applied));
    QCOMPARE(standardText("Ok"), QString(words.ok)); // of the message
    QVERIFY(savedLines("Office_C3").contains("Duplex=DuplexNoTumble"));
    QVERIFY(QFile::remove(cfgFile("Office_C3")));
}

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
