// Which names and descriptions a profile may have.

#include "profiles/profilerules.h"

#include "functiontests.h"

static QStringList validity(const QStringList &in)
{
    return {isValidProfile(in[0], in[1], {"Office_C3"}) ? "valid" : "refused"};
}

static const FunctionTests::Table table("TestProfileRules", 2, validity, R"(
none                        |                             |         | refused
leading blank, shell signs  | ( ){1}-rf Bob's “$(x)” & <b> \n *  |   | valid
hidden file                 | .Draft                      |         | refused
dot inside                  | Draft.cfg                   |         | valid
slash                       | ../Draft                    |         | refused
double quote                | 5" label                    |         | refused
backquote                   | a`b                         |         | refused
semicolon                   | a;b                         |         | refused
a queue's in other case     | oFFice_c3                   |         | refused
251 bytes                   | ä{125}a                     |         | valid
252 bytes in fewer letters  | ä{126}                      |         | refused
longest description         | a                           | d{1024} | valid
too long a description      | a                           | d{1025} | refused
factory entry, with blanks  | ( ){2}factory ( ){2}default ( ){1} |  | refused
of a French user            | Paramètres du fabricant     |         | refused
of a German user            | Werkseinstellung            |         | refused
of an Italian user          | Impostazioni fabbrica       |         | refused
of a Spanish user           | Valor predeterminado de fábrica |     | refused
of a Portuguese user        | PADRÃO DE FÁBRICA           |         | refused
longer than a reserved name | Werkseinstellung 2          |         | valid
)");
