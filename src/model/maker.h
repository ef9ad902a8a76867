#pragma once

/// What makes a printer one of the maker's, and what its PPDs call their hardware.
namespace Maker {

/// A PPD's `*Manufacturer`, exactly one of these.
inline constexpr const char *brands[] = {"Brixola", "NV_RATEX"};
/// Stands in the `*1284DeviceID` of a PPD (IEEE 1284).
inline constexpr const char deviceId[] = "MFG:Brix";
/// One of these stands in a `*cupsFilter` line.
inline constexpr const char *filters[] = {"bixfilter_F", "bixfilter_ras_F", "bixfilter_pdf_F"};
/// What in a filter's name says that it renders raster or PDF, not PostScript.
inline constexpr const char *rasterOrPdfMarks[] = {"ras", "pdf"};

/// How the line of a profile that names its printer's model begins: a PPD's `*ModelName` in square
/// brackets. Profiles may come from a third brand, whose queues the panel doesn't list.
inline constexpr const char *modelLineStarts[] = {"[Brixola", "[NV", "[Sorbelli"};

/// The installed options, in the order of the Printer page.
inline constexpr const char *installedKeywords[] = {
    "Option17", "Option8",  "Option18", "Option19", "Option20", "Option01",
    "Option21", "Option22", "Option25", "Option26", "Option27",
};
/// The one among them that holds stored jobs, without which there is no collation either.
inline constexpr const char jobStorageUnit[] = "Option18";

} // namespace Maker
