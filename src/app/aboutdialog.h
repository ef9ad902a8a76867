#pragma once

#include <QDialog>

class LicenseDialog;
class QDialogButtonBox;
class QLabel;
class TelemetryDialog;

/// Shows the version of the program, and leads on to the legal notices and to the data-collection
/// question.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);

private:
    void createPicture();
    void createButtons();

    QLabel *picture;
    QDialogButtonBox *buttonBox;
    LicenseDialog *licenseDialog;
    TelemetryDialog *telemetryDialog;
};
