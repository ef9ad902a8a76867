// Every page and dialog is measured as it stands on the richest sample printer with all switches
// on: in each language, in one whose texts are 40 % longer, and in larger type. A process each,
// since libcups keeps the language that it began with.

#include "app/bixdialog.h"
#include "app/language.h"
#include "pages/base/pagelayout.h"
#include "privileged/passwordprompt.h"
#include "storage/settingsfile.h"
#include "support/longenglish.h"
#include "support/pagemeasure.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"
#include "widgets/panellook.h"

#include <QtWidgets>

namespace {

void tell(QWidget *page)
{
    QTest::qWait(20);
    page->layout()->invalidate(); // hints may be older than what they are for
    page->layout()->activate();
    QApplication::processEvents();
    // A combo box takes the size it would like a moment after its items have changed, until the
    // layout gives it its place again.
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const PageMeasure measured(page);
    for (const QString &fault : measured.faults)
        printf("%s | %s\n", page->metaObject()->className(), qPrintable(fault));
    for (const QString &text : measured.shortened)
        printf("%s | shortened: %s\n", page->metaObject()->className(), qPrintable(text));
}

/// In a process of its own: LANGUAGE is in the environment. Prints a line for each fault.
int measure(const QString &language, double points)
{
    PanelLook::use();
    QFont font("Sans Serif");
    font.setPointSizeF(points);
    QApplication::setFont(font);
    LongEnglish longEnglish;
    QTranslator catalogue;
    if (!catalogue.load(catalogueForLocale(language)))
        return 1;
    QApplication::installTranslator(language == "long" ? &longEnglish : &catalogue);
    alignPrintSystemLanguage(language);
    if (!QDir().mkpath(userDirectory()) || !setFileText(settingsPath(), "Telemetry=False"))
        return 1;

    BixDialog panel;
    panel.show();
    auto *printers = findNamed<QTableWidget>(&panel, "tblPrinters");
    printers->setCurrentCell(printers->findItems("Office_C3", Qt::MatchExactly).value(0)->row(), 0);
    auto *tabs = panel.findChild<BixTabWidget *>();
    for (int i = 0; i < tabs->count(); ++i) {
        QWidget *page = tabs->widget(i);
        tabs->setCurrentWidget(page);
        tell(page);
        for (auto *button : page->findChildren<BixCheckBoxButton *>())
            button->setChecked(button->isEnabled());
        tell(page);
        for (const char *name : {"cmbBxJobName", "cmbBxBXCollate1"})
            if (auto *box = findNamed<ComboBoxEx>(page, name))
                for (int item = 0; item < box->count(); ++item) {
                    box->setCurrentIndex(item);
                    tell(page);
                }
    }
    PasswordPrompt prompt(&panel, QString());
    for (QDialog *dialog : panel.findChildren<QDialog *>()) {
        dialog->setModal(false);
        dialog->show();
        tell(dialog);
        dialog->hide();
    }
    return 0;
}

} // namespace

class TestMeasure : public QObject
{
    Q_OBJECT

private slots:
    void everyTextHasRoom_data();
    void everyTextHasRoom();
    void aLongTextEndsInAnEllipsis();
    void linesShowAtEveryScale();
    void textsStandOutFromTheirBackground();
};

void TestMeasure::everyTextHasRoom_data()
{
    addColumns<QString, double, double>("language", "points", "factor");
    for (const char *language : {"en_US", "de_DE", "fr_FR", "it_IT", "es_ES", "pt_PT", "long"})
        for (const double points : {9.0, 11.25})
            QTest::addRow("%s %g", language, points) << QString(language) << points << 1.0;
    for (const double factor : {1.25, 1.5, 2.0})
        QTest::addRow("long 11.25 at %g", factor) << QString("long") << 11.25 << factor;
}

