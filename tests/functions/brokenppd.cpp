// PPDs that end anywhere: what can be read of them holds together.

#include "functiontests.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "support/testhelpers.h"

class TestBrokenPpd : public QObject
{
    Q_OBJECT

private slots:
    void cutOffAnywhere();
};

void TestBrokenPpd::cutOffAnywhere()
{
    const QByteArray whole = fileText(PRESSDESK_SOURCE_DIR "/demo/ppd/mx210.ppd");
    QVERIFY(whole.size() > 10000);
    QTemporaryDir directory;
    const QString path = directory.filePath("cut.ppd");
    int opened = 0;
    for (int length = 0; length < whole.size(); length += 50) {
        QVERIFY(setFileText(path, whole.left(length)));
        const auto store = importPpdFile(path);
        opened += store ? 1 : 0;
        const auto options = store ? store->optionList() : QList<bOption *>();
        for (const bOption *option : options)
            QVERIFY2(!option->current() || option->hasChoice(option->currentKey()),
                     qPrintable(QString("%1 at %2").arg(option->key()).arg(length)));
    }
    QVERIFY(opened > 0);
}

static const FunctionTests::Entry<TestBrokenPpd> entry;

#include "brokenppd.moc"
