#include "app/aboutdialog.h"
#include "app/bixdialog.h"
#include "app/changereport.h"
#include "app/keyboardareas.h"
#include "app/publication.h"
#include "app/settingscollector.h"
#include "app/telemetrydialog.h"
#include "pages/base/optionlabels.h"
#include "pages/basic/generaltab.h"
#include "pages/finishing/finishingtab.h"
#include "pages/imaging/imagingtab.h"
#include "pages/job/jobtab.h"
#include "pages/layout/booklettab.h"
#include "pages/login/userlogintab.h"
#include "pages/printer/printertab.h"
#include "pages/publishing/publishingtab.h"
#include "pages/watermark/watermarktab.h"
#include "policy/fkptab.h"
#include "profiles/profiledialog.h"
#include "profiles/profilesavedialog.h"
#include "sketch/sheetview.h"
#include "storage/ownfile.h"
#include "storage/settingsfile.h"
#include "widgets/bixtabwidget.h"
#include "widgets/focusring.h"
#include "widgets/icons.h"
#include "widgets/mnemonics.h"
#include "widgets/noticeline.h"
#include "widgets/panellook.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>

#include <cstdlib>
#include <unistd.h>

// How the main window is put together, and how it looks.

namespace {

constexpr char tabBarStyle[] =
    "QTabBar::tab {    background-color: rgba(0,0,0,127);   color: rgba(255,255,255, 255);   "
    "width: 180px;   height: 49px;   padding: 0px;   border: 0px;   margin: 0px;} "
    "QTabBar::icon{   margin-top: 10px;   margin-bottom: 10px;   margin-left: 7px;   "
    "margin-right: 7px;}QTabBar::tab:selected{   background-color: rgba(255,60,60,255);   color: "
    "rgba(255,255,255, 255);}QTabBar::tab:disabled{   width: 0;    height: 0;   margin: 0;   "
    "padding: 0;   border: none;}QTabBar::scroller {   width: 0px;   padding: 0px;   border: 0px;  "
    " margin: 0px;}";

constexpr char tabWidgetStyle[] =
    "QTabWidget::tab-bar {   left: -7px;   border: 0px;   padding: 0px;   margin: "
    "0px;}QTabWidget::pane{   position: absolute;   left: -7px; ;}";

/// What a window can take of the screen.
QSize screenRoom(const QStyle *style)
{
    const QSize frame(0, style->pixelMetric(QStyle::PM_TitleBarHeight));
    return QApplication::primaryScreen()->availableGeometry().size() - frame;
}

void setBrush(QWidget *widget, QPalette::ColorRole role, const QBrush &brush)
{
    QPalette palette = widget->palette();
    palette.setBrush(role, brush);
    widget->setPalette(palette);
}

} // namespace

// The start

BixDialog::BixDialog(QWidget *parent)
    : PanelDialog(parent)
{
    userDir = userDirectory();
    refuseRoot(windowTitle());
    if (OwnFile::isOwnDirectory(userDir))
        askAboutCollection();
    else
        tellOfForeignDirectory();

    setFixedSize(usualSize());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setBackground();
    // Before there are children, each of which would be told, and look for its rules anew.
    setStyleSheet(QStringLiteral("ComboBoxEx { padding-left: 4px } "));
    createPages();
    collector = std::make_unique<SettingsCollector>(pages);
    publication = std::make_unique<Publication>();
    labels = std::make_unique<OptionLabels>(pages);
    settling.setSingleShot(true);
    connect(&settling, &QTimer::timeout, this, &BixDialog::settle);
    watchQueues();
    createButtons();
    createProfileDialogs();
    createTabs();
    report = std::make_unique<ChangeReport>(pages, *labels, notice, tabWidget);
    const auto restore = [this] { report->restore(); };
    connect(notice, &QLabel::linkActivated, this, restore);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this, restore);
    areas = std::make_unique<KeyboardAreas>(
        tabWidget, notice,
        QList<QPushButton *>{saveAsButton, profilesButton, buttonBox->button(QDialogButtonBox::Ok),
                             buttonBox->button(QDialogButtonBox::Cancel),
                             buttonBox->button(QDialogButtonBox::Apply), logoButton});
    Mnemonics::give({buttonBox->button(QDialogButtonBox::Ok),
                     buttonBox->button(QDialogButtonBox::Apply),
                     buttonBox->button(QDialogButtonBox::Cancel), saveAsButton, profilesButton});
    new FocusRing(this);
    createLayout();
    setWindowTitle(tr("Brixola Press Desk"));
    styleTabs();
    fitToScreen();
    buttonBox->button(QDialogButtonBox::Ok)->clearFocus();
    // The focus has to be somewhere when the window is activated, and not in the printer table,
    // where a stray key would select a printer.
    tabWidget->tabBar()->setFocus();
}

