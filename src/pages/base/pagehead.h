#pragma once

/// What the list of pages shows of a page, and when it does.
struct PageHead
{
    enum Availability
    {
        Always,
        WithPrinter,  ///< while a printer is selected
        WithAnOption, ///< while one is selected that has an option of the page
        Never,
    };

    /// Translated in the context of the page's class; empty for a page without a name.
    const char *title = "";
    /// Path of the picture; with "-constraint" behind it, of that for a page with a mark.
    const char *icon = ":/icons/tab-basic";
    Availability availability = WithPrinter;
};
