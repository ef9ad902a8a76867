#include "functiontests.h"
#include "pages/finishing/finishingtab.h"

static QStringList rotateTitle(const QStringList &in)
{
    return {FinishingTab::rotateTitle(in[0])};
}

static const FunctionTests::Table table("TestRotateTitle", 1, rotateTitle, R"(
English    | en_US | Rotate 180°
French     | fr_CA | Tourner 180°
no country | fr    | Tourner 180°
German     | de_DE | Rotiert 180°
Italian    | it_IT | Ruotato 180°
Portuguese | pt_BR | Girar 180°
Spanish    | es_ES | Girado 180°
another    | ja_JP | Rotate 180°
none       | C     | Rotate 180°
)");
