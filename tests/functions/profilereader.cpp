// Profiles as text: where a printer's PPD lies, rubbish in profiles and PPDs, and the words of
// standard buttons that the catalogues have in several contexts.

#include "profiles/profilereader.h"

#include "app/language.h"
#include "functiontests.h"
#include "support/testhelpers.h"

#include <QTranslator>

namespace {

const QString ppdFolder = "/usr/share/brixola/ppd6/";

QStringList ppdOfModel(const QStringList &in)
{
    return {profilePpdPath(in[0]).section(ppdFolder, 1)};
}

const FunctionTests::Table models("TestProfileReader", 1, ppdOfModel, R"(
blank        | [Brixola PX-4500]       | Brixola_PX-4500.ppd
RATEX        | [NV-RATEX 200]          | NV_200.ppd
BRXL         | [Brixola BRXL 300 BRXL] | Brixola_300.ppd
no word BRXL | [Brixola 300BRXL]       | Brixola_300BRXL.ppd
B/W          | [Sorbelli 20 B/W B/W]   | Sorbelli_20_Monochrome_Monochrome.ppd
brackets     | [Brixola [2]  x]        | Brixola_2__x.ppd
)");

} // namespace

class TestProfileReader : public QObject
{
    Q_OBJECT

private slots:
    void rubbish_data();
    void rubbish();
    void standardButtons_data();
    void standardButtons();
};

void TestProfileReader::rubbish_data()
{
    addColumns<QByteArray, QByteArray, QString>("profile", "ppd", "details");
    const auto row = [](const char *name, const QByteArray &profile, const QByteArray &ppd,
                        const char *details) { addRow(name, profile, ppd, details); };
    row("equals signs", QByteArray(5000, '='), "", "");
    row("line feeds and zeros", QByteArray("\n\0\n", 3).repeated(5000), "", "");
    row("no text", QByteArray("\xff\xfe\xc3[\xed\xa0\x80]=").repeated(999), "", "");
    row("one line larger than any profile", QByteArray(5 << 20, 'x') + "\nA=1", "", "");
    // Each PPD is read once, or this would take minutes.
    row("many models", QByteArray("[Brixola PX-4500]\n[Brixola MX-210]\n").repeated(29999), "", "");
    const QByteArray profile = "[Brixola Rubbish]\nPageSize=A4\n";
    row("empty PPD", profile, "", "PageSize: ERROR 3");
    row("PPD of no text", profile, QByteArray(1 << 20, '\xff'), "PageSize: ERROR 3");
    const QByteArray whole = fileText(ppdFolder + "Brixola_PX-4500.ppd");
    row("PPD that breaks off", profile, whole.left(whole.indexOf("*PageSize A5")) + "/A5: \"<</P",
        "PageSize: ERROR 3");
    row("PPD of unclosed options", profile,
        "*PPD-Adobe: \"4.3\"\n" + QByteArray("*OpenUI *PageSize: PickOne\n").repeated(2000),
        "PageSize: ERROR 1");
}

void TestProfileReader::rubbish()
{
    QFETCH(QByteArray, profile);
    QFETCH(QByteArray, ppd);
    QTemporaryDir directory;
    const QString path = directory.filePath("a.cfg");
    const QString ppdPath = ppdFolder + "Brixola_Rubbish.ppd";
    QVERIFY(setFileText(path, profile) && setFileText(ppdPath, ppd));
    const ProfileDetails details = readProfile(path);
    QVERIFY(QFile::remove(ppdPath));
    QStringList found;
    for (auto detail = details.begin(); detail != details.end(); ++detail)
        found.append(detail.key() + ": " + detail.value());
    QTEST(found.join('|'), "details");
}

void TestProfileReader::standardButtons_data()
{
    addRows({"ok", "cancel", "apply", "close"}, R"(
fr_CA | OK      | Annuler   | Appliquer | Fermer
de_AT | OK      | Abbrechen | Anwenden  | Schließen
it_IT | OK      | Annulla   | Applica   | Chiudi
pt_BR | OK      | Cancelar  | Aplicar   | Fechar
es_MX | Aceptar | Cancelar  | Aplicar   | Cerrar)");
}

void TestProfileReader::standardButtons()
{
    QTranslator translator;
    QVERIFY(translator.load(catalogueForLocale(QTest::currentDataTag())));
    const auto text = [&](const char *context, const char *source) {
        return translator.translate(context, source).remove('&');
    };
    // Qt's own context, and that of GNOME, which has its own texts for three.
    QTEST(text("QPlatformTheme", "OK"), "ok");
    QTEST(text("QGnomeTheme", "&OK"), "ok");
    QTEST(text("QPlatformTheme", "Cancel"), "cancel");
    QTEST(text("QGnomeTheme", "&Cancel"), "cancel");
    QTEST(text("QPlatformTheme", "Apply"), "apply");
    QTEST(text("QPlatformTheme", "Close"), "close");
    QTEST(text("QGnomeTheme", "&Close"), "close");
}

static const FunctionTests::Entry<TestProfileReader> entry;
#include "profilereader.moc"
