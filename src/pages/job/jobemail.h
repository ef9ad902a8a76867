#pragma once

#include "pages/job/emailcheck.h"
#include "pages/job/jobgroup.h"

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class QLabel;
class QLineEdit;
class QWidget;

/// The e-mail notification of the page "Job": where a note about the finished job goes. The page
/// owns the widgets and connects them.
class JobEmail : public JobGroup
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    explicit JobEmail(QWidget *page);

    void setTexts() override;
    /// The address starts empty each time.
    void setOn(bool on);
    /// The address, or "off".
    QString setting() const;

    /// No fault while the button is off.
    EmailFault check() const;
    QString fault() const override { return message(check()); }
    /// The message for a fault; empty for none.
    static QString message(EmailFault fault);
    /// Shows the message for a double quote below the field, or hides it.
    void showQuoteError(bool on);
    /// A message holds back while it stands on the label.
    bool holdsBack() const override;

    /// Greys what the printer can't do.
    void updateAvailability();
    void load() override;
    void save(Settings *settings) const override;

    BixCheckBoxButton *button;
    QLineEdit *edit;
    QLabel *error;

private:
    void show(bool on, const QString &address);
};
