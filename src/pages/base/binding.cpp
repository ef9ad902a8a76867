#include "pages/base/binding.h"

#include "pages/base/checkbinding.h"
#include "pages/base/combobinding.h"
#include "pages/base/groupbinding.h"
#include "pages/base/labelbinding.h"
#include "pages/base/reasontip.h"
#include "pages/base/sliderbinding.h"

#include <QVariant>
#include <QWidget>

const Binding &Binding::of(const QObject *widget)
{
    static const ComboBinding combo;
    static const CheckBinding check;
    static const RadioBinding radio;
    static const CheckButtonBinding checkButton;
    static const GroupBinding group;
    static const SliderBinding slider;
    static const LabelBinding label;
    static const Binding *const all[] = {&combo, &check,  &radio, &checkButton,
                                         &group, &slider, &label};
    static const Binding none;
    for (const Binding *each : all) {
        if (widget && widget->inherits(each->className()))
            return *each;
    }
    return none;
}

void Binding::explain(QWidget *widget, const bOption *, const Reasons &, const QString &grey) const
{
    ReasonTip::setIfGrey(widget, grey);
}

QString Binding::ownText(QWidget *widget, const QString &text)
{
    constexpr char property[] = "ownText";
    if (!widget->property(property).isValid())
        widget->setProperty(property, text);
    return widget->property(property).toString();
}
