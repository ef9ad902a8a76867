#include "profiles/profiledialog.h"

#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "pages/base/reasontip.h"
#include "profiles/profileeditdialog.h"
#include "profiles/profilereader.h"
#include "profiles/profilesavedialog.h"
#include "profiles/profilestore.h"
#include "storage/settingsfile.h"
#include "widgets/mnemonics.h"
#include "widgets/spoken.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTextDocument>
#include <QTreeWidget>

namespace {

constexpr int factoryRow = 0;
constexpr int itemWidth = 190;
constexpr int itemIndentation = 12; // half the usual, so that the labels fit in all languages
// A window of fixed size goes by its layout alone: the tree makes it at least 450 by 500.
constexpr QSize leastTreeSize(450, 240);

/// A text as a tool tip, for when its cell cuts it off; names and descriptions are no markup.
QString toolTipFor(const QString &text)
{
    return Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

} // namespace

ProfileDialog::ProfileDialog(PanelDialog *dialog, SettingsSource *source)
    : QDialog(dialog)
    , profileTable(new QTableWidget(this))
    , detailTree(new QTreeWidget(this))
    , missingPpd(new QLabel(this))
    , saveButton(new QPushButton(tr("Save") + QStringLiteral("..."), this))
    , editButton(new QPushButton(tr("Edit..."), this))
    , deleteButton(new QPushButton(tr("Delete"), this))
    , applyButton(new QPushButton(tr("Apply"), this))
    , buttonBox(new QDialogButtonBox(this))
    , saveDialog(new ProfileSaveDialog(source, this))
    , editDialog(new ProfileEditDialog(this))
{
    setWindowTitle(tr("Profiles"));
    PageWidgets::simplifyTitleBar(this);
    setWindowModality(Qt::WindowModal);
    saveDialog->setWindowTitle(tr("Save Profiles"));
    editDialog->setWindowTitle(tr("Edit Profile"));
    createTable();
    createTree();
    createButtons();
    createLayout();
    connectAll(dialog);
}

// Construction

void ProfileDialog::createTable()
{
    profileTable->setAccessibleName(tr("Profiles"));
    profileTable->setColumnCount(1);
    profileTable->horizontalHeader()->hide();
    profileTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    profileTable->verticalHeader()->hide();
    profileTable->verticalHeader()->setDefaultSectionSize(
        profileTable->verticalHeader()->minimumSectionSize());
    profileTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    profileTable->setSelectionMode(QAbstractItemView::SingleSelection);
    profileTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    profileTable->setTabKeyNavigation(false);
}

void ProfileDialog::createTree()
{
    detailTree->setAccessibleName(tr("Detail"));
    Spoken::setName(detailTree, tr("Detail"));
    detailTree->setColumnCount(2);
    detailTree->setHeaderLabels({tr("Item"), tr("Detail")});
    detailTree->setColumnWidth(0, itemWidth);
    detailTree->setIndentation(itemIndentation);
    detailTree->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    detailTree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    detailTree->setMinimumSize(leastTreeSize);
    missingPpd->setAccessibleName(QStringLiteral("lblMissingPpd"));
    missingPpd->setTextFormat(Qt::PlainText);
    missingPpd->setWordWrap(true);
    missingPpd->hide();
}

void ProfileDialog::createButtons()
{
    buttonBox->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    buttonBox->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    buttonBox->addButton(applyButton, QDialogButtonBox::ApplyRole);
    Mnemonics::give(buttonBox->buttons() +
                    QList<QAbstractButton *>{saveButton, editButton, deleteButton});
}

void ProfileDialog::createLayout()
{
    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);

    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(new QLabel(tr("Select profile:"), this), 1, 1);
    grid->addWidget(profileTable, 2, 1, 6, 1);
    grid->addWidget(saveButton, 2, 2);
    grid->addWidget(editButton, 3, 2);
    grid->addWidget(deleteButton, 4, 2);
    grid->addWidget(detailTree, 8, 1, 1, 2);
    grid->addWidget(missingPpd, 9, 1, 1, 2);
    grid->addWidget(line, 10, 1, 1, 2);
    grid->addWidget(buttonBox, 11, 1, 1, 2, Qt::AlignRight);
}

void ProfileDialog::connectAll(PanelDialog *dialog)
{
    connect(profileTable, &QTableWidget::currentCellChanged, this,
            &ProfileDialog::loadDetailsFromCell);

    connect(buttonBox, &QDialogButtonBox::accepted, this, &ProfileDialog::loadProfile);
    connect(buttonBox, &QDialogButtonBox::accepted, dialog, &PanelDialog::profileChanged);
    connect(buttonBox, &QDialogButtonBox::accepted, dialog, &PanelDialog::setConstraints);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &ProfileDialog::close);
    connect(applyButton, &QPushButton::clicked, this, &ProfileDialog::loadProfile);
    connect(applyButton, &QPushButton::clicked, dialog, &PanelDialog::profileChanged);
    connect(applyButton, &QPushButton::clicked, dialog, &PanelDialog::setConstraints);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &ProfileDialog::reject);
    // A mark may go later: the policy server answers in its own time.
    connect(dialog, &PanelDialog::constraintsWorkedOut, this, &ProfileDialog::enableSaving);

    connect(saveButton, &QPushButton::clicked, saveDialog, &ProfileSaveDialog::exec);
    connect(saveButton, &QPushButton::clicked, this, &ProfileDialog::fillProfileTable);
    connect(editButton, &QPushButton::clicked, this, &ProfileDialog::launchProfileEditDialog);
    connect(editButton, &QPushButton::clicked, this, &ProfileDialog::fillProfileTable);
    connect(deleteButton, &QPushButton::clicked, this, &ProfileDialog::deleteProfile);
    connect(deleteButton, &QPushButton::clicked, this, &ProfileDialog::fillProfileTable);
}

