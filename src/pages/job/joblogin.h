#pragma once

#include "storage/settingsfile.h"

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class QLabel;
class QLineEdit;
class QWidget;

/// The user login of the page "Job": a name and password that go with the job. The page owns the
/// widgets and connects them.
class JobLogin
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    explicit JobLogin(QWidget *page);

    void setTexts();
    void clear();

    /// The message for what is wrong; empty if nothing is.
    QString fault() const;
    /// True for a fault that holds back OK.
    bool holdsBack() const;

    /// From the printer's settings file.
    void loadLoginSettings();
    void save(Settings *settings) const;

    QLabel *label;
    BixCheckBoxButton *button;
    QLabel *nameLabel;
    QLineEdit *nameEdit;
    QLabel *passwordLabel;
    QLineEdit *passwordEdit;
};
