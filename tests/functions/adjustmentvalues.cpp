#include "pages/imaging/adjustmentvalues.h"

#include "functiontests.h"
#include "support/testhelpers.h"

using namespace AdjustmentValues;

class TestAdjustmentValues : public QObject
{
    Q_OBJECT

private slots:
    void saved_data();
    void saved();
    void everyPositionComesBack();
};

void TestAdjustmentValues::saved_data()
{
    // A saved text, the slider's position, and what is stored of it. For the master hue: times 1,
    // and whole tens with a zero behind.
    addRows({"text", "scale", "position", "exact", "coarse"}, R"(
no hundredth gets lost   | 0.29   | 100 | 29          | 0.29   | 0.0
no hundredth gained      | -0.129 | 100 | -12         | -0.12  | 0.0
without a zero           | -.07   | 100 | -7          | -0.07  | 0.0
whole steps toward zero  | -2.5   | 100 | -250        | -2.5   | -2.0
mono                     | 3.7    | 10  | 37          | 3.7    | 3.0
master                   | 123    | 1   | 123         | 123    | 120
master below zero        | -45    | 1   | -45         | -45    | -40
master at zero           |        | 1   | 0           | 0      | 00
comma                    | 1,5    | 100 | 0           | 0      | 0.0
no number                | nan    | 100 | 0           | 0      | 0.0
infinite                 | -inf   | 100 | 0           | 0      | 0.0
far away                 | -1e300 | 100 | -1000000000 | -1e+07 | -10000000.0
)");
}

void TestAdjustmentValues::saved()
{
    QFETCH(QString, text);
    QFETCH(QString, scale);
    const int position = sliderPosition(number(text), scale.toInt());
    QTEST(QString::number(position), "position");
    QTEST(exactText(position, scale.toInt()), "exact");
    const bool isMaster = scale == "1";
    QTEST(coarseText(position, isMaster ? 10 : scale.toInt(), isMaster ? "0" : ".0"), "coarse");
}

void TestAdjustmentValues::everyPositionComesBack()
{
    for (int i = -1000; i <= 1000; ++i)
        QCOMPARE(sliderPosition(number(exactText(i, 100)), 100), i);
}

static const FunctionTests::Entry<TestAdjustmentValues> entry;

#include "adjustmentvalues.moc"
