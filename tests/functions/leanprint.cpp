#include "pages/imaging/leanprint.h"

#include "functiontests.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "support/storebuilder.h"

/// Of a saved key: what the page shows, and the choice that stands for it.
static QStringList shown(const QStringList &in)
{
    const QString &saved = in[0];
    const auto store = makeStore("Lnpr 5 " + in[1]);
    const bOption &option = *store->find("Lnpr");
    const bool on = LeanPrint::isOn(saved);
    const int level = LeanPrint::levelToShow(option, saved);
    const OptionChoice *choice = LeanPrint::shownChoice(option, on, level);
    return {on ? LeanPrint::hasLevels(option) ? QString("on at %1").arg(level) : "on" : "off",
            choice ? choice->key() : QString()};
}

static const FunctionTests::Table table("TestLeanPrint", 2, shown, R"(
switch            | On      | Off On                                    | on      | On
switch, a level   | Level4  | Off On                                    | on      | On
switch, one level | Level4  | Off Level1                                | on      | Level1
off alone         | Off     | Off                                       | off     | Off
no off            | None    | None Level1 Level2                        | off     | None
two levels        | Level1  | Off Level1 Level2                         | on at 0 | Level1
a level left out  | Level3  | Off Level1 Level3                         | on at 1 | Level3
levels            | Level4  | Off Level1 Level2 Level3 Level4 Level5    | on at 3 | Level4
levels, on        | On      | Off Level1 Level2 Level3 Level4 Level5    | on at 2 | Level3
levels, rubbish   | Foo     | Off Foo Level2 Level3                     | off     | Off
levels, unknown   | Level9  | Off Level1 Level2                         | on at 1 | Level2
levels and on     | Level2  | Off Level1 Level2 Level3 On               | on at 1 | Level2
no choice         | Level1  |                                           | on      |
)");
