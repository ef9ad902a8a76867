#include "pages/imaging/adjustmentvalues.h"

#include "functiontests.h"

using namespace AdjustmentValues;

/// The slider's position for a saved text, and what is stored of it. For the master hue: times 1,
/// and whole tens with a zero behind.
static QStringList saved(const QStringList &in)
{
    const int scale = in[1].toInt();
    const bool isMaster = scale == 1;
    const int position = sliderPosition(number(in[0]), scale);
    return {QString::number(position), exactText(position, scale),
            coarseText(position, isMaster ? 10 : scale, isMaster ? "0" : ".0")};
}

/// How many positions come back as others.
static QStringList lost(const QStringList &)
{
    int count = 0;
    for (int i = -1000; i <= 1000; ++i)
        count += sliderPosition(number(exactText(i, 100)), 100) == i ? 0 : 1;
    return {QString::number(count)};
}

static const FunctionTests::Table table("TestAdjustmentValues", 2, saved, R"(
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
static const FunctionTests::Table everyPosition("TestAdjustmentValues", 0, lost, "lost | 0");
