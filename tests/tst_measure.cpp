// Every page and dialog is measured as it stands on the richest sample printer with all switches
// on: in each language, in one whose texts are 40 % longer, and in larger type. A process each,
// since libcups keeps the language that it began with.

#include "app/bixdialog.h"
#include "app/language.h"
#include "pages/base/pagelayout.h"
#include "privileged/passwordprompt.h"
#include "storage/settingsfile.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"
#include "widgets/panellook.h"

#include <QtWidgets>

namespace {

/// English with accents, each word longer by 40 %.
class LongEnglish : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        QStringList words = QString::fromUtf8(text).split(' ');
        for (QString &word : words)
            if (!word.contains('%') && !word.contains('<'))
                word.insert((word.size() + 1) / 2, QString(qRound(word.size() * 0.4), u'é'));
        return words.join(' ');
    }
};

/// What stands badly on a page or dialog.
class Measure
{
public:
    explicit Measure(QWidget *page)
        : page(page)
    {
        for (QWidget *widget : page->findChildren<QWidget *>())
            if (widget->isVisible() && widget->window() == page->window())
                check(widget);
    }
    QStringList faults;
    QStringList shortened; ///< texts that end in an ellipsis, and whose tool tips have the rest

private:
    static QString nameOf(const QWidget *widget)
    {
        return QString(widget->metaObject()->className()) + ' ' + widget->accessibleName() + ' ' +
               textOf(widget).left(40).simplified();
    }
    static QString textOf(const QWidget *widget)
    {
        return widget->property(widget->inherits("QComboBox") ? "currentText" : "text").toString();
    }
    void note(const QWidget *widget, const QString &fault)
    {
        faults << nameOf(widget) + ": " + fault;
    }

    void check(QWidget *widget)
    {
        if (widget->inherits("QLabel") || widget->inherits("QAbstractButton") ||
            widget->inherits("QComboBox"))
            checkText(widget);
        for (QWidget *above = widget->parentWidget(); above != page; above = above->parentWidget())
            if (above->inherits("QAbstractScrollArea") || above->inherits("QComboBox"))
                return; // whatever is too much there can be scrolled to
        if (!page->rect().contains(QRect(widget->mapTo(page, QPoint()), widget->size())))
            note(widget, "reaches beyond the page");
        if (qobject_cast<BixCheckBoxButton *>(widget->parent()))
            return; // whose two parts share a cell
        for (QObject *each : widget->parent()->children())
            if (auto *other = qobject_cast<QWidget *>(each))
                if (other > widget && other->isVisible() && !other->isWindow() &&
                    other->geometry().intersects(widget->geometry()))
                    note(widget, "overlaps " + nameOf(other));
    }

    void checkText(QWidget *widget)
    {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const QString text = textOf(widget);
        if (text.isEmpty())
            return;
        const bool isRich = label && label->textFormat() == Qt::RichText;
        const int flags = label && label->wordWrap() ? Qt::TextWordWrap : Qt::TextShowMnemonic;
        const QRect room = roomOf(widget);
        QSize need = widget->fontMetrics().boundingRect(room, flags, text).size();
        if (isRich)
            need = {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
        if (need.height() > room.height() + 2)
            note(widget, QString("lacks %1 in height").arg(need.height() - room.height()));
        if (need.width() <= room.width())
            return;
        const QString lack = QString("%1 pixels too long").arg(need.width() - room.width());
        if (isRich || !tellsWhole(widget, text))
            note(widget, lack);
        else
            shortened << nameOf(widget) + ": " + lack;
    }

    static QRect roomOf(QWidget *widget)
    {
        QStyleOptionButton button;
        button.initFrom(widget);
        button.text = textOf(widget);
        QStyleOptionComboBox combo;
        combo.initFrom(widget);
        const QStyle *style = widget->style();
        if (widget->inherits("QComboBox"))
            return style->subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField,
                                         widget);
        for (const auto &[type, part] : {std::pair("QCheckBox", QStyle::SE_CheckBoxContents),
                                         std::pair("QRadioButton", QStyle::SE_RadioButtonContents),
                                         std::pair("QPushButton", QStyle::SE_PushButtonContents)})
            if (widget->inherits(type))
                return style->subElementRect(part, &button, widget);
        return widget->contentsRect();
    }

    static bool tellsWhole(QWidget *widget, QString text)
    {
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
        QToolTip::hideText();
        QApplication::sendEvent(widget, &help);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        return shown.toPlainText().startsWith(text.replace('\n', ' ').remove('&').simplified()) ||
               QToolTip::text().startsWith(text);
    }

    QWidget *page;
};

void tell(QWidget *page)
{
    QTest::qWait(20);
    page->layout()->invalidate(); // hints may be older than what they are for
    page->layout()->activate();
    QApplication::processEvents();
    const Measure measured(page);
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
    addColumns<QString, double>("language", "points");
    for (const char *language : {"en_US", "de_DE", "fr_FR", "it_IT", "es_ES", "pt_PT", "long"})
        for (const double points : {9.0, 11.25})
            QTest::addRow("%s %g", language, points) << QString(language) << points;
}

void TestMeasure::everyTextHasRoom()
{
    QFETCH(QString, language);
    QFETCH(double, points);
    QProcess process;
    process.start("env", {"LANG=" + language + ".UTF-8", QCoreApplication::applicationFilePath(),
                          "measure", language, QString::number(points)});
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
    // Not mended yet: in larger type the inputs of these pages have less room than they
    // take. Whatever else stands badly, or does so in type of the usual size, is a failure.
    for (const QString &fault : faults.filter(QRegularExpression(
             "^(Job|Publishing|Finishing|Watermark)Tab .*(overlaps|reaches beyond)")))
        if (language == "long" || points > 9) {
            qWarning("not mended: %s", qPrintable(fault));
            faults.removeAll(fault);
        }
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
