#include "app/bixdialog.h"

#include "app/aboutdialog.h"
#include "app/publication.h"
#include "app/settingscollector.h"
#include "app/telemetrydialog.h"
#include "desktop/desktopsettings.h"
#include "model/optionstore.h"
#include "model/printqueues.h"
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
#include "privileged/passwordprompt.h"
#include "profiles/profiledialog.h"
#include "profiles/profilesavedialog.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixtabwidget.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>

#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int mostRepeats = 10;

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

void setBrush(QWidget *widget, QPalette::ColorRole role, const QBrush &brush)
{
    QPalette palette = widget->palette();
    palette.setBrush(role, brush);
    widget->setPalette(palette);
}

} // namespace

// Construction

BixDialog::BixDialog(QWidget *parent)
    : PanelDialog(parent)
{
    userDir = userDirectory();
    refuseRoot(windowTitle());
    askAboutCollection();

    setFixedSize(800, 735);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setBackground();
    createPages();
    collector = std::make_unique<SettingsCollector>(pages);
    publication = std::make_unique<Publication>();
    createButtons();
    createProfileDialogs();
    createTabs();
    createLayout();
    setWindowTitle(tr("Brixola Press Desk"));
    styleTabs();
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

void BixDialog::askAboutCollection()
{
    if (!QFile::exists(userDir + QStringLiteral("Settings")))
        TelemetryDialog(this).exec();
}

void BixDialog::setBackground()
{
    // Through an icon, which finds the picture for the screen's scale factor.
    setBrush(this, QPalette::Window, QIcon(QStringLiteral(":/icons/background")).pixmap(size()));
}

void BixDialog::createPages()
{
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

    connect(printerTab->table(), &QTableWidget::currentCellChanged, this,
            &BixDialog::printerChanged);
}

void BixDialog::createButtons()
{
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
    logoButton->setIcon(QIcon(QStringLiteral(":/icons/logo")));
    logoButton->setIconSize(QSize(170, 32));
    // The style moves the picture to the left by half of its padding; from this width on it is
    // whole.
    logoButton->setMinimumWidth(320);
    logoButton->setStyleSheet(QStringLiteral("padding-left: -150px; border: none; outline: none;"));
    connect(logoButton, &QPushButton::clicked, aboutDialog, &AboutDialog::exec);
    setStyleSheet(QStringLiteral("ComboBoxEx { padding-left: 4px } "));

    for (QPushButton *button : {saveAsButton, profilesButton, logoButton}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
        button->setEnabled(button == logoButton);
    }
    setButtonsEnabled(false);
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
    tabWidget = new BixTabWidget(this);
    tabWidget->setTabPosition(QTabWidget::West);
    tabWidget->setIconSize(QSize(30, 30));
    for (Tab *page : qAsConst(pages))
        tabWidget->addTab(page, page->tabIcon(), page->tabName());
    enableTabs();
}

void BixDialog::createLayout()
{
    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetNoConstraint);
    grid->addWidget(tabWidget, 1, 1, 1, 8);
    grid->addWidget(saveAsButton, 2, 6, 1, 2, Qt::AlignRight);
    grid->addWidget(profilesButton, 2, 8, 1, 1);
    grid->addItem(new QSpacerItem(50, 23), 4, 1, 1, 3);
    grid->addWidget(logoButton, 4, 1, 1, 3, Qt::AlignBottom);
    grid->addWidget(buttonBox, 4, 4, 1, 5, Qt::AlignBottom | Qt::AlignRight);
}

void BixDialog::styleTabs()
{
    tabWidget->tabBar()->setIconSize(QSize(28, 28));
    setBrush(tabWidget, QPalette::Window, QColor(245, 245, 245, 229));
    tabWidget->tabBar()->setStyleSheet(QLatin1String(tabBarStyle));
    tabWidget->setStyleSheet(QLatin1String(tabWidgetStyle));
}

void BixDialog::showEvent(QShowEvent *event)
{
    PanelDialog::showEvent(event);
    // A button box makes its OK the default as it is shown; here Return must not print settings
    // away from wherever the focus happens to be.
    buttonBox->button(QDialogButtonBox::Ok)->setDefault(false);
}

bool BixDialog::focusNextPrevChild(bool)
{
    return false;
}

void BixDialog::setButtonsEnabled(bool on)
{
    for (const QDialogButtonBox::StandardButton which :
         {QDialogButtonBox::Ok, QDialogButtonBox::Apply})
        buttonBox->button(which)->setEnabled(on);
}

void BixDialog::setProfileButtonsEnabled(bool on)
{
    saveAsButton->setEnabled(on);
    profilesButton->setEnabled(on);
}

void BixDialog::enableTabs()
{
    for (Tab *page : qAsConst(pages))
        tabWidget->setTabEnabled(tabWidget->indexOf(page), page->isAvailable());
    // Enabling alone doesn't lay the bar out anew: a page would come without room, or leave it.
    for (Tab *page : qAsConst(pages))
        tabWidget->setTabText(tabWidget->indexOf(page), page->tabName());
}

// Printer change

void BixDialog::printerChanged(int row, int, int previousRow, int)
{
    if (row == previousRow)
        return;
    setButtonsEnabled(false);
    setProfileButtonsEnabled(false);
    if (!currentStore) {
        printerTab->clearMarks();
        setWindowTitle(tr("Brixola Press Desk"));
        if (!checkPrinters())
            unselectPrinters(); // the queue is there, but its PPD can't be read
        setButtonsEnabled(false);
        return;
    }
    for (Tab *page : qAsConst(pages))
        page->retranslate();
    const QString printer = currentStore->printerName();
    setWindowTitle(tr("Brixola Press Desk") + QStringLiteral(" - ") + printer);
    enableTabs();
    reloadPrinterTab = true;
    profileChanged();
    reloadPrinterTab = false;
    // First contact: publish the defaults, as they are before any conflict is worked out.
    if (!cfgExists(printer))
        writeTolpoptions();
    setConstraints();
    if (currentStore) {
        setButtonsEnabled(true);
        setProfileButtonsEnabled(true);
    }
}

