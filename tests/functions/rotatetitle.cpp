#include "functiontests.h"
#include "pages/finishing/finishingtab.h"

class TestRotateTitle : public QObject
{
    Q_OBJECT

private slots:
    void languages();
};

void TestRotateTitle::languages()
{
    QStringList titles;
    for (const char *locale : {"en_US", "fr_CA", "de_DE", "it_IT", "pt_BR", "es_ES", "ja_JP", "C"})
        titles << FinishingTab::rotateTitle(locale).section(' ', 0, 0);
    QCOMPARE(titles.join(' '),
             QString("Rotate Tourner Rotiert Ruotato Girar Girado Rotate Rotate"));
    QCOMPARE(FinishingTab::rotateTitle("fr"), QString::fromUtf8("Tourner 180°"));
}

static const FunctionTests::Entry<TestRotateTitle> entry;

#include "rotatetitle.moc"
