#pragma once

#include "model/queuewatch.h"
#include "pages/base/paneldialog.h"
#include "storage/settingsfile.h"

#include <QList>
#include <QTimer>

#include <memory>

class AboutDialog;
class BixTabWidget;
class ChangeReport;
class GeneralTab;
class ImagingTab;
class KeyboardAreas;
class NoticeLine;
class OptionLabels;
class PrinterTab;
class ProfileDialog;
class ProfileSaveDialog;
class Publication;
class QDialogButtonBox;
class QPushButton;
class SettingsCollector;
class SheetView;
class Tab;
class UserLoginTab;

/// The main window: the option pages, and the three passes that everything runs through.
///
/// A printer change reloads all pages from the printer's settings file. A constraint pass follows
/// each change: pages move off blocked values, which may block others, so it repeats itself until
/// nothing moves, ten times at most; any mark left holds back OK and Apply. Apply publishes.
///
/// After each pass the queues of the print system are looked at, beside what goes on, and compared
/// with the known ones; a printer that is gone is unselected. Selecting a printer and Apply look by
/// themselves: after a call that may lead there, `currentStore` may be null.
class BixDialog : public PanelDialog
{
    Q_OBJECT
    Q_PROPERTY(bool looking READ isLooking)

public:
    explicit BixDialog(QWidget *parent = nullptr);
    ~BixDialog() override;

    QWidget *pageParent() override;
    void beginMoves() override;
    void endMoves() override;
    void recordInstalledValues() override;
    void showApplied() override;
    /// Whether a look at the queues is under way, or due at once, that a pass has asked for.
    bool isLooking() const;

public slots:
    void writeTolpoptions() override;
    void setConstraints() override;
    void toggleColorMode() override;

private slots:
    void accept() override;
    void unselectPrinters();
    void slotButtonApply();
    void printerChanged(int row, int collumn, int previousRow, int previousCollumn);
    /// Says what a click has led to, when all its passes are through.
    void settle();

public slots:
    void profileChanged() override;

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /// Never moves the focus to another widget of this window, whatever asks for it.
    bool focusNextPrevChild(bool next) override;

private:
    static void refuseRoot(const QString &title);
    static void tellOfForeignDirectory();
    void askAboutCollection();
    void setBackground();
    void createPages();
    void createButtons();
    void createProfileDialogs();
    void createTabs();
    void createLayout();
    void styleTabs();
    /// In pixels; larger in larger type, as far as the screen has room.
    QSize usualSize() const;
    /// Where the screen is too low for the window, lets the pages scroll, so that the buttons
    /// below them stay in sight.
    void fitToScreen();
    void enableTabs();
    void setButtonsEnabled(bool on);
    void setProfileButtonsEnabled(bool on);
    /// Says on the buttons below the pages what holds them back.
    void explainButtons();
    /// For a queue that the print system has, or empty.
    void showUnreadablePpd(const QString &queue);
    void changeInstalledOptions();
    /// Runs what publication takes; meanwhile the window is drawn and the user can only wait.
    /// `settings` must stay as they are for as long. False if they aren't published.
    bool publish(const QString &printer, const Settings &settings);
    void showFailedPublication();
    void watchQueues();
    /// Takes the answer to a look, or puts it off while a dialog is open.
    void takeQueueNames(PrintSystem state, const QSet<QString> &names);
    /// Looks at the queues at once, and shows if they are others now. True if they are.
    bool checkPrinters();
    void tellSilence(PrintSystem state);
    /// Lists the queues anew, and unselects a printer that is gone.
    void showOtherQueues();
    static bool isSelectedPrinterKnown();
    /// One round over all pages; true if another one is due.
    bool runPass();
    bool hasMarks() const;
    void markPage(int index);

    int constraintPasses = 0; ///< how often setConstraints() has repeated itself in a row
    bool passRunning = false;
    bool passDue = false;          ///< something moved while a pass was running
    bool reloadPrinterTab = false; ///< only during the reload of a printer change
    bool published = false;        ///< the last publication reached its end
    NoticeLine *notice;
    QPushButton *saveAsButton;
    QPushButton *profilesButton;
    QPushButton *logoButton;
    ProfileDialog *profileDialog;
    ProfileSaveDialog *profileSaveDialog;
    BixTabWidget *tabWidget;
    SheetView *sheetView;
    QDialogButtonBox *buttonBox;
    QList<Tab *> pages; ///< all shown pages in tab order
    AboutDialog *aboutDialog;
    PrinterTab *printerTab;
    GeneralTab *generalTab;
    ImagingTab *imagingTab;
    UserLoginTab *userLoginTab; ///< in no list: its settings reach no file, and it never shows
    std::unique_ptr<KeyboardAreas> areas;
    std::unique_ptr<OptionLabels> labels;
    std::unique_ptr<ChangeReport> report;
    QueueWatch queueWatch;
    QTimer retry;    ///< runs out when an answer that was put off is due
    QTimer settling; ///< runs out when the click is over that led to a pass
    std::unique_ptr<SettingsCollector> collector;
    std::unique_ptr<Publication> publication;
};
