// The page setups that gedit is given: see tests/cases/desktop.case for the rest of the export.

#include "desktop/pagesetuptable.h"
#include "functiontests.h"
#include "support/testhelpers.h"

class TestDesktopSettings : public QObject
{
    Q_OBJECT

private slots:
    void pageSetups();
};

void TestDesktopSettings::pageSetups()
{
    const QString samples =
        QString::fromUtf8(fileText(PRESSDESK_SOURCE_DIR "/tests/data/desktop/page-setups")) + '\n';
    QCOMPARE(pageSetupTable.size(), 28);
    for (auto row = pageSetupTable.cbegin(); row != pageSetupTable.cend(); ++row) {
        QVERIFY2(row->contains("\nPPDName=" + row.key() + '\n'), qPrintable(row.key()));
        QVERIFY2(samples.contains(*row + '\n'), qPrintable(*row));
    }
}

static const FunctionTests::Entry<TestDesktopSettings> entry;

#include "desktopsettings.moc"
