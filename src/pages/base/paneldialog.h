#pragma once

#include <QDialog>

/// True while no page has a mark. Written by each constraint pass of the main dialog; a profile can
/// be saved only then.
extern bool constraintsClear;

/// What the pages know of the main dialog: the passes that they start through their connections.
class PanelDialog : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

    /// Set by Apply; while it is set OK closes the window afterwards.
    bool closeAfterApply = false;

    /// What the pages are made in: where they will show, for a page that is moved has to work out
    /// all its style sheets anew.
    virtual QWidget *pageParent() { return this; }

    /// Around what moves values by itself, also outside the dialog's own passes: the user is told.
    virtual void beginMoves() {}
    virtual void endMoves() {}

    /// Takes the installed options as the Printer page shows them for what the PPD says.
    virtual void recordInstalledValues() = 0;
    /// Tells the user that the settings are applied, unless the last publication failed.
    virtual void showApplied() = 0;

public slots:
    /// Publishes the settings of all pages for the selected printer.
    virtual void writeTolpoptions() = 0;
    /// Works out conflicts on all pages after a change.
    virtual void setConstraints() = 0;
    /// Brings the colour groups of all pages in line with the one that sends.
    virtual void toggleColorMode() = 0;
    /// Reloads all pages from the current settings file.
    virtual void profileChanged() = 0;

signals:
    /// A constraint pass is through, and `constraintsClear` says what it found.
    void constraintsWorkedOut();
};
