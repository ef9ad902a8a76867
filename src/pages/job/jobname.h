#pragma once

#include "storage/settingsfile.h"

#include <QCoreApplication>
#include <QString>

class ComboBoxEx;
class QLabel;
class QLineEdit;
class QWidget;

/// The job name of the page "Job", and what becomes of an earlier job with the same name. The page
/// owns the widgets and connects them.
class JobName
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    /// The entries of `modeBox`.
    enum Mode
    {
        ByApplication,
        Custom,
    };

    explicit JobName(QWidget *page);

    /// Refills both boxes silently; they fall back to their first entries.
    void setTexts();
    /// Frees the name's field for a custom name, or empties and greys it.
    void setMode(int mode);
    bool isCustom() const;
    bool replacesFile() const;

    /// The message for what is wrong; empty if nothing is.
    QString fault() const;
    /// True for a fault that holds back OK.
    bool holdsBack() const;

    /// Greys what the printer can't do.
    void updateAvailability();
    /// From the printer's settings file.
    void load();
    void save(Settings *settings) const;

    QLabel *label;
    QLabel *picture;
    ComboBoxEx *modeBox;
    QLineEdit *edit;
    QLabel *overwriteLabel;
    ComboBoxEx *overwriteBox;
    QLabel *error; ///< of the group, but in no layout

private:
    void loadName();
    void loadOverwrite();
};
