#pragma once

#include <QMap>
#include <QStringList>

// What Apply has left, read back.

/// Keyword and key of every option of the current printer.
QMap<QString, QString> selection();

/// What lpoptions keeps, pairs of keyword and value by queue.
QMap<QString, QStringList> published();

/// The pairs that the current settings file has and a queue's published ones lack.
QStringList unpublished(const QStringList &published);

/// Why an applied option comes up with another value, where that is meant; empty if it isn't.
QString whyOtherwise(const QString &keyword, const QString &before, const QString &after);
