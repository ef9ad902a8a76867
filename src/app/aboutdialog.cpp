#include "app/aboutdialog.h"

#include "app/licensedialog.h"
#include "app/telemetrydialog.h"
#include "app/version.h"
#include "widgets/mnemonics.h"
#include "widgets/spoken.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr QSize pictureSize(480, 300);
constexpr int textLeft = 125;

struct PictureText
{
    int baseline;
    QString text;
    QColor color;
    QFont font;
};

} // namespace

AboutDialog::AboutDialog(QWidget *parent)
    : QDialog(parent)
    , picture(new QLabel(this))
    , buttonBox(new QDialogButtonBox(this))
    , licenseDialog(new LicenseDialog(this))
    , telemetryDialog(new TelemetryDialog(this))
{
    setWindowTitle(tr("About"));
    createPicture();
    createButtons();

    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    grid->addWidget(picture, 0, 0);
    grid->addWidget(buttonBox, 1, 0);
}

void AboutDialog::createPicture()
{
    const PictureText texts[] = {
        {145, tr("Press Desk"), Qt::white, QFont(QStringLiteral("Myriad pro"), 14)},
        {175, tr("Version") + QLatin1Char(' ') + QLatin1String(pressDeskVersion), Qt::black,
         QFont(QStringLiteral("Tahoma"), 10)},
        {240, QStringLiteral("\u00a9 2026 The Brixola Press Desk developers"), Qt::white,
         QFont(QStringLiteral("Tahoma"), 9)},
    };

    // Through an icon, which finds the drawing for the screen's scale factor.
    QPixmap pixmap = QIcon(QStringLiteral(":/icons/about-background")).pixmap(pictureSize);
    QPainter painter(&pixmap);
    QStringList spoken;
    for (const PictureText &line : texts) {
        painter.setFont(line.font);
        painter.setPen(line.color);
        painter.drawText(textLeft, line.baseline, line.text);
        spoken.append(line.text);
    }
    painter.end();

    picture->setMinimumSize(pictureSize);
    picture->setAlignment(Qt::AlignCenter); // the buttons below it may be wider
    picture->setPixmap(pixmap);
    picture->setAccessibleName(spoken.join(QStringLiteral(", ")));
    Spoken::setName(picture, picture->accessibleName());
}

void AboutDialog::createButtons()
{
    const QString dots = QStringLiteral("...");
    QPushButton *collection =
        buttonBox->addButton(tr("Data collection") + dots, QDialogButtonBox::HelpRole);
    QPushButton *notices =
        buttonBox->addButton(tr("Legal notices") + dots, QDialogButtonBox::HelpRole);
    QPushButton *closing = buttonBox->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    // Or Return would open the first of the other two.
    closing->setDefault(true);

    connect(collection, &QPushButton::clicked, telemetryDialog, &TelemetryDialog::exec);
    connect(notices, &QPushButton::clicked, licenseDialog, &LicenseDialog::exec);
    connect(closing, &QPushButton::clicked, this, &AboutDialog::close);
    Mnemonics::give({closing, collection, notices});
}