void ProfileDialog::show()
{
    enableSaving();
    QDialog::show();
}

void ProfileDialog::enableSaving()
{
    saveButton->setEnabled(constraintsClear);
    ReasonTip::setIfGrey(saveButton, tr("Resolve the marked conflicts first."));
}

// The list

void ProfileDialog::fillProfileTable()
{
    const QString remembered = profileTable->currentRow() < 0
                                   ? QString()
                                   : profileTable->item(profileTable->currentRow(), 0)->text();
    QSet<QString> before;
    for (int row = 0; row < profileTable->rowCount(); ++row)
        before.insert(profileTable->item(row, 0)->text());

    const QSignalBlocker blocker(profileTable);
    profileTable->setRowCount(0);
    addProfileRow(tr("Factory Default"));
    const QStringList names = profileNames();
    for (const QString &name : names)
        addProfileRow(name);
    const int row = rowToShow(before, remembered);
    profileTable->setCurrentCell(row, 0);
    showDetails(row);
}

void ProfileDialog::addProfileRow(const QString &text)
{
    const int row = profileTable->rowCount();
    profileTable->insertRow(row);
    auto *item = new QTableWidgetItem(text);
    item->setToolTip(toolTipFor(text));
    profileTable->setItem(row, 0, item);
}

int ProfileDialog::rowToShow(const QSet<QString> &before, const QString &remembered) const
{
    int found = -1;
    for (int row = 0; row < profileTable->rowCount(); ++row) {
        const QString text = profileTable->item(row, 0)->text();
        if (!before.contains(text))
            return row;
        if (found < 0 && text == remembered)
            found = row;
    }
    return qMax(found, factoryRow);
}

/// Empty for the factory settings and for no row.
QString ProfileDialog::profileName(int row) const
{
    const QTableWidgetItem *item = profileTable->item(row, 0);
    return item && row != factoryRow ? item->text() : QString();
}

// The details

void ProfileDialog::loadDetailsFromCell(int row_end, int, int, int)
{
    showDetails(row_end);
}

void ProfileDialog::showDetails(int row)
{
    const bool isProfile = !profileName(row).isEmpty();
    for (QPushButton *button : {editButton, deleteButton}) {
        button->setEnabled(isProfile);
        ReasonTip::setIfGrey(button, tr("Select a profile of your own first."));
    }
    detailTree->clear();
    if (profileTable->item(row, 0))
        fillDetailTree(row);
}

void ProfileDialog::fillDetailTree(int row)
{
    QString missing;
    const QList<ProfileSection> sections =
        profileSections(row == factoryRow ? factoryDefaults()
                                          : readProfile(profilePath(profileName(row)), &missing));
    for (const ProfileSection &section : sections) {
        auto *heading = new QTreeWidgetItem(detailTree, {section.heading});
        for (const ProfileRow &detail : section.rows) {
            auto *item = new QTreeWidgetItem(heading, {detail.label, detail.text});
            item->setToolTip(0, toolTipFor(detail.label));
            item->setToolTip(1, toolTipFor(detail.text));
        }
    }
    detailTree->expandAll();
    tellMissingPpd(missing);
}

/// \param model as readProfile() tells it
void ProfileDialog::tellMissingPpd(const QString &model)
{
    QString text;
    if (!model.isEmpty())
        text =
            tr("There is no PPD of %1 here to name these values. An administrator can add it with "
               "brixola-press-desk-ppds.")
                .arg(model);
    else if (!model.isNull())
        text = tr("The profile does not say which printer these values are of.");
    missingPpd->setText(text);
    missingPpd->setVisible(!text.isEmpty());
    const int taken =
        missingPpd->isHidden()
            ? 0
            : missingPpd->heightForWidth(qMax(leastTreeSize.width(), detailTree->width())) +
                  layout()->spacing();
    detailTree->setMinimumHeight(leastTreeSize.height() - taken);
}

// What the buttons do

void ProfileDialog::loadProfile()
{
    currentCfgPath = profilePath(profileName(profileTable->currentRow()));
}

void ProfileDialog::deleteProfile()
{
    currentCfgPath = profilePath(profileName(profileTable->currentRow()));
    removeProfile(currentCfgPath);
}

void ProfileDialog::launchProfileEditDialog()
{
    const QString name = profileName(profileTable->currentRow());
    if (name.isEmpty())
        return;
    editDialog->setProfile(name, profileDescription(profilePath(name)));
    editDialog->exec();
}
