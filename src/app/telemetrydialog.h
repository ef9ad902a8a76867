#pragma once

#include <QDialog>

class QRadioButton;

/// Asks whether usage data may be collected, and records the answer in the user's "Settings" file.
/// Nothing is sent: the answer is there for whatever reads it.
class TelemetryDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TelemetryDialog(QWidget *parent = nullptr);

    /// The recorded answer: whether the text "Telemetry=True" stands anywhere in the file. True if
    /// the file can't be read, so that a first question comes up with yes.
    bool isTelemetryOn() const;

public slots:
    /// Preselects the recorded answer and asks.
    int exec() override;

protected slots:
    /// Writes the line "Telemetry=True" or "Telemetry=False" over the start of the file and leaves
    /// whatever reaches beyond it: lines of others may follow. Silent if that can't be done; the
    /// file is as it was then.
    void accept() override;

private:
    QRadioButton *yesButton;
    QRadioButton *noButton;
};
