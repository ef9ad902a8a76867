// A walk through the real main dialog on every sample printer: each value of each control is tried
// once in the user's way. Whatever is greyed meanwhile has to say why, and whatever moves by itself
// has to be told.

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
#include "widgets/noticeline.h"

#include <QAbstractButton>
#include <QTableWidget>

#include <malloc.h>

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
        for (Tab *page : qAsConst(pages))
            for (const auto &[keyword, widget] : Page::boundTo(page))
                tryValues(page, keyword + " of " + currentStore->printerName(), widget);
    }

    QTableWidget *printers = findNamed<QTableWidget>(this, "tblPrinters");
    QStringList faults;
    int grey = 0;      ///< greyed controls and blocked items, after all steps together
    int explained = 0; ///< those of them that say why
    int steps = 0;
    int moved = 0; ///< values that moved by themselves
    int told = 0;  ///< those of them that were told of

private:
    using Selection = QMap<QString, OptionChoice *>;

    void tryValues(Tab *page, const QString &name, QWidget *widget)
    {
        const auto step = [&](const auto &act) {
            if (!widget->isEnabled() || widget->isHidden())
                return;
            const Selection before = selection();
            act();
            QCoreApplication::processEvents();
            ++steps;
            checkMoves(name, page, widget, before);
            look(name);
        };
        if (auto *box = qobject_cast<ComboBoxEx *>(widget)) {
            for (int i = 0; i < box->count(); ++i)
                if (box->model()->index(i, 0).flags() & Qt::ItemIsEnabled)
                    step([=] { box->setCurrentIndex(i); });
            return;
        }
        auto buttons = widget->findChildren<QAbstractButton *>();
        if (auto *button = qobject_cast<QAbstractButton *>(widget))
            buttons = {button, button,
                       button}; // on, off and on: hardware that is there lets more be done
        for (QAbstractButton *button : qAsConst(buttons))
            step([=] { button->click(); });
    }

    static Selection selection()
    {
        Selection selected;
        for (const bOption *option : currentStore->optionList())
            selected.insert(option->key(), option->current());
        return selected;
    }

    /// All that changed but for what the user did: the control, what follows a switch, the other
    /// radio button, the look of the watermark that was picked.
    void checkMoves(const QString &step, const Tab *page, const QWidget *control,
                    const Selection &before)
    {
        const OptionLabels labels(pages);
        QStringList changed{page->keywordOf(control)};
        for (const bOption *option : currentStore->optionList())
            if (option->current() != before[option->key()])
                changed << option->key();
        QStringList own = labels.followersAmong(changed) << changed.first();
        for (const QString &keyword : labels.inOrder(changed)) {
            const bool isRadio = control->inherits("QRadioButton") && keyword.startsWith("cCov");
            const bool isLook = page->inherits("WatermarkTab") && keyword.startsWith('W');
            if (own.contains(keyword) || isRadio || isLook)
                continue;
            const bool isTold = notice->toolTip().contains(labels.label(*currentOption(keyword)));
            const bool shows = std::any_of(pages.cbegin(), pages.cend(), [&](Tab *each) {
                return each->keywords().contains(keyword) &&
                       (tabs->hasDot(each) || each == tabs->currentWidget());
            });
            ++moved;
            told += isTold;
            if (!isTold || !shows)
                faults << step + " moved " + keyword + ", but told is " + notice->toolTip();
        }
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
    NoticeLine *notice = findChild<NoticeLine *>();
    QList<Tab *> pages; ///< in tab order
    QStringList known;  ///< the reasons that this printer has had
};

} // namespace

class TestWalk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyGreyControlSaysWhy();
    void changesOfThePrinterLeaveNothing();
};

void TestWalk::initTestCase()
{
    QVERIFY(QDir().mkpath(userDirectory()) && setFileText(settingsPath(), "Telemetry=False"));
    const QString server = QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
    QCOMPARE(QProcess::execute("sh", {"-c", addQueues, "sh", PRESSDESK_SOURCE_DIR, server}), 0);
}

void TestWalk::everyGreyControlSaysWhy()
{
    Walk walk;
    for (int row = 0; row < walk.printers->rowCount(); ++row) {
        walk.printers->setCurrentCell(row, 0);
        walk.run();
        walk.run(); // now with everything on that the first round has switched on
    }
    qDebug("%d steps: %d greyed, %d of them say why; %d moved, %d of them told", walk.steps,
           walk.grey, walk.explained, walk.moved, walk.told);
    QVERIFY2(walk.faults.isEmpty() && walk.grey > 1000 && walk.moved > 50,
             qPrintable(walk.faults.mid(0, 20).join('\n')));
}

void TestWalk::changesOfThePrinterLeaveNothing()
{
    BixDialog panel;
    auto *printers = findNamed<QTableWidget>(&panel, "tblPrinters");
    /// What is allocated after so many changes, in bytes.
    const auto allocatedAfter = [&](int rounds) {
        for (int i = 0; i < rounds * printers->rowCount(); ++i) {
            printers->setCurrentCell(i % printers->rowCount(), 0);
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        return qint64(mallinfo2().uordblks);
    };
    const qint64 before = allocatedAfter(3);
    const qint64 more = allocatedAfter(5) - before;
    qDebug("%lld bytes at first, %lld more after five rounds", before, more);
    QVERIFY(more < 500000);
}

QTEST_MAIN(TestWalk)
#include "tst_walk.moc"
