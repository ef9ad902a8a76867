// What a screen reader gets of each page and dialog, and that what it does reaches the widgets.

#include "app/bixdialog.h"
#include "app/language.h"
#include "pages/base/tab.h"
#include "privileged/passwordprompt.h"
#include "storage/settingsfile.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"
#include "widgets/spoken.h"

#include <QtWidgets>

static QAccessibleInterface *spoken(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

class TestSpoken : public QObject
{
    Q_OBJECT

    QWidget *find(const char *name) { return findNamed<QWidget>(window.get(), name); }
    /// As a reader walks through a page or dialog.
    void visit(QAccessibleInterface *node)
    {
        if (!node || node->state().invisible)
            return;
        const QString name = node->text(QAccessible::Name);
        ++nodes, named += !name.isEmpty();
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
        const QAccessible::Role role = node->role();
        fault("is an identifier", isIdentifier && name == code);
        fault("is nameless", name.isEmpty() && node->state().focusable);
        fault("has a colon", name.endsWith(':') && role != QAccessible::StaticText);
        if (auto *group = qobject_cast<BixButtonGroup *>(widget)) {
            int picked = 0;
            for (QWidget *each : group->findChildren<QPushButton *>())
                picked += spoken(each)->state().checked &&
                          spoken(each)->text(QAccessible::Name) == group->currentText() &&
                          spoken(each)->role() == QAccessible::RadioButton;
            fault("is no group", role != QAccessible::Grouping || picked != 1);
        }
        if (widget->inherits("BixCheckBoxButton")) // the picture is left out
            fault("is not one thing", !name.isEmpty() || !node->child(0)->state().invisible ||
                                          widget->property("spokenLabels").isNull());
        const bool isField = role == QAccessible::ComboBox || role == QAccessible::Slider ||
                             role == QAccessible::EditableText;
        bool leads = !isField || widget->property("spokenName").isValid();
        for (const auto &[to, relation] : node->relations(QAccessible::Label))
            leads |= to->relations(QAccessible::Labelled).contains({node, QAccessible::Labelled});
        fault("leads to no label", !leads);
        // By the names in the code, whatever way the panel itself takes.
        const QByteArray labelName = QString(code).replace("cmbBx", "lbl").toLatin1();
        auto *label = isField && isIdentifier ? findNamed<QLabel>(widget->parentWidget(), labelName)
                                              : nullptr;
        const QString text = label ? spoken(label)->text(QAccessible::Name).remove(':') : "";
        fault("is not its label", label && !name.endsWith(text.trimmed()));
        if (isField || role == QAccessible::CheckBox)
            fault("is there twice", seen.contains(name + role)), seen << name + role;
    }

    void walk(QWidget *top, const QString &title)
    {
        QCoreApplication::processEvents();
        faults.clear(), seen.clear();
        visit(spoken(top));
        QVERIFY2(faults.isEmpty(), qPrintable(title + ":\n" + faults.join('\n')));
        QVERIFY(!title.isEmpty() && title == spoken(top)->text(QAccessible::Name));
    }

    int nodes = 0, named = 0;
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
        Spoken::install();
        QAccessible::setActive(true); // widgets tell of themselves while they are made
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
            walk(tabs->currentWidget(), tabs->tabText(i));
            for (QCheckBox *box : tabs->currentWidget()->findChildren<QCheckBox *>()) {
                if (i > 0) // the hardware stays
                    box->click(), walk(tabs->currentWidget(), tabs->tabText(i));
            }
            for (const char *name : {"cmbBxBXCollate1", "cmbBxBqManagment", "cmbBxJobName"}) {
                auto *list = findNamed<QComboBox>(tabs->currentWidget(), name);
                for (int item = 0; list && item < list->count(); ++item) // other fields below each
                    list->setCurrentIndex(item), walk(tabs->currentWidget(), tabs->tabText(i));
            }
        }
        auto *notice = window->findChild<NoticeLine *>();
        notice->tell([](const QString &list) { return "Off: " + list; }, {"A&B <i>"});
        QCOMPARE(spoken(notice)->text(QAccessible::Name), QString("Off: A&B <i>"));
        QCOMPARE(spoken(notice)->role(), QAccessible::StatusBar);
        walk(window.get(), window->windowTitle());
    }

    void dialogs()
    {
        PasswordPrompt prompt(window.get(), QString());
        QMetaObject::invokeMethod(find("butNewCustomAccountID"), "click"); // gives it a title
        for (QDialog *dialog : window->findChildren<QDialog *>() + QList<QDialog *>{&prompt}) {
            dialog->show();
            for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>())
                button->setChecked(true), walk(dialog, dialog->windowTitle()); // all forms
            dialog->hide();
        }
        qInfo("%s: %d nodes, %d named", qPrintable(QLocale::system().name()), nodes, named);
    }

    void marks()
    {
        QWidget *staple = find("chkButStpl")->findChild<QCheckBox *>();
        const auto descriptions = [&](const char *tip, bool on) {
            for (const char *name : {"lblMediaType", "lblStaple", "butGroupDuplex"})
                window->findChild<Tab *>()->setWidgetMark(find(name), tip, on);
            QStringList texts;
            for (QWidget *each : {find("cmbBxMediaType"), find("butGroupDuplex"), staple})
                texts << spoken(each)->text(QAccessible::Description);
            return texts;
        };
        QCOMPARE(descriptions("<b>Why</b>", true), QStringList({"Why", "Why", "Why"}));
        QVERIFY(!descriptions("", true).contains(QString())); // a mark says something by itself
        QCOMPARE(descriptions("", false), QStringList({"", "", ""}));
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
        QWidget *check = find("chkBxFKPConflict");
        act(check, QAccessibleActionInterface::toggleAction());
        QCOMPARE(find("rdButFKPCancel")->isEnabled(), bool(spoken(check)->state().checked));
        tabs->setCurrentIndex(1);
        act(find("cmbBxMediaType"), QAccessibleActionInterface::showMenuAction());
        QVERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        QWidget *edit = find("lnEditCustomWatermark");
        edit->setProperty("text", "DRAFT");
        QCOMPARE(spoken(edit)->textInterface()->text(1, 3), QString("RA"));
        spoken(window->findChild<QSlider *>())->valueInterface()->setCurrentValue(7);
        QCOMPARE(window->findChild<QSlider *>()->value(), 7);
        auto *table = tabs->widget(0)->findChild<QTableWidget *>();
        QCOMPARE(spoken(table)->tableInterface()->cellAt(0, 0)->text(QAccessible::Name),
                 table->item(0, 0)->text());
    }

    void cleanupTestCase()
    {
        const QAccessible::Id first = QAccessible::uniqueId(spoken(tabs));
        QAccessible::deleteAccessibleInterface(first); // the widget stays and gets another
        const QAccessible::Id second = QAccessible::uniqueId(spoken(tabs));
        QVERIFY(second != first && !QAccessible::accessibleInterface(first));
        window.reset();
        QVERIFY(!QAccessible::accessibleInterface(second));
        spoken(new QComboBox); // goes with the application
    }
};

QTEST_MAIN(TestSpoken)

#include "tst_spoken.moc"
