#pragma once

#include <QColor>
#include <QFrame>
#include <QList>
#include <QStringList>

class QAbstractButton;
class QButtonGroup;
class QGridLayout;
class QLabel;
class QPushButton;

/// A row of big picture buttons, one of them selected, under a label that names the group and its
/// selection.
///
/// A button's accessible name is the value it stands for: the translated text of an option's
/// choice. What else tells a choice as the button's own, where texts are in another language, is
/// kept beside it for whoever knows the options. With at least one button, one is always selected
/// after the first setButtonByValue().
class BixButtonGroup : public QFrame
{
    Q_OBJECT

public:
    BixButtonGroup(QWidget *parent, const QString &title);

    /// Enables or disables the whole group; the label follows in colour.
    virtual void setGroupEnabled(bool on);

    /// Changes the name only; the label follows with the next selection.
    void setTitle(const QString &title) { title_ = title; }
    const QString &title() const { return title_; }
    /// Appends a button. `iconPath` names a picture of 50 x 50 pixels that has a partner whose path
    /// ends in "-selected". `untranslatedName` and `choiceKeys` are for untranslatedNames() and
    /// choiceKeysAt().
    void addButton(const QString &name, const QString &iconPath,
                   const QString &untranslatedName = QString(),
                   const QStringList &choiceKeys = QStringList());
    /// Takes all buttons out; they stay children of the group.
    void clearButtons();
    /// Selects the button of that name, or the first one if there is none.
    void setButtonByValue(const QString &text);

    /// The selected button's name; empty if none is.
    QString currentText() const;
    /// The selected button's position, -1 if none is.
    int currentIndex() const;
    int buttonCount() const { return buttons.size(); }
    QStringList buttonNames() const;
    /// The names as they were before their translation; empty for a button that was given none.
    const QStringList &untranslatedNames() const { return untranslatedNames_; }
    /// The keys of the choices that the button at this position may stand for.
    QStringList choiceKeysAt(int position) const { return choiceKeys.value(position); }
    /// The button with this id of the QButtonGroup, or null. Ids are the automatic ones, not
    /// positions.
    QPushButton *button(int index) const;
    /// The button at this position, or null.
    QPushButton *buttonAt(int position) const { return buttons.value(position); }

    /// Only the colour of the label.
    void setLabelEnabled(bool on);
    /// In effect only while the group as a whole is enabled.
    void setEnabledAt(int index, bool on) { enableButton(index, on); }

    void markConstrained(bool on);
    void markWithToolTip(const QString &text);
    void clearMark();

    /// Of a button: arrow keys move the focus and pick nothing, unlike Qt's, since a choice may
    /// change other options and those on the way to it were not asked for.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void buttonClicked(int index);
    void buttonClicked(QAbstractButton *button);

public slots:
    virtual void setButton(int button_index);
    virtual void setButton(QAbstractButton *button);
    void enableButton(QAbstractButton *button, bool enabled);
    void enableButton(int index, bool enabled);
    /// Writes title and selection into the label, without a mark.
    void constructLabel();

private slots:
    void emit_buttonClicked(QAbstractButton *button);

private:
    void moveFocus(QPushButton *from, int step);

    QGridLayout *layout_;
    QButtonGroup *group;
    QList<QPushButton *> buttons;
    // Parallel to `buttons`.
    QStringList imagePaths;
    QStringList untranslatedNames_;
    QList<QStringList> choiceKeys;
    QLabel *label;
    QString title_;
    int nextColumn = 0;
    QColor labelColor; ///< of the enabled label
};
