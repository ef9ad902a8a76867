// What a screen reader gets of each page and dialog, and that what it does reaches the widgets.

#include "app/bixdialog.h"
#include "app/language.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"
#include "privileged/passwordprompt.h"
#include "storage/settingsfile.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"
#include "widgets/spoken.h"
#include "widgets/spokenwords.h"

#include <QtWidgets>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

using A = QAccessible;

class TestSpoken : public QObject
{
    Q_OBJECT

    static QAccessibleInterface *spoken(QWidget *of) { return A::queryAccessibleInterface(of); }
    QWidget *find(const char *name) { return findNamed<QWidget>(window.get(), name); }

    /// As a reader walks through a page or dialog.
    void visit(QAccessibleInterface *node)
    {
        if (!node || node->state().invisible)
            return;
        QString name = node->text(A::Name);
        if (node->role() == A::ComboBox) // the name is the value
            name = Spoken::nameOf(static_cast<QWidget *>(node->object()));
        names << QVariant::fromValue(node->role()).toString() + ' ' + name;
        for (int i = 0; i < node->childCount(); ++i)
            visit(node->child(i));
        auto *widget = qobject_cast<QWidget *>(node->object());
        if (!widget)
            return;
        const auto fault = [&](const char *what, bool is) {
            if (is)
                faults << QString("%1 '%2' ").arg(widget->metaObject()->className(), name) + what;
        };
        const QString code = widget->accessibleName();
        const bool isIdentifier = QRegularExpression("^[a-z]+[A-Z]\\w*$").match(code).hasMatch();
        const A::Role role = node->role();
        fault("is an identifier", isIdentifier && (name == code || node->text(A::Value) == code));
        fault("is nameless", name.isEmpty() && node->state().focusable);
        fault("has a colon", name.endsWith(':') && role != A::StaticText);
        if (widget->inherits("BixButtonGroup")) {
            int picked = 0;
            for (QWidget *each : widget->findChildren<QPushButton *>())
                picked += spoken(each)->state().checked && spoken(each)->role() == A::RadioButton;
            fault("is no group", role != A::Grouping || picked != 1);
        }
        if (widget->inherits("BixCheckBoxButton")) // the picture is left out
            fault("is not one thing", role != A::Client || !node->child(0)->state().invisible ||
                                          widget->property("spokenLabels").isNull());
        if (auto *box = qobject_cast<QComboBox *>(widget))
            fault("says no value", node->textInterface()->text(0, 99) != box->currentText() ||
                                       node->text(A::Name).isEmpty());
        const bool isField = role == A::ComboBox || role == A::Slider || role == A::EditableText;
        bool leads = !isField || code == "cmbBxMethod" || widget->inherits("QTextEdit");
        for (const auto &[to, relation] : node->relations(A::Label))
            leads |= to->relations(A::Labelled).contains({node, A::Labelled});
        fault("leads to no label", !leads);
        // By the names in the code, whatever way the panel itself takes.
        QWidget *label = find(qPrintable("lbl" + code.mid(5)));
        const QString text = label ? spoken(label)->text(A::Name).remove(':') : "";
        fault("is not its label", isField && !name.endsWith(text.trimmed()));
        if (isField || role == A::CheckBox)
            fault("is there twice", seen.contains(name + role)), seen << name + role;
    }

    void walk(QWidget *top, const QString &title)
    {
        QCoreApplication::processEvents();
        faults.clear(), seen.clear();
        visit(spoken(top));
        QVERIFY2(faults.isEmpty(), qPrintable(title + ":\n" + faults.join('\n')));
        QVERIFY(!title.isEmpty() && title == spoken(top)->text(A::Name));
    }

    /// In place of what hands events on to readers.
    static void hear(QAccessibleEvent *event)
    {
        auto *widget = qobject_cast<QWidget *>(event->object());
        heard << QVariant::fromValue(event->type()).toString() + ' ' +
                     event->accessibleInterface()->text(A::Name);
        if (event->type() == A::StateChanged && (!widget || !widget->isVisible()))
            heard.last() += " out of sight";
    }

