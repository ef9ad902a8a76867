#pragma once

#include <QDialog>

/// Shows the legal notices of the program and of the libraries that it is linked with.
class LicenseDialog : public QDialog
{
    Q_OBJECT

public:
    explicit LicenseDialog(QWidget *parent = nullptr);
};
