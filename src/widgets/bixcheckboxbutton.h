#pragma once

#include <QFrame>
#include <QIcon>
#include <QList>
#include <QStringList>

class QCheckBox;
class QGridLayout;
class QPushButton;

/// A check box with a big picture button beside it that means the same. It switches dependent
/// widgets, and knows for each of them the value that it takes while the box is off.
///
/// blockSignals() silences toggled() only: the dependents are switched all the same.
class BixCheckBoxButton : public QFrame
{
    Q_OBJECT

public:
    BixCheckBoxButton(QWidget *parent, const QString &text, const QIcon &icon);

    /// Room for picture and texts: on a crowded page others become narrower first.
    QSize minimumSizeHint() const override;

    /// What the check box is called: its text, or the longer name that screen readers get.
    QString label() const;
    /// What screen readers call both parts.
    void setLabel(const QString &name);
    /// What the picture is called for those who point at it.
    void setPictureToolTip(const QString &text);
    bool isChecked() const;
    void setChecked(bool on);

    QList<QWidget *> dependents() const { return dependents_; }
    bool isDependent(const QWidget *widget) const;
    /// `value` is the text of a choice, or "no_default" for a widget that has no off state.
    void addDependent(QWidget *widget, const QString &value);
    /// Empty for a widget that is no dependent.
    QString offValue(QWidget *widget) const;

    /// Brings the dependents in line after their items were loaded: takes the off-value out of each
    /// combo box, since only the unchecked box stands for it. A dependent without items disables
    /// the whole button.
    void refreshDependents();

signals:
    void toggled(bool state);
    void toggled(int state);

private slots:
    void emit_toggled();
    /// Makes each dependent combo box announce its value again.
    void fire_signals();
    void set_enabled(bool toggle);

private:
    QPushButton *button;
    QCheckBox *checkBox;
    QGridLayout *layout_;
    QList<QWidget *> dependents_;
    QStringList offValues; ///< parallel to `dependents_`
};