    static inline QStringList heard;
    QStringList names;        ///< "Button OK"
    QStringList faults, seen; ///< on the present walk
    QTranslator translator;
    std::unique_ptr<BixDialog> window;
    BixTabWidget *tabs;

private slots:
    void initTestCase()
    {
        QVERIFY(translator.load(catalogueForLocale(QLocale::system().name())));
        QApplication::installTranslator(&translator);
        alignPrintSystemLanguage(QLocale::system().name());
        A::installUpdateHandler(hear);
        Spoken::install();
        // As a desktop does; from then on widgets tell of themselves.
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QVERIFY(QDir().mkpath(userDirectory()) && setFileText(settingsPath(), "Telemetry=False"));
        window = std::make_unique<BixDialog>();
        window->show();
        tabs = window->findChild<BixTabWidget *>();
        auto *printers = tabs->widget(0)->findChild<QTableWidget *>();
        printers->setCurrentItem(printers->findItems("Office_C3", Qt::MatchExactly).value(0));
    }

    void pages()
    {
        for (int i = 0; i < tabs->count(); ++i) {
            QVERIFY(tabs->isTabEnabled(i));
            tabs->setCurrentIndex(i);
            QWidget *page = tabs->currentWidget();
            walk(page, tabs->tabText(i));
            for (auto *button : page->findChildren<BixCheckBoxButton *>())
                button->findChild<QCheckBox *>()->click(), walk(page, tabs->tabText(i));
            for (const char *name : {"cmbBxBXCollate1", "cmbBxBqManagment", "cmbBxJobName"}) {
                auto *list = findNamed<QComboBox>(page, name); // other fields below each item
                for (int item = 0; list && item < list->count(); ++item)
                    list->setCurrentIndex(item), walk(page, tabs->tabText(i));
            }
        }
        window->findChild<NoticeLine *>()->tell([](const QString &s) { return s; }, {"A&B <i>"});
        walk(window.get(), window->windowTitle());
        QVERIFY(QLocale().language() != QLocale::English ||
                names.contains("EditableText Account ID"));
    }

