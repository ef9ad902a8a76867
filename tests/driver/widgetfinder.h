#pragma once

#include <QList>
#include <QString>

class QWidget;

/// The widget that a word of a script names, or null.
///
/// A word is an accessible name; or a QDialogButtonBox::StandardButton, such as "Apply"; or what a
/// button says, without mnemonic; or a class or base class, such as "QMessageBox". Windows are
/// searched from front to back, so that a modal dialog comes first, and shown widgets before hidden
/// ones. In that order of kinds: a name found in any window goes before a text.
QWidget *findWidget(const QString &word);

/// The same for shown widgets only.
QWidget *findVisibleWidget(const QString &word);

/// The place in the tab bar of the page in the background that the widget is on, or -1.
int backgroundPage(const QString &word);

/// Says why findVisibleWidget() found nothing.
QString notFoundMessage(const QString &word);

/// All top-level widgets: pop-up, modal window, active window, other shown ones, hidden ones.
QList<QWidget *> windowsFrontToBack();

/// The shown window that the user has to deal with now, or null.
QWidget *frontWindow();

/// A text without the ampersands that mark mnemonics.
QString withoutMnemonic(QString text);
