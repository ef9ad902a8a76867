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
    // A saved key: what the page shows, what it stores again, and what a click on "On" selects.
    addRows({"saved", "shown", "stored", "clicked", "choices"}, R"(
switch            | On      | on      | On      | On     | Off On
switch, a level   | Level4  | on      | On      | On     | Off On
off alone         | Off     | off     | Off     |        | Off
two levels        | Level1  | on at 0 | Level1  |        | Off Level1 Level2
levels            | Level4  | on at 3 | Level4  | Level3 | Off Level1 Level2 Level3 Level4 Level5
levels, on        | On      | on at 2 | Level3  | Level3 | Off Level1 Level2 Level3 Level4 Level5
levels, rubbish   | Foo     | off     | Off     | Level3 | Off Foo Level2 Level3
levels, unknown   | Level9  | on at 1 | Level2  |        | Off Level1 Level2
levels and on     | Level2  | on at 1 | Level2  | On     | Off Level1 Level2 Level3 On
no choice         | Level1  | on      | On      |        |
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
    QTEST(LeanPrint::settingFor(option, on, level), "stored");
    const OptionChoice *choice = LeanPrint::onChoice(option);
    QTEST(choice ? choice->key() : QString(), "clicked");
}

static const FunctionTests::Entry<TestLeanPrint> entry;

#include "leanprint.moc"