void BixDialog::profileChanged()
{
    if (!currentStore)
        return;
    currentStore->releaseAllConstraints();
    for (Tab *page : qAsConst(pages)) {
        if (page == printerTab) {
            if (reloadPrinterTab)
                printerTab->reload();
            else
                printerTab->refreshPage();
        } else if (tabWidget->isTabEnabled(tabWidget->indexOf(page))) {
            page->reload();
        } else {
            page->resetForDisabled();
        }
    }
}

void BixDialog::unselectPrinters()
{
    currentStore = nullptr; // the object stays with the Printer page
    printerTab->clearPrinterSelection();
    setWindowTitle(tr("Brixola Press Desk"));
    enableTabs();
}

bool BixDialog::checkPrinters()
{
    const QSet<QString> current = queueNames();
    if (current == knownPrinters)
        return false;
    const QSet<QString> gone = QSet<QString>(knownPrinters).subtract(current);
    const bool lost = !currentStore || gone.contains(currentStore->printerName());
    printerTab->reloadPrinterTable();
    if (lost) {
        unselectPrinters();
        QMessageBox box(this);
        box.setWindowTitle(tr("Error"));
        box.setText(tr("It looks like your installed printers have changed.\nReloading list now."));
        box.exec();
    }
    return true;
}

// The constraint pass

void BixDialog::setConstraints()
{
    if (!currentStore)
        return;
    for (Tab *page : qAsConst(pages))
        page->setMarked(false);
    bool changed = false;
    for (Tab *page : qAsConst(pages))
        changed = page->enableOptions() || changed;
    for (int i = 0; i < pages.size(); ++i) {
        if (pages[i]->isAvailable())
            markPage(i);
    }
    constraintsClear = !hasMarks();
    setButtonsEnabled(constraintsClear);
    saveAsButton->setEnabled(constraintsClear);
    if (changed && constraintPasses++ < mostRepeats)
        setConstraints();
    else
        constraintPasses = 0;
    checkPrinters();
}

void BixDialog::markPage(int index)
{
    Tab *page = pages[index];
    page->beforeConstraints();
    page->clearMarks();
    tabWidget->setTabIcon(index, page->tabIcon());
    page->markConstraintWidgets();
    if (page->hasMarks())
        tabWidget->setTabIcon(index, page->tabConstraintIcon());
}

bool BixDialog::hasMarks() const
{
    // Every page is asked, pages that don't show included.
    bool marks = false;
    for (Tab *page : pages)
        marks = page->hasMarks() || marks;
    return marks;
}

void BixDialog::toggleColorMode()
{
    const auto *group = qobject_cast<BixButtonGroup *>(sender());
    if (group && group == generalTab->colorGroup()) {
        imagingTab->colorGroup()->setButton(group->currentIndex());
        imagingTab->clearDialogSettings();
    } else if (group && group == imagingTab->colorGroup()) {
        generalTab->colorGroup()->setButton(group->currentIndex());
    } else {
        // A policy has taken the colours away.
        imagingTab->clearDialogSettings(1);
    }
}

// Apply

void BixDialog::slotButtonApply()
{
    closeAfterApply = true;
    printerTab->reloadPrinterTable();
    if (!currentStore) {
        QMessageBox box(this);
        box.setText(tr("Select a printer."));
        box.exec();
        return;
    }
    if (printerTab->installedOptionsChanged()) {
        changeInstalledOptions();
        return;
    }
    writeTolpoptions();
    showApplied();
}

void BixDialog::changeInstalledOptions()
{
    QString pairs;
    const QHash<QString, QString> settings = printerTab->collectSettings();
    for (auto i = settings.cbegin(); i != settings.cend(); ++i)
        pairs += i.key() + QLatin1Char('=') + i.value() + QLatin1Char(' ');
    // Goes on with the publication by itself.
    std::make_unique<PasswordPrompt>(this, pairs)->exec();
}

void BixDialog::recordInstalledValues()
{
    printerTab->recordInstalledValues();
}

void BixDialog::showApplied()
{
    if (!published)
        return; // its message has been shown
    QMessageBox box(this);
    box.setWindowTitle(tr("Success"));
    box.setText(tr("Settings applied."));
    box.setMinimumSize(100, 100);
    box.exec();
}

void BixDialog::accept()
{
    slotButtonApply();
    if (closeAfterApply)
        close();
}

void BixDialog::writeTolpoptions()
{
    published = false;
    if (!currentStore)
        return;
    const QString printer = currentStore->printerName();
    if (!queueNames().contains(printer)) {
        showFailedPublication();
        return;
    }
    const Settings &settings = collector->collect();
    writeCfg(cfgPath(printer), settings, true);
    if (!publication->run(printer, settings)) {
        showFailedPublication();
        return;
    }
    runDesktopExport(settings);
    published = true;
}

void BixDialog::showFailedPublication()
{
    QMessageBox box(this);
    box.setWindowTitle(tr("Error"));
    box.setText(tr("Error: Printer does not exist or lpoptions failed."));
    box.exec();
    tabWidget->setCurrentIndex(0);
    checkPrinters();
}
