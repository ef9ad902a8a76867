#pragma once

#include "model/optionchoice.h"

#include <QByteArray>

#include <cups/ppd.h>

#include <memory_resource>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The values of options by the bytes of their names (ISO Latin 1), as the rules of a PPD spell
/// them: so the names of thousands of rules are looked up without making a QString of each.
///
/// Borrows the options and the PPD. Keeps step with a store if it gets the same options in the same
/// order: under a known keyword an option replaces the one before.
class ValueIndex
{
public:
    /// An option that was made of `source`, with the same choices.
    void add(bOption *option, const ppd_option_t &source);
    /// An option that no PPD has.
    void add(bOption *option);
    /// The option's first choice of this name; both pointers are null for unknown names.
    OptionRef find(std::string_view option, std::string_view choice) const;

private:
    /// With std::hash the GNU library compares all of a short map's names one by one, and each of
    /// them stands elsewhere in the memory of the PPD.
    struct Hash
    {
        size_t operator()(std::string_view name) const
        {
            return std::hash<std::string_view>()(name);
        }
    };
    template <typename T>
    using ByName = std::pmr::unordered_map<std::string_view, T, Hash>;
    using Choices = ByName<OptionRef>;

    Choices &startOption(std::string_view keyword, int choiceCount);
    std::string_view keep(const QString &name);

    /// All of it goes at once, so nothing is freed piece by piece.
    std::pmr::monotonic_buffer_resource memory;
    ByName<Choices> options{&memory};
    std::vector<QByteArray> names; ///< those that no PPD holds
};
