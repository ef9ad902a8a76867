#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class OptionChoice;
class Tab;
class bOption;

/// What a person calls options and values: by the labels of the pages and the texts of the PPD,
/// never by a keyword.
class OptionLabels
{
    Q_DECLARE_TR_FUNCTIONS(OptionLabels)

public:
    /// The pages in tab order; they are borrowed.
    explicit OptionLabels(const QList<Tab *> &pages)
        : pages(pages)
    {
    }

    /// "Media type": as the first page calls it that has a control for it, else the PPD's text.
    QString label(const bOption &option) const;
    /// "Transparency"; "On" or "Off" where the PPD says no more than true or false.
    static QString value(const OptionChoice &choice);
    /// "Media type: Transparency"; the label alone for a switch that is on.
    QString phrase(const OptionChoice &choice) const;
    /// "Media type: Transparency", "Staple: On".
    QString fullPhrase(const OptionChoice &choice) const;
    /// "Transparency" where the value says enough; the phrase for a switch, on or off.
    QString shortPhrase(const OptionChoice &choice) const;

    /// Those of the options that any page shows, in the order of the pages, each once.
    QStringList inOrder(const QStringList &keywords) const;
    /// The options among these that follow a switch among them.
    QStringList followersAmong(const QStringList &keywords) const;

    /// Whether the value says that something is not done.
    static bool isOff(const OptionChoice &choice);
    /// Whether the policy server decides on the option.
    static bool isPolicy(const bOption &option);

private:
    QList<Tab *> pages;
};
