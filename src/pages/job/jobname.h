#pragma once

#include "pages/job/jobgroup.h"

#include <QCoreApplication>
#include <QString>

class ComboBoxEx;
class QLabel;
class QLineEdit;
class QWidget;

/// The job name of the page "Job", and what becomes of an earlier job with the same name. The page
/// owns the widgets and connects them.
class JobName : public JobGroup
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

    void setTexts() override;
    /// Frees the name's field for a custom name, or empties and greys it.
    void setMode(int mode);
    bool isCustom() const;
    bool replacesFile() const;

    QString fault() const override;
    bool holdsBack() const override;
    /// Greys what the printer can't do.
    void updateAvailability();
    void load() override;
    void save(Settings *settings) const override;

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
