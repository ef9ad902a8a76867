// A walk through the real main dialog on every sample printer: each value of each control is tried
// once in the user's way, and whatever is greyed meanwhile has to say why.

#include "app/bixdialog.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/base/optionlabels.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"
#include "storage/settingsfile.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"

#include <QAbstractButton>
#include <QTableWidget>

namespace {

/// Of all sample PPDs, with the lines that the panel lists a queue for.
constexpr char addQueues[] = R"(for ppd in $1/demo/ppd/*.ppd $1/tests/cases/stores/*.ppd; do
    sed '/^\*\(Manufacturer\|1284Device\)/d; /^\*FormatVersion/a *Manufacturer: "Brixola"\
*1284DeviceID: "MFG:Brix;"\n*cupsFilter: "application/pdf 0 bixfilter_F"' $ppd > /tmp/ppd
    $1/demo/printserver.sh add $2 $(basename $ppd .ppd) /tmp/ppd || exit; done)";

/// Lends the registrations of a page.
class Page : public Tab
{
public:
    static const WidgetMap &boundTo(Tab *page) { return page->*(&Page::boundWidgets); }
};

class Walk : public BixDialog
{
public:
    Walk()
    {
        for (int i = 0; i < tabs->count(); ++i)
            pages << qobject_cast<Tab *>(tabs->widget(i));
    }

    /// Goes once through everything that the selected printer offers.
    void run()
    {
        known.clear();
        look("at first");
        for (Tab *page : qAsConst(pages)) {
            const WidgetMap bound = Page::boundTo(page);
            for (const auto &[keyword, widget] : bound)
                tryValues(keyword + " of " + currentStore->printerName(), widget);
        }
    }

    QTableWidget *printers = findNamed<QTableWidget>(this, "tblPrinters");
    QStringList faults;
    int grey = 0;      ///< greyed controls and blocked items, after all steps together
    int explained = 0; ///< those of them that say why
    int steps = 0;

private:
    void tryValues(const QString &name, QWidget *widget)
    {
        const auto step = [&](const auto &act) {
            if (widget->isEnabled() && !widget->isHidden())
                act(), ++steps, look(name);
        };
        if (auto *box = qobject_cast<ComboBoxEx *>(widget)) {
            for (int i = 0; i < box->count(); ++i)
                if (box->model()->index(i, 0).flags() & Qt::ItemIsEnabled)
                    step([=] { box->setCurrentIndex(i); });
            return;
        }
        auto buttons = widget->findChildren<QAbstractButton *>();
        if (auto *button = qobject_cast<QAbstractButton *>(widget))
            buttons = {button, button}; // on, and off again
        for (QAbstractButton *button : qAsConst(buttons))
            step([=] { button->click(); });
    }

    void look(const QString &step)
    {
        const OptionLabels labels(pages);
        for (Tab *page : qAsConst(pages)) {
            if (!tabs->isTabEnabled(tabs->indexOf(page)))
                continue;
            page->explain(labels);
            for (const QWidget *widget : page->findChildren<QWidget *>())
                if (widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(page))
                    checkControl(page->tabName() + ' ' + widget->accessibleName() + ": " + step,
                                 widget);
        }
    }

    void checkControl(const QString &where, const QWidget *widget)
    {
        check(where, widget->isEnabled(), ReasonTip::of(widget), widget->toolTip());
        const auto *box = qobject_cast<const QComboBox *>(widget);
        for (int i = 0; box && i < box->count(); ++i)
            if (!box->itemText(i).isEmpty()) // no separator
                check(where, box->model()->index(i, 0).flags() & Qt::ItemIsEnabled,
                      ReasonTip::ofItem(box, i), box->itemData(i, Qt::ToolTipRole).toString());
    }

    void check(const QString &where, bool usable, const QString &reason, const QString &toolTip)
    {
        grey += usable ? 0 : 1;
        explained += usable || reason.isEmpty() ? 0 : 1;
        if (usable != reason.isEmpty() || !toolTip.endsWith(reason))
            faults << where + (usable ? ", to be used, says " : ", greyed, says only ") + toolTip;
        if (known.contains(reason))
            return;
        known << reason;
        for (const QString &word : reason.split(QRegularExpression("[^\\w-]+"))) {
            const bOption *option = currentOption(word);
            if (word == "True" || word == "False" || (option && !option->text().contains(word)))
                faults << where + ", a keyword stands in " + reason;
        }
    }

    BixTabWidget *tabs = findChild<BixTabWidget *>();
    QList<Tab *> pages; ///< in tab order
    QStringList known;  ///< the reasons that this printer has had
};

} // namespace

class TestWalk : public QObject
{
    Q_OBJECT

private slots:
    void everyGreyControlSaysWhy();
};

void TestWalk::everyGreyControlSaysWhy()
{
    QVERIFY(QDir().mkpath(userDirectory()) && setFileText(settingsPath(), "Telemetry=False"));
    const QString server = QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
    QCOMPARE(QProcess::execute("sh", {"-c", addQueues, "sh", PRESSDESK_SOURCE_DIR, server}), 0);
    Walk walk;
    for (int row = 0; row < walk.printers->rowCount(); ++row) {
        walk.printers->setCurrentCell(row, 0);
        walk.run();
    }
    qDebug("%d steps: %d greyed, %d of them say why", walk.steps, walk.grey, walk.explained);
    QVERIFY2(walk.faults.isEmpty() && walk.grey > 1000, qPrintable(walk.faults.value(0)));
}

QTEST_MAIN(TestWalk)
#include "tst_walk.moc"
