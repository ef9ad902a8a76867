#include "widgets/spokenwords.h"

#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/constraintmark.h"
#include "widgets/spoken.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QVariant>

namespace {

/// A text without the marks of letters to be pressed with Alt and without breaks of its lines.
QString inOneLine(QString text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
    return text.replace(mnemonic, QStringLiteral("\\1")).simplified();
}

/// The title of a page of a tab widget; null for other widgets.
QString pageTitle(const QWidget *widget)
{
    const QWidget *stack = qobject_cast<const QStackedWidget *>(widget->parentWidget());
    const auto *tabs = stack ? qobject_cast<const QTabWidget *>(stack->parentWidget()) : nullptr;
    return tabs ? inOneLine(tabs->tabText(tabs->indexOf(const_cast<QWidget *>(widget))))
                : QString();
}

/// What a list, table or scroll area goes by that fills a page or a dialog.
QString titleAround(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const QComboBox *>(widget))
            return Spoken::nameOf(widget); // whose list it is, in a window of its own
        QString title = widget->isWindow() ? widget->windowTitle() : pageTitle(widget);
        if (!title.isEmpty())
            return title;
    }
    return QStringLiteral("");
}

QString labelText(const QLabel *label)
{
    return Spoken::isPicture(label) ? QStringLiteral("")
                                    : ConstraintMark::plainText(label).simplified();
}

/// What the widget itself says; null for a kind that is named well without this.
QString ownName(const QWidget *widget)
{
    if (const auto *group = qobject_cast<const BixButtonGroup *>(widget))
        return Spoken::withoutColon(group->title());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        const QString text = Spoken::withoutColon(inOneLine(button->text()));
        return text.isEmpty() ? widget->accessibleName() : text;
    }
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        return Spoken::withoutColon(inOneLine(box->title()));
    if (qobject_cast<const QTextEdit *>(widget))
        return QString();
    if (qobject_cast<const QAbstractItemView *>(widget) ||
        qobject_cast<const QScrollArea *>(widget))
        return titleAround(widget);
    // Frames have nothing but the name that the code knows them by.
    const bool isFrame = widget->metaObject() == &QFrame::staticMetaObject ||
                         qobject_cast<const QDialogButtonBox *>(widget);
    return isFrame ? QStringLiteral("") : QString();
}

bool isMarked(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->textFormat() == Qt::RichText &&
               label->text().contains(QLatin1String(ConstraintMark::icon));
    const auto *box = qobject_cast<const QCheckBox *>(widget);
    return box && !box->icon().isNull();
}

QString plain(const QString &text)
{
    return (Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text)
        .simplified();
}

/// The explanation of one widget, that of a mark if it has no other.
QString explanationOf(const QWidget *widget)
{
    const QString text =
        plain(widget->accessibleDescription().isEmpty() ? widget->toolTip()
                                                        : widget->accessibleDescription());
    return text.isEmpty() && isMarked(widget) ? Spoken::conflict() : text;
}

} // namespace

QString Spoken::nameOf(const QWidget *widget)
{
    if (qobject_cast<const BixCheckBoxButton *>(widget))
        return QStringLiteral(""); // its check box has the name
    const auto *whole = qobject_cast<const BixCheckBoxButton *>(widget->parentWidget());
    const QVariant given = givenName(whole ? whole : widget);
    if (given.isValid())
        return given.toString();
    if (whole)
        return withoutColon(inOneLine(whole->label()));
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return labelText(label);
    QString title = pageTitle(widget);
    if (!title.isEmpty())
        return title;

    QStringList words;
    const QList<QWidget *> labels = labelsOf(widget);
    for (const QWidget *label : labels)
        words.append(withoutColon(nameOf(label)));
    if (words.isEmpty() || qobject_cast<const QAbstractButton *>(widget))
        words.append(ownName(widget));
    return words.size() == 1 ? words.first() : words.join(QLatin1Char(' '));
}

QString Spoken::descriptionOf(const QWidget *widget)
{
    // Newer versions of Orca look for it here and not at the label.
    if (const auto *message = qobject_cast<const QMessageBox *>(widget))
        return plain(message->text());
    QList<const QWidget *> sources{widget};
    const QWidget *whole = qobject_cast<const BixCheckBoxButton *>(widget->parentWidget());
    if (whole)
        sources.append(whole);
    const QList<QWidget *> labels = labelsOf(whole ? whole : widget);
    for (const QWidget *label : labels)
        sources.append(label);
    if (qobject_cast<const BixButtonGroup *>(widget))
        sources.append(widget->findChild<QLabel *>());

    const QString name = nameOf(widget);
    QStringList sentences;
    for (const QWidget *source : qAsConst(sources)) {
        const QString sentence = explanationOf(source);
        if (!sentence.isEmpty() && sentence != name && !sentences.contains(sentence))
            sentences.append(sentence);
    }
    return sentences.join(QLatin1Char(' '));
}

QString Spoken::conflict()
{
    return QCoreApplication::translate("Spoken", "In conflict with other settings");
}

bool Spoken::isPicture(const QLabel *label)
{
    return label->text().isEmpty() && !label->pixmap(Qt::ReturnByValue).isNull();
}

QString Spoken::withoutColon(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.endsWith(QLatin1Char(':')) ? trimmed.chopped(1).trimmed() : trimmed;
}
