// Which names and descriptions a profile may have.

#include "profiles/profilerules.h"

#include "functiontests.h"
#include "support/testhelpers.h"

class TestProfileRules : public QObject
{
    Q_OBJECT

private slots:
    void validity_data();
    void validity();
};

void TestProfileRules::validity_data()
{
    addColumns<QString, QString, bool>("name", "description", "valid");
    addRow("none", "", "", false);
    addRow("leading blank, single quotes and shell signs", " -rf Bob's “$(x)” & <b> \\n *", "",
           true);
    addRow("hidden file", ".Draft", "", false);
    addRow("dot inside", "Draft.cfg", "", true);
    addRow("slash", "../Draft", "", false);
    addRow("double quote", "5\" label", "", false);
    addRow("backquote", "a`b", "", false);
    addRow("semicolon", "a;b", "", false);
    addRow("a queue's in other case", "oFFice_c3", "", false);
    addRow("251 bytes", QString(125, QChar(0xe4)) + 'a', "", true);
    addRow("252 bytes in fewer letters", QString(126, QChar(0xe4)), "", false);
    addRow("longest description", "a", QString(1024, '\n'), true);
    addRow("too long a description", "a", QString(1025, 'd'), false);
    // The factory entry's name in each language.
    for (const char *reserved :
         {"  factory \t default ", "Paramètres du fabricant", "Werkseinstellung",
          "Impostazioni fabbrica", "Valor predeterminado de fábrica", "PADRÃO DE FÁBRICA"})
        addRow(reserved, reserved, "", false);
    addRow("longer than a reserved name", "Werkseinstellung 2", "", true);
}

void TestProfileRules::validity()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QTEST(isValidProfile(name, description, {"Office_C3"}), "valid");
}

static const FunctionTests::Entry<TestProfileRules> entry;
#include "profilerules.moc"
