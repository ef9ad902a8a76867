#include "desktop/pagesetuptable.h"

namespace {

// Lengths are texts, since gedit's files hold more digits than a double prints by default.
struct Margins
{
    const char *top;
    const char *bottom;
    const char *left;
    const char *right;
};

struct Paper
{
    const char *pageSize;
    const char *displayName;
    const char *width;
    const char *height;
    Margins margins;
};

constexpr Margins usual = {"3.5277777777777777", "3.5277777777777777", "4.2333333333333325",
                           "4.2333333333333325"};
constexpr Margins narrowB5 = {"3.5277777777777777", "3.5277777777777777", "7.4083333333333323",
                              "7.4083333333333323"};
constexpr Margins equal = {"4.2333333333333325", "4.2333333333333325", "4.2333333333333325",
                           "4.2333333333333325"};
constexpr Margins kai = {"3.8805555555555551", "4.2333333333333325", "4.2333333333333325",
                         "3.8805555555555551"};
constexpr Margins american = {"2.822222222222222", "2.822222222222222", "4.2333333333333325",
                              "4.2333333333333325"};
constexpr Margins wide = {"12.699999999999999", "12.699999999999999", "3.8805555555555551",
                          "3.8805555555555551"};

constexpr Paper papers[] = {
    {"A3", "A3", "297", "420", usual},
    {"SRA3", "SRA3", "319.96944444444443", "449.79166666666663", usual},
    {"A4", "A4", "210", "297", usual},
    {"A5", "A5", "148", "210", usual},
    {"A6", "A6", "105", "148", usual},
    {"B4", "JB4", "257", "364", usual},
    {"B5", "JB5", "182", "257", narrowB5},
    {"ISOB5", "B5", "176", "250", equal},
    {"B6", "JB6", "128", "182", usual},
    {"OficioII", "Oficio II", "215.89999999999998", "330.19999999999999", equal},
    {"Folio", "Folio", "210", "330", equal},
    {"Statement", "Invoice", "139.69999694824219", "215.89999389648438", equal},
    {"P8K", "8K", "273.04999999999995", "393.69999999999999", kai},
    {"P16K", "16K", "196.84999999999999", "273.04999999999995", kai},
    {"OficioMX", "216 x 340 mm", "215.89999999999998", "340.07777777777773", equal},
    {"P12X18", "12 x 18", "304.79999999999995", "457.19999999999993", wide},
    {"Letter", "US Letter", "215.89999389648438", "279.39999389648438", american},
    {"Legal", "US Legal", "215.89999389648438", "355.60000610351562", american},
    {"Executive", "Executive", "184.14999389648438", "266.70001220703125", american},
    {"Tabloid", "Ledger 11x17", "279.39999999999998", "431.79999999999995", american},
    {"EnvPersonal", "Personal Envelope", "92.074996948242188", "165.10000610351562", american},
    {"Env9", "#9 Envelope", "98.425003051757812", "225.42500305175781", american},
    {"Env10", "#10 Envelope", "104.77500152587891", "241.30000305175781", american},
    {"EnvMonarch", "Monarch Envelope", "98.425003051757812", "190.5", american},
    {"EnvDL", "DL Envelope", "110", "220", usual},
    {"EnvC5", "C5", "162", "229", usual},
    {"EnvC4", "C4", "229", "324", usual},
    {"OficioI", "8.5x13.5", "215.89999999999998", "342.89999999999998", equal},
};

QString pageSetup(const Paper &paper)
{
    return QStringLiteral("[Page Setup]\n"
                          "PPDName=%1\n"
                          "DisplayName=%2\n"
                          "Width=%3\n"
                          "Height=%4\n"
                          "MarginTop=%5\n"
                          "MarginBottom=%6\n"
                          "MarginLeft=%7\n"
                          "MarginRight=%8\n"
                          "Orientation=portrait\n")
        .arg(QLatin1String(paper.pageSize), QLatin1String(paper.displayName),
             QLatin1String(paper.width), QLatin1String(paper.height),
             QLatin1String(paper.margins.top), QLatin1String(paper.margins.bottom),
             QLatin1String(paper.margins.left), QLatin1String(paper.margins.right));
}

QHash<QString, QString> makeTable()
{
    QHash<QString, QString> table;
    for (const Paper &paper : papers)
        table.insert(QLatin1String(paper.pageSize), pageSetup(paper));
    return table;
}

} // namespace

const QHash<QString, QString> pageSetupTable = makeTable();
