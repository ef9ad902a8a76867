#include "app/bixdialog.h"
#include "generatedppd.h"
#include "googlebench.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "profiles/profiledialog.h"
#include "sketch/sheetpainter.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/comboboxex.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTableWidget>

#include <utility>

// How fast the panel answers on a PPD with hundreds of options, and draws.

namespace {

/// One click of the user and all that follows: the option moves, the constraint pass runs over all
/// pages as often as it takes, and the print system is asked whether its queues are the same.
void click(benchmark::State &state)
{
    BixDialog panel;
    panel.show();
    findNamed<QTableWidget>(&panel, "tblPrinters")->setCurrentCell(0, 0);
    auto *paper = findNamed<ComboBoxEx>(&panel, "cmbBxPageSize");
    if (!currentStore || !paper || paper->count() < 2) {
        state.SkipWithError("the panel shows no printer");
        return;
    }
    for (auto _ : state)
        paper->setCurrentIndex((paper->currentIndex() + 1) % paper->count());
}

/// After a click: the settings of the largest sample printer are sketched and drawn for a dense
/// screen.
void drawSheets(benchmark::State &state)
{
    const Ppd ppd = openPpd(PRESSDESK_SOURCE_DIR "/demo/ppd/px4500.ppd");
    OptionStore store;
    importPpd(ppd.get(), &store);
    for (const auto &[option, choice] : {std::pair("PageSize", "A4"),
                                         {"Duplex", "DuplexNoTumble"},
                                         {"cTriFld", "True"},
                                         {"FldC", "ZFold"},
                                         {"cStpl", "True"},
                                         {"Stpl", "Center"},
                                         {"cHole", "True"},
                                         {"Pnch", "Hole4"},
                                         {"Sep", "Jog"},
                                         {"Coll", "True"},
                                         {"Wren", "True"},
                                         {"Wsze", "72"},
                                         {"Wang", "50"},
                                         {"Wclr", "Red"}})
        store.setCurrentByKey(QLatin1String(option), QLatin1String(choice));
    const SheetPages pages = {QStringLiteral("CONFIDENTIAL"),
                              {QStringLiteral("cCovBut"), QStringLiteral("cInsBut")}};
    QImage image(360, 400, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    for (auto _ : state) {
        QPainter painter(&image);
        paintSheets(&painter, QRectF(0, 0, 180, 200), sheetSketch(store, pages), SheetSketch());
    }
}

/// A row of the profile list becomes current: the PPD of the profile's printer is read, what 150
/// options hold is put into words and drawn.
void showProfile(benchmark::State &state)
{
    constexpr GeneratedPpd measures = {150, 10, 3000};
    userDir = userDirectory();
    ensureUserDir();
    QFile profile(cfgPath(QStringLiteral("Bench")));
    if (!writeGeneratedPpd(QStringLiteral("/usr/share/brixola/ppd6/Brixola_Bench.ppd"), measures) ||
        !profile.open(QIODevice::WriteOnly)) {
        state.SkipWithError("can't write the profile");
        return;
    }
    profile.write("[Profile]\n[Brixola Bench]\nPageSize=Value1\nDuplex=Value2\nMediaType=Value3\n"
                  "InputSlot=Value4\nOutputBin=Value5\n");
    for (int option = 5; option < measures.options; ++option)
        profile.write("Bench" + QByteArray::number(option) + "=Value6\n");
    profile.close();

    RecordingDialog panel;
    ProfileDialog dialog(&panel, nullptr);
    dialog.fillProfileTable();
    dialog.show();
    auto *table = dialog.findChild<QTableWidget *>();
    for (auto _ : state) {
        state.PauseTiming();
        table->setCurrentCell(0, 0);
        state.ResumeTiming();
        table->setCurrentCell(1, 0);
        dialog.repaint();
    }
    profile.remove();
}

} // namespace

void registerPanelRows()
{
    registerRow("click+constraintPass", click);
    registerRow("drawSheets", drawSheets);
    registerRow("showProfile", showProfile);
}
