#pragma once

#include "pages/base/paneldialog.h"

#include <QStringList>

#include <functional>
#include <memory>

class OptionStore;

/// A main dialog that only notes which of its slots ran, in order, and says which printer is
/// selected.
class RecordingDialog : public PanelDialog
{
    Q_OBJECT

public:
    ~RecordingDialog() override;

    /// Makes a printer with these options (see makeStore()) the current one, of which nothing is
    /// saved. Reloads no page.
    void selectPrinter(const QString &options);
    /// The key of the selected choice, as the current printer's model has it.
    static QString current(const QString &keyword);

    /// What ran since the last call.
    QStringList takeCalls();
    /// If set, its answer follows each entry after a blank: what the caller has done by then.
    std::function<QString()> remark;

    void recordInstalledValues() override { note("recordInstalledValues"); }
    void showApplied() override { note("showApplied"); }

public slots:
    void writeTolpoptions() override { note("writeTolpoptions"); }
    void setConstraints() override { note("setConstraints"); }
    void toggleColorMode() override { note("toggleColorMode"); }
    void profileChanged() override { note("profileChanged"); }

private:
    void note(const QString &slot);

    QStringList calls;
    std::unique_ptr<OptionStore> store;
};
