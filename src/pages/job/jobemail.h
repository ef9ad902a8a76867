#pragma once

#include "pages/job/emailcheck.h"
#include "storage/settingsfile.h"

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class QLabel;
class QLineEdit;
class QWidget;

/// The e-mail notification of the page "Job": where a note about the finished job goes. The page
/// owns the widgets and connects them.
class JobEmail
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    explicit JobEmail(QWidget *page);

    void setTexts();
    /// The address starts empty each time.
    void setOn(bool on);
    /// The address, or "off".
    QString setting() const;

    /// No fault while the button is off.
    EmailFault fault() const;
    /// The message for a fault; empty for none.
    static QString message(EmailFault fault);
    /// Shows the message for a double quote below the field, or hides it.
    void showQuoteError(bool on);
    /// True for a fault that holds back OK. A message is one while it stands on the label.
    bool holdsBack() const;

    /// Greys what the printer can't do.
    void updateAvailability();
    /// From the printer's settings file.
    void load();
    void save(Settings *settings) const;

    QLabel *label;
    BixCheckBoxButton *button;
    QLineEdit *edit;
    QLabel *error;

private:
    void show(bool on, const QString &address);
};
