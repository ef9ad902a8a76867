#include "pages/base/pagewidgets.h"

#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"
#include "widgets/spokenwords.h"

#include <QDialog>
#include <QLabel>

namespace PageWidgets {

QString withColon(const QString &text)
{
    return text + QLatin1Char(':');
}

QString withoutColon(const QString &text)
{
    return Spoken::withoutColon(text);
}

LabeledComboBox labeledComboBox(QWidget *page, const char *labelName, const char *boxName,
                                const QString &labelText, int width)
{
    LabeledComboBox pair;
    pair.label = named(new QLabel(labelText, page), labelName);
    pair.box = named(new ComboBoxEx(page), boxName);
    if (width > 0)
        pair.box->setUsualWidth(width);
    return pair;
}

void addButton(BixButtonGroup *group, const ButtonRow &row, Translate tr)
{
    group->addButton(
        tr(row.name, nullptr, -1), QLatin1String(row.icon), QLatin1String(row.name),
        QString::fromLatin1(row.choiceKeys).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

void simplifyTitleBar(QDialog *dialog)
{
    dialog->setWindowFlags(dialog->windowFlags() &
                           ~(Qt::WindowContextHelpButtonHint | Qt::WindowMinMaxButtonsHint));
}

} // namespace PageWidgets
