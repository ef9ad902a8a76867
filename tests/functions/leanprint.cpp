#include "pages/imaging/leanprint.h"

#include "functiontests.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"

class TestLeanPrint : public QObject
{
    Q_OBJECT

private slots:
    void keys_data();
    void keys();
};

void TestLeanPrint::keys_data()
{
    // A saved key: what the page shows, and the choice that stands for it.
    addRows({"saved", "shown", "choice", "choices"}, R"(
switch            | On      | on      | On     | Off On
switch, a level   | Level4  | on      | On     | Off On
switch, one level | Level4  | on      | Level1 | Off Level1
off alone         | Off     | off     | Off    | Off
no off            | None    | off     | None   | None Level1 Level2
two levels        | Level1  | on at 0 | Level1 | Off Level1 Level2
a level left out  | Level3  | on at 1 | Level3 | Off Level1 Level3
levels            | Level4  | on at 3 | Level4 | Off Level1 Level2 Level3 Level4 Level5
levels, on        | On      | on at 2 | Level3 | Off Level1 Level2 Level3 Level4 Level5
levels, rubbish   | Foo     | off     | Off    | Off Foo Level2 Level3
levels, unknown   | Level9  | on at 1 | Level2 | Off Level1 Level2
levels and on     | Level2  | on at 1 | Level2 | Off Level1 Level2 Level3 On
no choice         | Level1  | on      |        |
)");
}

void TestLeanPrint::keys()
{
    QFETCH(QString, saved);
    QFETCH(QString, choices);
    const auto store = makeStore("Lnpr 5 " + choices);
    const bOption &option = *store->find("Lnpr");
    const bool on = LeanPrint::isOn(saved);
    const int level = LeanPrint::levelToShow(option, saved);
    QTEST(on ? LeanPrint::hasLevels(option) ? QString("on at %1").arg(level) : "on" : "off",
          "shown");
    const OptionChoice *choice = LeanPrint::shownChoice(option, on, level);
    QTEST(choice ? choice->key() : QString(), "choice");
}

static const FunctionTests::Entry<TestLeanPrint> entry;

#include "leanprint.moc"
