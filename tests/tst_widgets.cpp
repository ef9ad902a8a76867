#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTextDocument>
#include <QWheelEvent>

namespace {

const QStringList duplexNames = {"Off", "Long edge", "Short edge"};
const QStringList duplexPaths = {":/icons/duplex-off", ":/icons/duplex-long",
                                 ":/icons/duplex-short"};

struct DuplexGroup
{
    DuplexGroup()
    {
        for (int i = 0; i < duplexNames.size(); ++i)
            group.addButton(duplexNames[i], duplexPaths[i]);
        group.setButtonByValue(duplexNames[0]);
        window.show();
    }
    void click(int i) { QTest::mouseClick(group.buttonAt(i), Qt::LeftButton); }
    /// "S" for a picture of the selected kind, "." for a plain one, and the label's text.
    QString shown() const
    {
        const auto image = [](const QIcon &icon) { return icon.pixmap(50, 50).toImage(); };
        QString kinds;
        for (int i = 0; i < duplexPaths.size(); ++i) {
            const QImage picture = image(group.buttonAt(i)->icon());
            const bool plain = picture == image(QIcon(duplexPaths[i]));
            const bool selected = picture == image(QIcon(duplexPaths[i] + "-selected"));
            kinds += plain == selected ? '?' : selected ? 'S' : '.';
        }
        return kinds + ' ' + label->text();
    }

    QWidget window;
    BixButtonGroup group{&window, "Duplex:"};
    QLabel *label = group.findChild<QLabel *>();
};

} // namespace

class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void groupChangesBeforeItTells();
    void groupSelectsByName();
    void disabledGroupKeepsItsButtons();
    void groupShowsNamesAsTheyAre();
    void checkBoxButtonSwitchesDependents();
    void refreshDependents_data();
    void refreshDependents();
    void popupWidth();
    void wheelNeedsTheFocus();
    void disabledTabDrawsNothing();
};

// BixButtonGroup

void TestWidgets::groupChangesBeforeItTells()
{
    DuplexGroup duplex;
    QStringList events;
    connect(&duplex.group, qOverload<int>(&BixButtonGroup::buttonClicked),
            [&](int i) { events << QString::number(i) + ": " + duplex.shown(); });
    connect(&duplex.group, qOverload<QAbstractButton *>(&BixButtonGroup::buttonClicked),
            [&](QAbstractButton *b) { events << b->accessibleName() + ": " + duplex.shown(); });
    duplex.click(1);
    QCOMPARE(events, QStringList({"Long edge: .S. Duplex: Long edge", "1: .S. Duplex: Long edge"}));
    duplex.group.setButton(2); // no click: nobody hears of it
    QCOMPARE(events.size(), 2);
    QCOMPARE(duplex.shown(), QString("..S Duplex: Short edge"));
}

void TestWidgets::groupSelectsByName()
{
    DuplexGroup duplex;
    for (const char *unknown : {"short edge", "Short", ""}) {
        duplex.group.setButtonByValue("Short edge");
        QCOMPARE(duplex.group.currentIndex(), 2);
        duplex.group.setButtonByValue(unknown);
        QCOMPARE(duplex.shown(), QString("S.. Duplex: Off"));
    }
    duplex.group.setButton(3); // none there
    duplex.group.setButton(nullptr);
    QCOMPARE(duplex.group.currentText(), QString("Off"));
}

void TestWidgets::disabledGroupKeepsItsButtons()
{
    DuplexGroup duplex;
    duplex.group.setEnabledAt(1, false);
    duplex.group.setEnabledAt(3, false); // none there
    duplex.group.setGroupEnabled(false);
    duplex.group.setEnabledAt(1, true);
    duplex.group.setEnabledAt(2, false);
    duplex.group.setGroupEnabled(true);
    duplex.click(1);
    QCOMPARE(duplex.group.currentIndex(), 0);
    duplex.click(2);
    QCOMPARE(duplex.group.currentIndex(), 2);
}

void TestWidgets::groupShowsNamesAsTheyAre()
{
    const QString name = "<b>Black</b> & white &lt;";
    QWidget window;
    BixButtonGroup group(&window, "<img src=':/icons/logo'>:");
    group.addButton(name, duplexPaths[0]);
    const auto *label = group.findChild<QLabel *>();
    const QString whole = "<img src=':/icons/logo'>: " + name;
    for (int i = 0; i < 2; ++i) {
        group.setButtonByValue(name);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(), whole);
        group.markConstrained(true);
        QTextDocument document;
        document.setHtml(label->text());
        QCOMPARE(document.toPlainText().remove(QChar::ObjectReplacementCharacter).trimmed(), whole);
        group.clearMark();
        QCOMPARE(label->text(), whole.toHtmlEscaped());
    }
}

// BixCheckBoxButton

