#pragma once

#include "pages/job/jobgroup.h"

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class QLabel;
class QLineEdit;
class QWidget;

/// The user login of the page "Job": a name and password that go with the job. The page owns the
/// widgets and connects them.
class JobLogin : public JobGroup
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    explicit JobLogin(QWidget *page);

    void setTexts() override;
    void clear();

    QString fault() const override;
    bool holdsBack() const override;
    void load() override;
    void save(Settings *settings) const override;

    BixCheckBoxButton *button;
    QLabel *nameLabel;
    QLineEdit *nameEdit;
    QLabel *passwordLabel;
    QLineEdit *passwordEdit;
};
