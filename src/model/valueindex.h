#pragma once

#include "model/optionchoice.h"

#include <QByteArray>

#include <string_view>
#include <unordered_map>
#include <vector>

/// The values of options by the bytes of their names (ISO Latin 1), as the rules of a PPD spell
/// them: so the names of thousands of rules are looked up without making a QString of each.
///
/// Borrows the options. Keeps step with a store if it gets the same ones in the same order.
class ValueIndex
{
public:
    /// An option with its choices of now; under a known keyword it replaces the one before.
    void add(bOption *option);
    /// The option's first choice of this name; both pointers are null for unknown names.
    OptionRef find(std::string_view option, std::string_view choice) const;

private:
    using Choices = std::unordered_map<std::string_view, OptionRef>;

    std::string_view keep(const QString &name);

    std::unordered_map<std::string_view, Choices> options;
    std::vector<QByteArray> names; ///< what the keys point into
};
