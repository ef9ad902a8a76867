// Thousands of random actions on the real main dialog, while printers come and go and the scheduler
// falls silent or starts anew. What must always hold is looked at after each of them, and after
// each Apply the panel is started anew: it has to come up with what was applied.

#include "app/bixdialog.h"
#include "model/optionstore.h"
#include "model/printqueues.h"
#include "pages/base/tab.h"
#include "storage/settingsfile.h"
#include "support/dialoghandler.h"
#include "support/randomhands.h"
#include "support/readback.h"
#include "support/scheduler.h"
#include "support/testhelpers.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"

#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QNetworkReply>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>

namespace {

QStringList faults;

void hearComplaint(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    // That it has no window manager is the offscreen platform's own complaint.
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith("This plugin does not support"))
        faults << "complaint: " + text;
}

void expect(bool holds, const QString &fault)
{
    if (!holds)
        faults << fault;
}

class Soak : public DialogHandler
{
public:
    explicit Soak(unsigned seed)
        : hands(seed)
    {
        start();
    }

    void run(int actions)
    {
        while (action < actions && faults.isEmpty()) {
            ++action;
            act();
            settle();
            check();
        }
    }

    QStringList log;
    QMap<QString, int> counts;
    int action = 0;

protected:
    void handle(QDialog *dialog) override
    {
        QMetaObject::invokeMethod(
            dialog, [=] { answer(dialog); }, Qt::QueuedConnection);
    }

private:
    void note(const QString &did) { log << QString("%1 %2").arg(action).arg(did); }

    // The panel

    void start()
    {
        panel.reset(); // before there is another one: they share what is global
        panel = std::make_unique<BixDialog>();
        printers = findNamed<QTableWidget>(panel.get(), "tblPrinters");
        tabs = panel->findChild<BixTabWidget *>();
        buttons = panel->findChild<QDialogButtonBox *>();
        QObject::connect(panel.get(), &PanelDialog::constraintsWorkedOut, [this] {
            hasLooked = true;
            isMarked = false;
            for (Tab *page : panel->findChildren<Tab *>())
                isMarked = (tabs->indexOf(page) >= 0 && page->hasMarks()) || isMarked;
        });
        // After the panel's own slots: a printer that has just been selected can be applied.
        QObject::connect(printers, &QTableWidget::currentCellChanged, [this] { isMarked = false; });
        panel->show();
        settle();
    }

