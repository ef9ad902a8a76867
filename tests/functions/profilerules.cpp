// Which names and descriptions a profile may have.

#include "profiles/profilerules.h"

#include "functiontests.h"

static QStringList fault(const QStringList &in)
{
    switch (profileFault(in[0], in[1], {"Office_C3"})) {
    case ProfileFault::NoName:
        return {"no name"};
    case ProfileFault::Reserved:
        return {"reserved"};
    case ProfileFault::Characters:
        return {"characters"};
    case ProfileFault::TooLong:
        return {"too long"};
    case ProfileFault::None:
        break;
    }
    return {"valid"};
}

static const FunctionTests::Table table("TestProfileRules", 2, fault, R"(
none                        |                             |         | no name
leading blank, shell signs  | ( ){1}-rf Bob's “$(x)” & <b> \n *  |   | valid
hidden file                 | .Draft                      |         | characters
dot inside                  | Draft.cfg                   |         | valid
slash                       | ../Draft                    |         | characters
double quote                | 5" label                    |         | characters
backquote                   | a`b                         |         | characters
semicolon                   | a;b                         |         | characters
a queue's in other case     | oFFice_c3                   |         | reserved
251 bytes                   | ä{125}a                     |         | valid
252 bytes in fewer letters  | ä{126}                      |         | too long
longest description         | a                           | d{1024} | valid
too long a description      | a                           | d{1025} | too long
factory entry, with blanks  | ( ){2}factory ( ){2}default ( ){1} |  | reserved
of a French user            | Paramètres du fabricant     |         | reserved
of a German user            | Werkseinstellung            |         | reserved
of an Italian user          | Impostazioni fabbrica       |         | reserved
of a Spanish user           | Valor predeterminado de fábrica |     | reserved
of a Portuguese user        | PADRÃO DE FÁBRICA           |         | reserved
longer than a reserved name | Werkseinstellung 2          |         | valid
)");
