#include "app/bixdialog.h"
#include "app/language.h"
#include "app/telemetryoption.h"
#include "widgets/panellook.h"
#include "widgets/spoken.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTranslator>

int main(int argc, char **argv)
{
    runTelemetryOption(argc, argv);

    // Only before the application object.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    PanelLook::use();
    QApplication::setWindowIcon(QIcon(QPixmap(QStringLiteral(":/icons/appicon"))));

    QTranslator translator;
    const QString locale = QLocale::system().name();
    // A catalogue that can't be loaded leaves the program in English.
    translator.load(catalogueForLocale(locale));
    QApplication::installTranslator(&translator);
    lookUpStandardButtons(translator);
    alignPrintSystemLanguage(locale);
    Spoken::install();

    BixDialog dialog;
    dialog.show();
    return QApplication::exec();
}