void TestMeasure::everyTextHasRoom()
{
    QFETCH(QString, language);
    QFETCH(double, points);
    QFETCH(double, factor);
    QProcess process;
    process.start("env", {"LANG=" + language + ".UTF-8", QString("QT_SCALE_FACTOR=%1").arg(factor),
                          QCoreApplication::applicationFilePath(), "measure", language,
                          QString::number(points)});
    QVERIFY(process.waitForFinished(60000) && process.exitCode() == 0);
    QStringList faults = QString::fromUtf8(process.readAllStandardOutput()).split('\n');
    faults.removeDuplicates();
    faults.removeAll(QString());
    QMap<QString, int> count;
    for (const QString &fault : qAsConst(faults))
        ++count[fault.section(' ', 0, 0) + (fault.contains("| shortened") ? " shortened" : "")];
    for (auto page = count.cbegin(); page != count.cend(); ++page)
        qDebug("%s: %d", qPrintable(page.key()), page.value());
    for (const QString &text : faults.filter("| shortened"))
        // In type of the usual size only what a PPD says may be too long for its box.
        if (language == "long" || points > 9 || text.contains("ComboBoxEx"))
            faults.removeAll(text);
    QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
}

void TestMeasure::aLongTextEndsInAnEllipsis()
{
    PanelLook::use();
    const QString text("Transparency interleaving");
    QWidget *const widgets[] = {new QLabel, new QCheckBox, new QRadioButton, new QPushButton};
    for (QWidget *widget : widgets) {
        const QScopedPointer<QWidget> owner(widget);
        widget->setFixedWidth(130);
        const auto picture = [&](const QString &shown) {
            widget->setProperty("text", shown);
            return widget->grab().toImage();
        };
        bool same = false;
        for (int n = 1; n < text.size(); ++n)
            same = same || picture(text) == picture(text.left(n) + QChar(0x2026));
        QVERIFY2(same, widget->metaObject()->className());
    }
}

void TestMeasure::linesShowAtEveryScale()
{
    PanelLook::use();
    QWidget page;
    QFrame *line = PageLayout::horizontalLine(&page);
    for (const double factor : {1.0, 1.25, 1.5, 2.0})
        for (int y = 10; y < 20; ++y) {
            line->setGeometry(0, y, 50, 3);
            QImage image((QSizeF(50, 30) * factor).toSize(), QImage::Format_RGB32);
            image.fill(Qt::white);
            image.setDevicePixelRatio(factor);
            line->render(&image, line->pos(), QRegion(), QWidget::DrawChildren);
            int dark = 0;
            for (int row = 0; row < image.height(); ++row)
                dark += qGray(image.pixel(25, row)) < 180;
            QVERIFY2(dark > 0, qPrintable(QString("%1 at %2").arg(factor).arg(y)));
        }
}

void TestMeasure::textsStandOutFromTheirBackground()
{
    QApplication::setPalette(QPalette(Qt::black)); // as a dark desktop would
    QToolTip::setPalette(QPalette(Qt::black));
    PanelLook::use();
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double c) { return std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.05 + 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    QLineEdit edit;
    QMessageBox message;
    QComboBox box;
    for (const QPalette &palette : {edit.palette(), message.palette(), box.view()->palette(),
                                    QApplication::palette(), QToolTip::palette()})
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            for (const auto &[text, background] :
                 {std::pair(QPalette::WindowText, QPalette::Window),
                  std::pair(QPalette::Text, QPalette::Base),
                  std::pair(QPalette::ButtonText, QPalette::Button),
                  std::pair(QPalette::PlaceholderText, QPalette::Base),
                  std::pair(QPalette::ToolTipText, QPalette::ToolTipBase),
                  std::pair(QPalette::HighlightedText, QPalette::Highlight)}) {
                const double ratio = luminance(palette.color(group, background)) /
                                     luminance(palette.color(group, text));
                QVERIFY2(std::max(ratio, 1 / ratio) >= (group == QPalette::Disabled ? 2.5 : 3.5),
                         qPrintable(QString("%1 on %2: %3").arg(text).arg(background).arg(ratio)));
            }
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "measure") == 0)
        return measure(argv[2], QByteArray(argv[3]).toDouble());
    TestMeasure test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_measure.moc"