void TestWidgets::checkBoxButtonSwitchesDependents()
{
    QWidget window;
    BixCheckBoxButton button(&window, "Staple", QIcon());
    QLabel dependent(&window);
    button.addDependent(&dependent, "no_default");
    button.refreshDependents();
    QVERIFY(!dependent.isEnabled());

    QStringList events; // with what the dependent is by then
    const auto note = [&](const char *kind, int value) {
        events << QStringLiteral("%1 %2 %3").arg(kind).arg(value).arg(dependent.isEnabled());
    };
    connect(&button, qOverload<int>(&BixCheckBoxButton::toggled),
            [&](int value) { note("int", value); });
    connect(&button, qOverload<bool>(&BixCheckBoxButton::toggled),
            [&](bool value) { note("bool", value); });
    button.findChild<QPushButton *>()->click();
    button.findChild<QCheckBox *>()->click();
    QCOMPARE(events, QStringList({"bool 1 1", "int 1 1", "bool 0 0", "int 0 0"}));

    button.blockSignals(true); // silences the button, and switches all the same
    button.setChecked(true);
    QVERIFY(dependent.isEnabled());
    QCOMPARE(events.size(), 4);
}

void TestWidgets::refreshDependents_data()
{
    // State: whether button, check mark, dependents are on.
    addRows({"items", "checked", "left", "state"}, R"(
off-value goes while on      | Off Left Right | 1 | Left Right   | 111
off-value goes while off     | Left Off Right | 0 | Left Right   | 100
other case, part of a word   | off Official   | 1 | off Official | 111
nothing but the off-value    | Off            | 1 |              | 111
empty list                   |                | 1 |              | 000
)");
}

void TestWidgets::refreshDependents()
{
    QFETCH(QString, items);
    QFETCH(QString, checked);
    QWidget window;
    BixCheckBoxButton button(&window, "Staple", QIcon());
    ComboBoxEx box(&window);
    ComboBoxEx full(&window); // one empty list among several is enough
    box.addItems(items.split(' ', Qt::SkipEmptyParts));
    full.addItem("Off");
    button.addDependent(&box, "Off");
    button.addDependent(&full, "None");
    button.setChecked(checked == "1");
    button.refreshDependents();

    QStringList left;
    for (int i = 0; i < box.count(); ++i)
        left << box.itemText(i);
    QTEST(left.join(' '), "left");
    QCOMPARE(full.count(), 1);
    QCOMPARE(full.isEnabled(), box.isEnabled());
    QString state;
    for (const bool on : {button.isEnabled(), button.isChecked(), box.isEnabled()})
        state += QString::number(on);
    QTEST(state, "state");
}

// ComboBoxEx

void TestWidgets::popupWidth()
{
    QWidget window;
    ComboBoxEx box(&window);
    box.setFixedWidth(215);
    window.show();
    const auto width = [&] {
        box.showPopup();
        const int shown = box.view()->window()->width();
        box.hidePopup();
        return shown;
    };
    const QString longText(40, 'W');
    box.addItem("A4");
    QCOMPARE(width(), 215); // the box's own
    while (box.count() < 10)
        box.addItem(longText);
    const int short10 = width();
    QVERIFY(short10 >= box.fontMetrics().horizontalAdvance(longText));
    box.addItem(longText); // from here on the list may scroll
    QCOMPARE(width(), short10 + box.view()->verticalScrollBar()->sizeHint().width());

    box.clear(); // another printer: nothing of the longer list stays
    QCOMPARE(width(), 215);
}

void TestWidgets::wheelNeedsTheFocus()
{
    QWidget window;
    ComboBoxEx box(&window);
    box.addItems({"A4", "A5"});
    QVERIFY(box.focusPolicy() != Qt::WheelFocus); // a real wheel would bring it
    const auto turnWheel = [&box] {
        const QPoint place = box.rect().center();
        QWheelEvent event(place, box.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&box, &event);
        return event.isAccepted();
    };
    QVERIFY(!turnWheel()); // the page scrolls instead
    QCOMPARE(box.currentIndex(), 0);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    box.setFocus();
    QVERIFY(turnWheel());
    QCOMPARE(box.currentIndex(), 1);
}

// Tabs

void TestWidgets::disabledTabDrawsNothing()
{
    const auto paint = [](const QString &text, const QString &icon, bool enabled) {
        BixTabWidget tabs;
        tabs.setTabPosition(QTabWidget::West);
        tabs.setStyleSheet("QTabBar::tab:disabled{ width: 0; height: 0; margin: 0; padding: 0; }");
        tabs.addTab(new QWidget, "Printer");
        tabs.addTab(new QWidget, QIcon(icon), text);
        tabs.setTabEnabled(1, enabled);
        tabs.setTabText(1, text); // only this lays the bar out anew
        tabs.resize(400, 300);
        tabs.show();
        return tabs.grab().toImage();
    };
    const QString icon = ":/icons/tab-basic";
    QCOMPARE(paint("Basic", icon, false), paint(QString(), QString(), false));
    const QImage enabled = paint("Basic", icon, true);
    QVERIFY(enabled != paint(QString(), icon, true));
    QVERIFY(enabled != paint("Basic", QString(), true));
}

QTEST_MAIN(TestWidgets)

#include "tst_widgets.moc"