BixDialog::~BixDialog() = default;

void BixDialog::refuseRoot(const QString &title)
{
    if (geteuid() != 0)
        return;
    QMessageBox box;
    box.setWindowTitle(tr("Press Desk"));
    box.setText(tr("Please do not run %1 as root.").arg(title));
    box.exec();
    std::exit(0);
}

void BixDialog::tellOfForeignDirectory()
{
    QString directory = userDir;
    if (directory.endsWith(QLatin1Char('/')))
        directory.chop(1);
    QMessageBox box;
    box.setWindowTitle(tr("Press Desk"));
    box.setTextFormat(Qt::PlainText);
    box.setText(
        tr("The folder %1 is a link, or it belongs to somebody else (%2). Your settings are "
           "neither read from it nor saved in it. Ask an administrator to remove it or to "
           "make you its owner.")
            .arg(directory, OwnFile::ownerName(userDir)));
    box.exec();
}

void BixDialog::askAboutCollection()
{
    if (QFile::exists(userDir + QStringLiteral("Settings")))
        return;
    TelemetryDialog question(this);
    // This window, which it would be put on, doesn't show yet.
    question.move(QApplication::primaryScreen()->availableGeometry().center() -
                  question.rect().center());
    question.exec();
}

// The parts of the window

QSize BixDialog::usualSize() const
{
    const QSize size(800, 735);
    return screenRoom(style()).expandedTo(size).boundedTo(size * PanelLook::typeFactor(font()));
}

void BixDialog::setBackground()
{
    // Through an icon, which finds the picture for the screen's scale factor but never enlarges it.
    QPixmap picture = QIcon(QStringLiteral(":/icons/background")).pixmap(size());
    const double factor = picture.devicePixelRatioF();
    picture = picture.scaled(size() * factor, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(factor);
    setBrush(this, QPalette::Window, picture);
}

QWidget *BixDialog::pageParent()
{
    return tabWidget->findChild<QStackedWidget *>();
}

void BixDialog::createPages()
{
    tabWidget = new BixTabWidget(this);
    tabWidget->setTabPosition(QTabWidget::West);
    tabWidget->setIconSize(QSize(30, 30));

    // In tab order.
    pages.append(printerTab = new PrinterTab(this));
    pages.append(generalTab = new GeneralTab(this));
    pages.append(new BookletTab(this));
    pages.append(new FinishingTab(this));
    pages.append(imagingTab = new ImagingTab(this));
    pages.append(new PublishingTab(this));
    pages.append(new JobTab(this));
    pages.append(new WatermarkTab(this));
    userLoginTab = new UserLoginTab(this);
    userLoginTab->hide(); // or it would paint over the window
    pages.append(new FKPTab(this));

    aboutDialog = new AboutDialog(this);

    // After the Printer page's own connection, which has taken over the selected printer by then.
    connect(printerTab->table(), &QTableWidget::currentCellChanged, this,
            &BixDialog::printerChanged);
}

void BixDialog::createButtons()
{
    notice = new NoticeLine(this);
    saveAsButton = new QPushButton(tr("Save As..."), this);
    profilesButton = new QPushButton(tr("Profiles") + QStringLiteral("..."), this);

    buttonBox = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel, this);
    buttonBox->setFocusPolicy(Qt::NoFocus);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &BixDialog::accept);
    connect(buttonBox->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &BixDialog::slotButtonApply);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &BixDialog::reject);
    const QList<QAbstractButton *> boxButtons = buttonBox->buttons();
    for (QAbstractButton *button : boxButtons) {
        auto *pushButton = qobject_cast<QPushButton *>(button);
        pushButton->setFocusPolicy(Qt::NoFocus);
        pushButton->setAutoDefault(false);
        pushButton->setDefault(false);
    }

    logoButton = new QPushButton(this);
    logoButton->setAccessibleName(tr("About"));
    logoButton->setIcon(Icons::icon(QStringLiteral(":/icons/logo")));
    logoButton->setIconSize(QSize(170, 32));
    // The style moves the picture to the left by half of its padding; from this width on it is
    // whole.
    logoButton->setMinimumWidth(320);
    logoButton->setStyleSheet(QStringLiteral("padding-left: -150px; border: none; outline: none;"));
    connect(logoButton, &QPushButton::clicked, aboutDialog, &AboutDialog::exec);

    for (QPushButton *button : {saveAsButton, profilesButton, logoButton}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
        button->setEnabled(button == logoButton);
    }
    setButtonsEnabled(false);
    explainButtons();
}

