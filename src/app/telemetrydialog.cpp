#include "app/telemetrydialog.h"

#include "storage/ownfile.h"
#include "storage/settingsfile.h"
#include "widgets/mnemonics.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

const QLatin1String consent("Telemetry=True");
const QLatin1String refusal("Telemetry=False");

/// The policy in the language of a locale such as "de_DE", in English if there is none.
QString policyText(const QString &localeName)
{
    const QStringList translations{QStringLiteral("fr"), QStringLiteral("de"), QStringLiteral("it"),
                                   QStringLiteral("pt"), QStringLiteral("es")};
    const QString language = localeName.section(QLatin1Char('_'), 0, 0);
    QString resource = QStringLiteral(":/strings/policy");
    if (translations.contains(language))
        resource += QLatin1Char('_') + language;
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Writes the line over the start of the user's "Settings" file.
void recordAnswer(const QByteArray &line)
{
    const QString path = settingsPath();
    QFile settings;
    QByteArray text;
    if (OwnFile::openToRead(&settings, path))
        text = settings.readAll();
    else if (OwnFile::isForeign(path) || QFile::exists(path))
        return;
    if (settings.error() == QFileDevice::NoError)
        OwnFile::replace(path, text.replace(0, line.size(), line));
}

} // namespace

TelemetryDialog::TelemetryDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Data Collection"));
    setFixedSize(650, 450);

    auto *request = new QLabel(tr("We ask you to help improve our application and/or products by "
                                  "providing usage information."),
                               this);
    request->setWordWrap(true);
    const QString promise = tr("The application DOES NOT collect any personal data.");
    auto *promiseLabel =
        new QLabel(QStringLiteral("<b>") + promise.toHtmlEscaped() + QStringLiteral("</b>"), this);
    promiseLabel->setTextFormat(Qt::RichText);
    promiseLabel->setWordWrap(true);
    auto *policyLabel = new QLabel(
        tr("Regarding data collection, please read the PRIVACY POLICY as follows."), this);
    policyLabel->setWordWrap(true);

    auto *policy = new QTextEdit(this);
    policy->setReadOnly(true);
    policy->setAutoFormatting(QTextEdit::AutoNone);
    policy->setPlainText(policyText(QLocale::system().name()));
    policyLabel->setBuddy(policy); // names it for screen readers

    yesButton = new QRadioButton(tr("Yes, I want to help improve your products"), this);
    noButton = new QRadioButton(tr("No, I do not wish to take part in this feature"), this);

    auto *buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &TelemetryDialog::accept);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &TelemetryDialog::reject);
    Mnemonics::give(buttonBox->buttons() + QList<QAbstractButton *>{yesButton, noButton});

    auto *layout = new QVBoxLayout(this);
    for (QWidget *widget : std::initializer_list<QWidget *>{request, promiseLabel, policyLabel,
                                                            policy, yesButton, noButton, buttonBox})
        layout->addWidget(widget);
}

bool TelemetryDialog::isTelemetryOn() const
{
    QFile settings;
    if (!OwnFile::openToRead(&settings, settingsPath()))
        return true;
    return settings.readAll().contains(consent.data());
}

int TelemetryDialog::exec()
{
    (isTelemetryOn() ? yesButton : noButton)->setChecked(true);
    return QDialog::exec();
}

void TelemetryDialog::accept()
{
    recordAnswer(QByteArray((yesButton->isChecked() ? consent : refusal).data()) + '\n');
    QDialog::accept();
}