    /// Goes through events until nothing is under way, so that no action depends on who is quick.
    void settle()
    {
        QTimer tick; // or the last wait for an event might have no end
        tick.start(100);
        const QDeadlineTimer deadline(20000);
        QCoreApplication::processEvents();
        while (isBusy() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        expect(!isBusy(), "the panel does not come to rest");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(); // says what the last pass has led to
    }

    bool isBusy() const
    {
        const bool knowsQueues = knownPrinters == scheduler.queues() || !hasLooked;
        if (panel->isLooking() || QApplication::activeModalWidget() != answered ||
            (!answered && !isSilent && !knowsQueues))
            return true;
        const auto replies = panel->findChildren<QNetworkReply *>();
        return std::any_of(replies.begin(), replies.end(), std::mem_fn(&QNetworkReply::isRunning));
    }

    void check()
    {
        const QTableWidgetItem *item = printers->item(printers->currentRow(), 0);
        const QString queue = currentStore ? currentStore->printerName() : QString();
        // While there is no scheduler there is no row, and the printer stays selected.
        expect((item ? item->text() : QString()) ==
                   (knownPrinters.contains(queue) ? queue : QString()),
               "selected is not " + queue);
        for (const auto which : {QDialogButtonBox::Apply, QDialogButtonBox::Ok})
            expect(buttons->button(which)->isEnabled() == (currentStore && !isMarked),
                   buttons->button(which)->text() + (isMarked ? " despite marks" : " is wrong"));
        const QMap<QString, QStringList> now = published();
        for (auto each = applied.cbegin(); each != applied.cend(); ++each)
            expect(now[each.key()] == each.value(), "published of " + each.key() + " has changed");
    }

    // Actions

    void act()
    {
        const int what = hands.below(1000);
        if (what < 690)
            useAny(tabs->currentWidget());
        else if (what < 800)
            turnPage();
        else if (what < 850)
            selectPrinter();
        else if (what < 930)
            apply();
        else if (what < 970)
            useAny(panel.get());
        else if (what < 986)
            changeQueues();
        else if (what < 995)
            pauseScheduler();
        else if (what < 997)
            restartScheduler();
        else if (what < 998 && currentStore &&
                 scheduler.queues().contains(currentStore->printerName()))
            silenceScheduler();
    }

    void useAny(QWidget *window)
    {
        QList<QWidget *> controls = usableControls(window);
        for (QAbstractButton *button : buttons->buttons())
            controls.removeAll(button); // for apply(), and the window stays open
        if (controls.isEmpty())
            return;
        QWidget *control = hands.pick(controls);
        note({});
        const int at = log.size() - 1;
        const QString did = hands.use(control); // which may lead to dialogs, and their notes
        log[at] += did;
    }

    void turnPage()
    {
        // What is fitted is seldom changed, and holds up Apply.
        if (!hands.turnPage(tabs, hands.oneIn(10) ? 0 : 1))
            tabs->setCurrentIndex(0);
        note("page " + tabs->tabText(tabs->currentIndex()));
    }

    void selectPrinter()
    {
        tabs->setCurrentIndex(0);
        if (printers->rowCount() > 0)
            note(hands.use(printers));
        hands.turnPage(tabs, 1);
    }

    void apply()
    {
        QPushButton *button = buttons->button(QDialogButtonBox::Apply);
        if (!button->isEnabled())
            return;
        const QString queue = currentStore->printerName();
        // What is fitted takes root's password.
        const bool canApply = scheduler.queues().contains(queue) && !isSilent &&
                              !findNamed<QWidget>(panel.get(), "lblRootWarning");
        note("apply to " + queue);
        said.clear();
        applied.remove(queue);
        button->click();
        const bool hasApplied = said == QStringList("Settings applied.");
        expect(hasApplied == canApply, "Apply said " + said.join("; "));
        ++counts[hasApplied ? "Applies" : "Applies in vain"];
        if (hasApplied)
            startAnew(queue);
    }

    /// After an Apply to the queue.
    void startAnew(const QString &queue)
    {
        applied[queue] = published()[queue];
        const QMap<QString, QString> before = selection();
        start();
        printers->setCurrentCell(printers->findItems(queue, Qt::MatchExactly).value(0)->row(), 0);
        settle();
        const QStringList missing = unpublished(applied[queue]);
        expect(missing.isEmpty(), "applied, but not published is " + missing.join(' '));
        const QMap<QString, QString> after = selection();
        for (auto each = before.cbegin(); each != before.cend(); ++each) {
            const QString keyword = each.key(), now = after[keyword];
            if (now == each.value())
                continue;
            const QString why = whyOtherwise(keyword, each.value(), now);
            expect(!why.isEmpty(), keyword + " was " + each.value() + ", comes up as " + now);
            ++counts["differences: " + why];
        }
    }

    void answer(QDialog *dialog)
    {
        QWidget *const outer = std::exchange(answered, dialog);
        if (const auto *box = qobject_cast<QMessageBox *>(dialog)) {
            said << box->text();
            note("is told " + box->text());
        } else {
            note("dialog " + dialog->windowTitle());
            // Nobody knows root's password here.
            const bool isPrompt = findNamed<QWidget>(dialog, "lnEditRootPassword");
            for (int uses = isPrompt ? 0 : hands.below(8); uses > 0; --uses) {
                useAny(dialog);
                if (!dialog->isVisible())
                    break;
                settle();
            }
        }
        if (dialog->isVisible())
            dialog->reject();
        answered = outer;
    }

    // The print system

    void changeQueues()
    {
        const QString queue = hands.pick(scheduler.allQueues());
        const bool isThere = scheduler.queues().contains(queue);
        note((isThere ? "remove " : "add ") + queue);
        ++counts[isThere ? "printers lost" : "printers added"];
        applied.remove(queue);
        if (isThere)
            scheduler.remove(queue);
        else
            scheduler.add(queue);
        hasLooked = false; // the next click finds it
    }

    /// While the next action goes on.
    void pauseScheduler()
    {
        note("the scheduler pauses");
        ++counts["pauses of the scheduler"];
        scheduler.fallSilent(0.1);
    }

    void restartScheduler()
    {
        note("the scheduler starts anew");
        ++counts["restarts of the scheduler"];
        scheduler.stop();
        hasLooked = false;
        if (hands.oneIn(2))
            useAny(tabs->currentWidget());
        else
            apply();
        settle();
        scheduler.start();
        hasLooked = false;
    }

    /// For longer than the panel waits, which is no reason to lose anything.
    void silenceScheduler()
    {
        note("the scheduler is silent");
        ++counts["silences of the scheduler"];
        const auto *notice = panel->findChild<NoticeLine *>();
        const auto tellsSilence = [=] { return notice->text().contains("does not answer"); };
        isSilent = true;
        scheduler.fallSilent(60);
        panel->setConstraints(); // as after each click
        settle();
        expect(tellsSilence(), "of silence is told " + notice->text());
        apply();
        check();
        scheduler.wakeUp();
        isSilent = false;
        expect(QTest::qWaitFor([&] { return !tellsSilence(); }, 10000) && currentStore,
               "silence leaves " + notice->text());
    }

    RandomHands hands;
    Scheduler scheduler;
    std::unique_ptr<BixDialog> panel;
    QTableWidget *printers = nullptr;
    BixTabWidget *tabs = nullptr;
    QDialogButtonBox *buttons = nullptr;
    QWidget *answered = nullptr;        ///< the dialog that is being used
    QStringList said;                   ///< in message boxes, since Apply
    QMap<QString, QStringList> applied; ///< what was published, by queue
    bool isMarked = false;
    bool isSilent = false;  ///< the scheduler
    bool hasLooked = false; ///< the panel, at the queues since they have changed
};

} // namespace

