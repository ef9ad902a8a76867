// Which names and descriptions a profile may have.

#include "profiles/profilerules.h"

#include "functiontests.h"
#include "support/testhelpers.h"

Q_DECLARE_METATYPE(ProfileFault)

class TestProfileRules : public QObject
{
    Q_OBJECT

private slots:
    void validity_data();
    void validity();
};

void TestProfileRules::validity_data()
{
    addColumns<QString, QString, ProfileFault>("name", "description", "fault");
    addRow("none", "", "", ProfileFault::NoName);
    addRow("leading blank, single quotes and shell signs", " -rf Bob's “$(x)” & <b> \\n *", "",
           ProfileFault::None);
    addRow("hidden file", ".Draft", "", ProfileFault::Characters);
    addRow("dot inside", "Draft.cfg", "", ProfileFault::None);
    addRow("slash", "../Draft", "", ProfileFault::Characters);
    addRow("double quote", "5\" label", "", ProfileFault::Characters);
    addRow("backquote", "a`b", "", ProfileFault::Characters);
    addRow("semicolon", "a;b", "", ProfileFault::Characters);
    addRow("a queue's in other case", "oFFice_c3", "", ProfileFault::Reserved);
    addRow("251 bytes", QString(125, QChar(0xe4)) + 'a', "", ProfileFault::None);
    addRow("252 bytes in fewer letters", QString(126, QChar(0xe4)), "", ProfileFault::TooLong);
    addRow("longest description", "a", QString(1024, '\n'), ProfileFault::None);
    addRow("too long a description", "a", QString(1025, 'd'), ProfileFault::TooLong);
    // The factory entry's name in each language.
    for (const char *reserved :
         {"  factory \t default ", "Paramètres du fabricant", "Werkseinstellung",
          "Impostazioni fabbrica", "Valor predeterminado de fábrica", "PADRÃO DE FÁBRICA"})
        addRow(reserved, reserved, "", ProfileFault::Reserved);
    addRow("longer than a reserved name", "Werkseinstellung 2", "", ProfileFault::None);
}

void TestProfileRules::validity()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QTEST(profileFault(name, description, {"Office_C3"}), "fault");
}

static const FunctionTests::Entry<TestProfileRules> entry;
#include "profilerules.moc"
