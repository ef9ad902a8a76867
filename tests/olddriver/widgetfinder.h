#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

class QWidget;

/// The widget that a request's "target" names, or null.
///
/// The keys of a target, all of which must fit: "name", the accessible name; "class", the class or
/// a base class; "text", what a button says, without mnemonic; "standardButton", the name of a
/// QDialogButtonBox::StandardButton, such as "Apply". Windows are searched from front to back, so
/// that a modal dialog comes first, and shown widgets before hidden ones. An empty target finds
/// nothing.
QWidget *findWidget(const QJsonObject &target);

/// The same for shown widgets only.
QWidget *findVisibleWidget(const QJsonObject &target);

/// Says why findVisibleWidget() found nothing.
QString notFoundMessage(const QJsonObject &target);

/// All top-level widgets: pop-up, modal window, active window, other shown ones, hidden ones.
QList<QWidget *> windowsFrontToBack();

/// The shown window that the user has to deal with now, or null.
QWidget *frontWindow();

/// A text without the ampersands that mark mnemonics.
QString withoutMnemonic(QString text);