    void dialogs()
    {
        PasswordPrompt prompt(window.get(), QString());
        QMessageBox message(QMessageBox::Information, "Success", "Settings applied.");
        QCOMPARE(spoken(&message)->text(A::Description), message.text());
        QMetaObject::invokeMethod(find("butNewCustomAccountID"), "click"); // gives it a title
        for (QDialog *dialog : window->findChildren<QDialog *>() + QList<QDialog *>{&prompt}) {
            dialog->show();
            for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>())
                button->setChecked(true), walk(dialog, dialog->windowTitle()); // all forms
            dialog->hide();
        }
        qInfo("%s: %d nodes, %d named", qPrintable(QLocale().name()), names.size(),
              names.filter(QRegularExpression(" .")).size());
        // Those whose words don't simply stand before them.
        const QString others =
            "Notification A&B <i>|Pane Basic|Tree Detail|Graphic Press Desk, V|"
            "ComboBox Method|List Print size|Button Color adjust|"
            "EditableText Custom job name|EditableText User Login Name|"
            "CheckBox Tri-Fold|ComboBox Tri-Fold Number|ComboBox Bi-Fold Number|Slider Cyan Red|"
            "EditableText Cyan Red|CheckBox Front Outside|CheckBox Back Inside|Grouping Watermark";
        for (const QString &name : others.split('|'))
            QVERIFY2(QLocale().language() != QLocale::English || names.join('|').contains(name),
                     qPrintable(name));
    }

    void marks()
    {
        QWidget *staple = find("chkButStpl")->findChild<QCheckBox *>();
        for (QWidget *each : {staple, staple->parentWidget()})
            ReasonTip::set(each, QString()); // of what the test has switched on
        const auto descriptions = [&](const char *tip, bool on) {
            for (const char *name : {"lblMediaType", "lblStaple", "butGroupDuplex"})
                window->findChild<Tab *>()->setWidgetMark(find(name), tip, on);
            QStringList texts;
            for (QWidget *each : {find("cmbBxMediaType"), find("butGroupDuplex"), staple})
                texts << spoken(each)->text(A::Description);
            return texts;
        };
        QCOMPARE(descriptions("<b>Why</b>", true), QStringList({"Why", "Why", "Why"}));
        QVERIFY(!descriptions("", true).contains(QString())); // a mark says something by itself
        QCOMPARE(descriptions("", false), QStringList({"", "", ""}));
        staple->parentWidget()->setToolTip("Greyed");
        QCOMPARE(spoken(staple)->text(A::Description), QString("Greyed"));
    }

    void listOfPages()
    {
        constexpr int job = 6;
        QAccessibleInterface *list = spoken(tabs->tabBar());
        auto *page = qobject_cast<Tab *>(tabs->widget(job));
        auto *accounting =
            findNamed<QWidget>(window.get(), "chkButBqManagment")->findChild<QCheckBox *>();
        for (int click = 0; click < 3 && !page->hasMarks(); ++click)
            accounting->click(); // no account is known
        QVERIFY(page->hasMarks());
        QVERIFY(list->child(job)->text(A::Description).startsWith(Spoken::conflict()));
        const auto press = [&] {
            list->child(job)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
            return tabs->currentIndex() == job;
        };
        tabs->setCurrentIndex(job);
        const QPoint place = list->child(job)->rect().center();
        QCOMPARE(list->focusChild(), list->child(job));
        QCOMPARE(list->childAt(place.x(), place.y()), list->child(job));
        QCOMPARE(list->indexOfChild(list->child(job)), job);
        tabs->setCurrentIndex(0);
        tabs->setTabEnabled(job, false); // as without a printer
        QVERIFY(list->child(job)->state().invisible && !press());
        tabs->setTabEnabled(job, true);
        QVERIFY(!list->child(job)->state().invisible && press());
        accounting->click();
    }

    void actions()
    {
        const auto act = [](QWidget *widget, const QString &action) {
            spoken(widget)->actionInterface()->doAction(action);
            QCoreApplication::processEvents();
        };
        // The page listens to clicks alone.
        auto *fleet = tabs->widget(8)->findChild<BixButtonGroup *>();
        act(fleet->findChildren<QPushButton *>()[1], QAccessibleActionInterface::toggleAction());
        QVERIFY(fleet->findChild<QLabel *>()->text().contains(fleet->buttonNames()[1]));
        act(find("chkBxFKPConflict"), QAccessibleActionInterface::toggleAction());
        QVERIFY(!find("rdButFKPCancel")->isEnabled());
        tabs->setCurrentIndex(1);
        act(find("cmbBxMediaType"), QAccessibleActionInterface::showMenuAction());
        QVERIFY(QApplication::activePopupWidget() && QApplication::activePopupWidget()->close());
        find("lnEditCustomWatermark")->setProperty("text", "DRAFT");
        QCOMPARE(spoken(find("lnEditCustomWatermark"))->textInterface()->text(1, 3), QString("RA"));
        spoken(window->findChild<QSlider *>())->valueInterface()->setCurrentValue(7);
        QCOMPARE(window->findChild<QSlider *>()->value(), 7);
        QCOMPARE(spoken(find("tblPrinters"))->tableInterface()->rowCount(), 5);
    }

    void events()
    {
        auto *paper = static_cast<QComboBox *>(find("cmbBxPageSize"));
        const QString name = paper->currentText();
        tabs->setCurrentIndex(0);
        heard.clear();
        // Of all the pages there is only what shows.
        auto *printers = tabs->widget(0)->findChild<QTableWidget *>();
        printers->setCurrentItem(printers->findItems("Ratex_200", Qt::MatchExactly).value(0));
        QVERIFY2(heard.size() < 100 && heard.filter("out of sight").isEmpty(),
                 qPrintable(heard.join('\n')));
        paper->setEnabled(false);
        paper->setEnabled(true);
        QVERIFY(heard.filter("StateChanged " + name).isEmpty());
        tabs->setCurrentIndex(1);
        QCOMPARE(heard.filter("StateChanged " + name).size(), 1);

        // Of another value as of the focus on its item, once its list is as it stays.
        window->activateWindow();
        paper->setFocus();
        QTRY_VERIFY(paper->hasFocus());
        heard.clear();
        QTest::keyClick(paper, Qt::Key_End);
        QTRY_COMPARE(heard.filter("Focus ").join('|'), "Focus " + paper->currentText());
        QCOMPARE(spoken(paper)->text(A::Name), paper->currentText());

        heard.clear();
        window->findChild<NoticeLine *>()->tell([](const QString &s) { return s; }, {"Told"});
        QVERIFY(heard.contains("ObjectShow Told"));
    }

    void cleanupTestCase()
    {
        const A::Id first = A::uniqueId(spoken(tabs));
        A::deleteAccessibleInterface(first); // the widget stays and gets another
        const A::Id second = A::uniqueId(spoken(tabs));
        QVERIFY(second != first && !A::accessibleInterface(first));
        window.reset();
        QVERIFY(!A::accessibleInterface(second));
        spoken(new QComboBox); // goes with the application
    }
};

QTEST_MAIN(TestSpoken)
#include "tst_spoken.moc"
