// What of the widgets no script can see: pictures, sizes, the wheel, and what stands in a label.

#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"
#include "widgets/focusring.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTextDocument>
#include <QWheelEvent>

class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void groupChangesBeforeItTells();
    void groupShowsNamesAsTheyAre();
    void popupWidth();
    void wheelNeedsTheFocus();
    void disabledTabDrawsNothing();
    void ringAroundWhatIsDrawn();
};

void TestWidgets::groupChangesBeforeItTells()
{
    QWidget window;
    BixButtonGroup group(&window, "Duplex:");
    const QStringList pictures = {":/icons/duplex-off", ":/icons/duplex-long"};
    group.addButton("Off", pictures[0]);
    group.addButton("On", pictures[1]);
    const qint64 pictureOfOff = group.buttonAt(0)->icon().cacheKey();
    const auto shown = [&] {
        QString text = group.findChild<QLabel *>()->text();
        for (int i = 0; i < 2; ++i) {
            const auto image = [](const QIcon &icon) { return icon.pixmap(50, 50).toImage(); };
            const QImage picture = image(group.buttonAt(i)->icon());
            const bool selected = picture == image(QIcon(pictures[i] + "-selected"));
            text += selected == (picture == image(QIcon(pictures[i]))) ? '?' : selected ? 'S' : '.';
        }
        return text;
    };
    QStringList events;
    connect(&group, qOverload<int>(&BixButtonGroup::buttonClicked),
            [&](int i) { events << QString::number(i) + shown(); });
    connect(&group, qOverload<QAbstractButton *>(&BixButtonGroup::buttonClicked),
            [&](QAbstractButton *button) { events << button->accessibleName() + shown(); });
    group.buttonAt(1)->click();
    QCOMPARE(events, QStringList({"OnDuplex: On.S", "1Duplex: On.S"}));
    group.setButtonByValue("on"); // no click: nobody hears of it; no such name: the first
    QCOMPARE(shown(), QString("Duplex: OffS."));
    group.setButton(1);
    QCOMPARE(shown(), QString("Duplex: On.S"));
    QCOMPARE(group.buttonAt(0)->icon().cacheKey(), pictureOfOff); // and not read anew
    group.setButton(2);                                           // none there
    group.setButton(nullptr);
    QCOMPARE(group.currentText(), QString("Off"));
    QCOMPARE(events.size(), 2);
    // A disabled group keeps its buttons as they are.
    group.setEnabledAt(1, false);
    group.setEnabledAt(2, false); // none there
    group.setGroupEnabled(false);
    group.setEnabledAt(1, true);
    group.setEnabledAt(0, false);
    group.setGroupEnabled(true);
    QVERIFY(group.buttonAt(0)->isEnabled() && !group.buttonAt(1)->isEnabled());
}

void TestWidgets::groupShowsNamesAsTheyAre()
{
    const QString name = "<b>Black</b> & white &lt;";
    QWidget window;
    BixButtonGroup group(&window, "<img src=':/icons/logo'>:");
    group.addButton(name, ":/icons/duplex-off");
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

void TestWidgets::popupWidth()
{
    ComboBoxEx box;
    box.setFixedWidth(215);
    box.show();
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
    ComboBoxEx box;
    box.addItems({"A4", "A5"});
    QVERIFY(box.focusPolicy() != Qt::WheelFocus); // a real wheel would bring it
    const auto turnWheel = [&box] {
        const QPoint place = box.rect().center();
        QWheelEvent event(place, box.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&box, &event);
        return QString("%1 %2").arg(event.isAccepted()).arg(box.currentIndex());
    };
    QCOMPARE(turnWheel(), QString("0 0")); // the page scrolls instead
    box.show();
    box.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    box.setFocus();
    QCOMPARE(turnWheel(), QString("1 1"));
}

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
        const QImage image = tabs.grab().toImage();
        // The shade below the tabs begins below the last row of the bar.
        const int bottom = tabs.tabBar()->geometry().bottom();
        if (image.pixel(1, bottom) != image.pixel(1, bottom - 1) ||
            image.pixel(1, bottom) == image.pixel(1, bottom + 1))
            QTest::qFail("the shade begins elsewhere", __FILE__, __LINE__);
        return image;
    };
    const QString icon = ":/icons/tab-basic";
    QCOMPARE(paint("Basic", icon, false), paint(QString(), QString(), false));
    const QImage enabled = paint("Basic", icon, true);
    QVERIFY(enabled != paint(QString(), icon, true) && enabled != paint("Basic", QString(), true));
}

void TestWidgets::ringAroundWhatIsDrawn()
{
    QWidget window;
    ComboBoxEx box(&window);
    QCheckBox check("Inside", &window);
    for (QWidget *control : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&check)}) {
        control->setStyleSheet("margin-left: 40px; margin-bottom: 9px");
        control->setGeometry(10, 20, 200, 40);
    }
    const FocusRing ring(nullptr);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (QWidget *control : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&check)}) {
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Shift); // the keyboard is used
        const QRect around = static_cast<QWidget *>(window.children().last())->geometry();
        QCOMPARE(around.right(), 211); // two pixels beside the control
        QVERIFY2(around.left() >= 48 && around.bottom() <= 20 + 40 - 9 + 2,
                 control->metaObject()->className());
    }
}

QTEST_MAIN(TestWidgets)

#include "tst_widgets.moc"
