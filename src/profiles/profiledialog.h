#pragma once

#include <QDialog>
#include <QSet>

class PanelDialog;
class ProfileEditDialog;
class ProfileSaveDialog;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTableWidget;
class QTreeWidget;
class SettingsSource;

/// Lists the profiles below the entry for the factory settings, shows what each of them holds, and
/// loads, saves, edits and deletes them.
///
/// Loading copies nothing: `currentCfgPath` points to the profile from then on, until a printer is
/// selected, and the main dialog reloads all pages from it. Deleting points it to the file too,
/// which is gone then. The table is refilled before the dialog shows and after each change.
class ProfileDialog : public QDialog
{
    Q_OBJECT

public:
    /// The source is borrowed.
    ProfileDialog(PanelDialog *dialog, SettingsSource *source);

public slots:
    /// Reads the profiles anew. One that is new becomes the current row; else the current row stays
    /// with its profile, or becomes the factory settings if that is gone.
    void fillProfileTable();
    /// Conflicting settings can't be saved: the button for it shows whether there are any.
    void show();
    void launchProfileEditDialog();
    void loadDetailsFromCell(int row_end, int col_end, int row_start, int col_start);
    void loadProfile();
    void deleteProfile();

private:
    void createTable();
    void createTree();
    void createButtons();
    void createLayout();
    void connectAll(PanelDialog *dialog);
    void enableSaving();
    void addProfileRow(const QString &text);
    int rowToShow(const QSet<QString> &before, const QString &remembered) const;
    QString profileName(int row) const;
    void showDetails(int row);
    void fillDetailTree(int row);
    void tellMissingPpd(const QString &model);

    QTableWidget *profileTable;
    QTreeWidget *detailTree;
    QLabel *missingPpd; ///< below the tree, in room that it takes from it
    QPushButton *saveButton;
    QPushButton *editButton;
    QPushButton *deleteButton;
    QPushButton *applyButton;
    QDialogButtonBox *buttonBox;
    ProfileSaveDialog *saveDialog;
    ProfileEditDialog *editDialog;
};