class TestSoak : public QObject
{
    Q_OBJECT

private slots:
    void everythingHolds();
};

void TestSoak::everythingHolds()
{
    const unsigned seed = numberFrom("PRESSDESK_SOAK_SEED", std::random_device()());
    const int actions = int(numberFrom("PRESSDESK_SOAK_ACTIONS", 2000));
    qInfo("seed %u, %d actions (PRESSDESK_SOAK_SEED=%u PRESSDESK_SOAK_ACTIONS=%d repeats them)",
          seed, actions, seed, actions);
    QVERIFY(QDir().mkpath(userDirectory()) && setFileText(settingsPath(), "Telemetry=False"));

    const auto formerHandler = qInstallMessageHandler(hearComplaint);
    std::unique_ptr<Soak> soak;
    QEventLoop loop; // as the program's own, one level below those of its dialogs
    QTimer::singleShot(0, &loop, [&] {
        soak = std::make_unique<Soak>(seed);
        soak->run(actions);
        loop.quit();
    });
    loop.exec();
    qInstallMessageHandler(formerHandler);

    for (auto each = soak->counts.cbegin(); each != soak->counts.cend(); ++each)
        qInfo("%d %s", each.value(), qPrintable(each.key()));
    const QByteArray log = soak->log.join('\n').toUtf8();
    qInfo("%d actions, fingerprint %s", soak->action,
          QCryptographicHash::hash(log, QCryptographicHash::Md5).toHex().constData());
    for (const QString &last :
         faults.isEmpty() ? QStringList() : soak->log.mid(soak->log.size() - 12))
        qInfo("action %s", qPrintable(last));
    QVERIFY2(faults.isEmpty(),
             qPrintable(QString("seed %1, action %2: ").arg(seed).arg(soak->action) +
                        faults.mid(0, 10).join('\n')));
}

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