void BixDialog::createProfileDialogs()
{
    profileDialog = new ProfileDialog(this, collector.get());
    profileSaveDialog = new ProfileSaveDialog(collector.get(), this);
    connect(profilesButton, &QPushButton::clicked, profileDialog, &ProfileDialog::fillProfileTable);
    connect(profilesButton, &QPushButton::clicked, profileDialog, &ProfileDialog::show);
    connect(saveAsButton, &QPushButton::clicked, profileSaveDialog, &ProfileSaveDialog::show);
}

void BixDialog::createTabs()
{
    for (Tab *page : qAsConst(pages))
        tabWidget->addTab(page, page->tabIcon(), page->tabName());
    enableTabs();
    sheetView = new SheetView(tabWidget, pages, *labels);
    connect(tabWidget, &QTabWidget::currentChanged, this, &BixDialog::settle);
}

void BixDialog::createLayout()
{
    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetNoConstraint);
    // The window's size is fixed. What the pages would like must not move the buttons below them,
    // as it grows with every page that is shown for the first time.
    tabWidget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    grid->addWidget(tabWidget, 1, 1, 1, 8);
    // In all columns, whatever room they share out: it stops short of the buttons by itself.
    grid->addWidget(notice, 2, 1, 1, 8);
    notice->setContentsMargins(0, 0,
                               saveAsButton->sizeHint().width() +
                                   profilesButton->sizeHint().width() + 3 * grid->spacing(),
                               0);
    grid->addWidget(saveAsButton, 2, 6, 1, 2, Qt::AlignRight);
    grid->addWidget(profilesButton, 2, 8, 1, 1);
    grid->addItem(new QSpacerItem(50, 23), 4, 1, 1, 3);
    grid->addWidget(logoButton, 4, 1, 1, 3, Qt::AlignBottom | Qt::AlignLeft);
    grid->addWidget(buttonBox, 4, 4, 1, 5, Qt::AlignBottom | Qt::AlignRight);
}

void BixDialog::fitToScreen()
{
    const int room = screenRoom(style()).height();
    if (room >= height())
        return;
    layout()->activate();
    const int pageHeight = tabWidget->height();
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // or it gets the focus that a hidden page had
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    delete layout()->replaceWidget(tabWidget, area);
    area->setWidget(tabWidget);
    area->viewport()->setAutoFillBackground(false);
    tabWidget->setMinimumHeight(pageHeight);
    setFixedSize(width() + area->verticalScrollBar()->sizeHint().width(), room);
    setBackground();
    connect(qApp, &QApplication::focusChanged, area, [area](QWidget *, QWidget *now) {
        // Under a pressed button nothing may move away.
        if (now && QApplication::mouseButtons() == Qt::NoButton && area->isAncestorOf(now) &&
            now != area->widget())
            area->ensureWidgetVisible(now);
    });
}

void BixDialog::styleTabs()
{
    tabWidget->tabBar()->setIconSize(QSize(28, 28));
    setBrush(tabWidget, QPalette::Window, QColor(245, 245, 245, 229));
    tabWidget->tabBar()->setStyleSheet(QLatin1String(tabBarStyle));
    tabWidget->setStyleSheet(QLatin1String(tabWidgetStyle));
}
