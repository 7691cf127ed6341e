#include "GasProperties.h"

#include "PropertyRow.h"

#include <initializer_list>

namespace GasProperties {

namespace {

constexpr auto molePercent =
    "%|mol %|mol.%|mol. %|% mol|%mol|mole %|mole%|% mole|% molaire|% mol.|vol%|vol %|vol.%|"
    "vol. %|% vol|%vol|% vol.|% v/v|%v/v|% volume|pct|percent|pourcent";
constexpr auto vsmow = "‰ SMOW|‰ V-SMOW|‰VSMOW|‰SMOW|‰|permil|per mil|per mille|pour mille|permil VSMOW|"
                       "‰ vs VSMOW|‰ vs SMOW|o/oo|0/00";

/// A gas whose isotopes are measured; the names in the form of TKnownProperty::plain.
struct Gas {
    const char* key;
    const char* label;
    const char* english;
    const char* french; ///< with its article
    const char* chemical;
    const char* name;
};

constexpr Gas hydrocarbons[] = {
    {"c1", "C1", "methane", "du méthane", "ch4", "methane"},
    {"c2", "C2", "ethane", "de l'éthane", "c2h6", "ethane"},
    {"c3", "C3", "propane", "du propane", "c3h8", "propane"},
    {"ic4", "iC4", "isobutane", "de l'isobutane", "ic4h10", "isobutane"},
    {"nc4", "nC4", "n-butane", "du n-butane", "nc4h10", "nbutane"},
    {"c4", "C4", "butanes", "des butanes", "c4h10", "butane"},
    {"ic5", "iC5", "isopentane", "de l'isopentane", "ic5h12", "isopentane"},
    {"nc5", "nC5", "n-pentane", "du n-pentane", "nc5h12", "npentane"},
    {"c5", "C5", "pentanes", "des pentanes", "c5h12", "pentane"},
};
constexpr int hydrocarbonsWithDeuterium = 5;

constexpr Gas carbonDioxide = {
    "co2", "CO2", "carbon dioxide", "du dioxyde de carbone", "carbondioxide", "dioxydedecarbone"};

/// One spelling of the isotope before and behind each spelling of the gas: "d13cch4", "ch4d13c".
QStringList spellings(const Gas& gas, std::initializer_list<const char*> isotopes) {
    QStringList list;
    for (const char* isotope : isotopes) {
        for (const char* spelling : {gas.key, gas.chemical, gas.name}) {
            list << QLatin1String(isotope) + QLatin1String(spelling)
                 << QLatin1String(spelling) + QLatin1String(isotope);
        }
    }
    return list;
}

TKnownProperty carbonIsotopes(const Gas& gas) {
    TKnownProperty property =
        PropertyRow{"", "", "", "", "‰ VPDB", PropertyRow::vpdb, ""}.property(TKnownProperty::Family::Gas);
    property.key = QStringLiteral("gas.d13c.%1").arg(gas.key);
    property.label = QStringLiteral("δ13C %1").arg(gas.label);
    property.english = QStringLiteral("Carbon isotopes of %1").arg(gas.english);
    property.french = QStringLiteral("Isotopes du carbone %1").arg(QString::fromUtf8(gas.french));
    property.aliases = spellings(gas, {"d13c", "delta13c", "dc13", "13c"});
    if (gas.key[0] == 'c') { // the carbon is often written once: δ13C1, δ13CO2
        property.aliases << QLatin1String("d13") + gas.key << QLatin1String("delta13") + gas.key;
    }
    return property;
}

TKnownProperty hydrogenIsotopes(const Gas& gas) {
    TKnownProperty property =
        PropertyRow{"", "", "", "", "‰ VSMOW", vsmow, ""}.property(TKnownProperty::Family::Gas);
    property.key = QStringLiteral("gas.dd.%1").arg(gas.key);
    property.label = QStringLiteral("δD %1").arg(gas.label);
    property.english = QStringLiteral("Hydrogen isotopes of %1").arg(gas.english);
    property.french = QStringLiteral("Isotopes de l'hydrogène %1").arg(QString::fromUtf8(gas.french));
    property.aliases = spellings(gas, {"dd", "deltad", "d2h", "delta2h", "2h"});
    return property;
}

} // namespace

QVector<TKnownProperty> all() {
    // clang-format off
    static constexpr PropertyRow rows[] = {
        {"gas.c1", "C1", "Methane", "Méthane",
         "mol%", molePercent,
         "ch4"},
        {"gas.c2", "C2", "Ethane", "Éthane",
         "mol%", molePercent,
         "c2h6"},
        {"gas.c3", "C3", "Propane", "Propane",
         "mol%", molePercent,
         "c3h8"},
        {"gas.ic4", "iC4", "Isobutane", "Isobutane",
         "mol%", molePercent,
         "ibutane|isoc4|ic4h10"},
        {"gas.nc4", "nC4", "n-Butane", "n-Butane",
         "mol%", molePercent,
         "normalbutane|nc4h10"},
        {"gas.c4", "C4", "Butanes", "Butanes",
         "mol%", molePercent,
         "butane|c4h10|totalc4|c4total|sumc4|ic4+nc4|nc4+ic4"},
        {"gas.ic5", "iC5", "Isopentane", "Isopentane",
         "mol%", molePercent,
         "ipentane|isoc5|ic5h12"},
        {"gas.nc5", "nC5", "n-Pentane", "n-Pentane",
         "mol%", molePercent,
         "normalpentane|nc5h12"},
        {"gas.neoc5", "neoC5", "Neopentane", "Néopentane",
         "mol%", molePercent,
         "dimethylpropane|22dimethylpropane|neoc5h12"},
        {"gas.c5", "C5", "Pentanes", "Pentanes",
         "mol%", molePercent,
         "pentane|c5h12|totalc5|c5total|sumc5|ic5+nc5|nc5+ic5"},
        {"gas.c6", "C6", "Hexanes", "Hexanes",
         "mol%", molePercent,
         "hexane|c6h14|totalc6|sumc6"},
        {"gas.nc6", "nC6", "n-Hexane", "n-Hexane",
         "mol%", molePercent,
         "normalhexane|nc6h14"},
        {"gas.c6+", "C6+", "Hexanes and heavier", "Hexanes et plus lourds",
         "mol%", molePercent,
         "c6plus|hexane+|hexanes+|hexanesplus|sumc6+"},
        {"gas.c7+", "C7+", "Heptanes and heavier", "Heptanes et plus lourds",
         "mol%", molePercent,
         "c7plus|heptane+|heptanes+|heptanesplus"},
        {"gas.c2+", "C2+", "Ethane and heavier", "Éthane et plus lourds",
         "mol%", molePercent,
         "c2plus|ethane+|sumc2+"},
        {"gas.c2h4", "C2H4", "Ethylene", "Éthylène",
         "mol%", molePercent,
         "ethene"},
        {"gas.c3h6", "C3H6", "Propylene", "Propylène",
         "mol%", molePercent,
         "propene"},
        {"gas.co2", "CO2", "Carbon dioxide", "Dioxyde de carbone",
         "mol%", molePercent,
         "gazcarbonique|dioxydecarbone"},
        {"gas.co", "CO", "Carbon monoxide", "Monoxyde de carbone",
         "mol%", molePercent,
         "monoxydecarbone|oxydedecarbone"},
        {"gas.n2", "N2", "Nitrogen", "Azote",
         "mol%", molePercent,
         "diazote|dinitrogen"},
        {"gas.h2", "H2", "Hydrogen", "Hydrogène",
         "mol%", molePercent,
         "dihydrogene|dihydrogen"},
        {"gas.h2s", "H2S", "Hydrogen sulfide", "Sulfure d'hydrogène",
         "mol%", molePercent,
         "hydrogensulphide|hydrogenesulfure|acidesulfhydrique"},
        {"gas.he", "He", "Helium", "Hélium",
         "mol%", molePercent,
         ""},
        {"gas.o2", "O2", "Oxygen", "Oxygène",
         "mol%", molePercent,
         "dioxygene|dioxygen"},
        {"gas.ar", "Ar", "Argon", "Argon",
         "mol%", molePercent,
         ""},
        {"gas.o2ar", "O2+Ar", "Oxygen and argon", "Oxygène et argon",
         "mol%", molePercent,
         "ar+o2|oxygen+argon|oxygene+argon|argon+oxygen"},
        {"gas.ne", "Ne", "Neon", "Néon",
         "mol%", molePercent,
         ""},
        {"gas.kr", "Kr", "Krypton", "Krypton",
         "mol%", molePercent,
         ""},
        {"gas.xe", "Xe", "Xenon", "Xénon",
         "mol%", molePercent,
         ""},
        {"gas.wetness", "Wetness", "Gas wetness", "Humidité du gaz",
         "%", "pct|percent|pourcent",
         "wetnessindex|wetnessratio|wh|c2c5/c1c5|c2+/c1+|σc2c5/σc1c5|sumc2c5/sumc1c5|humidite"},
        {"gas.dryness", "Dryness", "Gas dryness", "Siccité du gaz",
         "", "",
         "drynessindex|drynessratio|drynesscoefficient|c1/c1+|c1/c1c5|c1/c1c4|c1/σc1c5|c1/sumc1c5|"
         "c1/σcn|c1/sumcn|siccite"},
        {"gas.bernard", "C1/(C2+C3)", "Bernard ratio", "Rapport de Bernard",
         "", "",
         "c1/c2c3|ch4/c2h6+c3h8|bernardparameter|parametrebernard|bernard"},
        {"gas.c1c2", "C1/C2", "Ratio of methane to ethane", "Rapport du méthane à l'éthane",
         "", "",
         "ch4/c2h6|methane/ethane"},
        {"gas.c1c2+", "C1/C2+", "Ratio of methane to heavier gases", "Rapport du méthane aux gaz plus lourds",
         "", "",
         "c1/c2plus|c1/c2c5"},
        {"gas.c2c3", "C2/C3", "Ratio of ethane to propane", "Rapport de l'éthane au propane",
         "", "",
         "c2h6/c3h8|ethane/propane"},
        {"gas.c2ic4", "C2/iC4", "Ratio of ethane to isobutane", "Rapport de l'éthane à l'isobutane",
         "", "",
         "ethane/isobutane"},
        {"gas.ic4nc4", "iC4/nC4", "Ratio of isobutane to n-butane", "Rapport de l'isobutane au n-butane",
         "", "",
         "isobutane/nbutane|ibutane/nbutane"},
        {"gas.ic5nc5", "iC5/nC5", "Ratio of isopentane to n-pentane", "Rapport de l'isopentane au n-pentane",
         "", "",
         "isopentane/npentane|ipentane/npentane"},
        {"gas.gor", "GOR", "Gas-oil ratio", "Rapport gaz-huile",
         "m3/m3", "m³/m³|Sm3/Sm3|Sm³/Sm³|v/v",
         "gas/oil|gas/oilratio|rapportgaz/huile|gaz/huile"},
        {"gas.rra", "R/Ra", "Helium isotopes relative to air", "Isotopes de l'hélium par rapport à l'air",
         "Ra", "",
         "rc/ra|r/rair"},
        {"gas.he3he4", "3He/4He", "Helium isotope ratio", "Rapport isotopique de l'hélium",
         "", "",
         "he3/he4"},
        {"gas.ar40ar36", "40Ar/36Ar", "Argon isotope ratio", "Rapport isotopique de l'argon",
         "", "",
         "ar40/ar36"},
        {"gas.he4ne20", "4He/20Ne", "Helium to neon ratio", "Rapport de l'hélium au néon",
         "", "",
         "he4/ne20|he/ne"},
        {"gas.dd.h2", "δD H2", "Hydrogen isotopes of hydrogen", "Isotopes de l'hydrogène du dihydrogène",
         "‰ VSMOW", vsmow,
         "d2hh2|deltadh2|h2dd"},
        {"gas.d15n.n2", "δ15N N2", "Nitrogen isotopes of nitrogen", "Isotopes de l'azote du diazote",
         "‰ Air", "‰ AIR|‰ air|‰ vs air|‰ atm|‰|permil|per mil|per mille|pour mille|o/oo|0/00",
         "d15n|delta15n|delta15nn2|dn15|dn15n2|15nn2|n2d15n|d15nnitrogen|d15nazote"},
        {"gas.d18o.co2", "δ18O CO2", "Oxygen isotopes of carbon dioxide", "Isotopes de l'oxygène du dioxyde de carbone",
         "‰ VPDB", PropertyRow::vpdb,
         "d18oco2|delta18oco2|co2d18o|18oco2"},
        {"gas.d34s.h2s", "δ34S H2S", "Sulfur isotopes of hydrogen sulfide", "Isotopes du soufre du sulfure d'hydrogène",
         "‰ VCDT", "‰ CDT|‰ V-CDT|‰|permil|per mil|per mille|pour mille|o/oo|0/00",
         "d34s|delta34s|delta34sh2s|34sh2s|h2sd34s"},
    };
    // clang-format on
    QVector<TKnownProperty> properties;
    for (const PropertyRow& row : rows) {
        properties.append(row.property(TKnownProperty::Family::Gas));
    }
    for (const Gas& gas : hydrocarbons) {
        properties.append(carbonIsotopes(gas));
    }
    properties.append(carbonIsotopes(carbonDioxide));
    for (int i = 0; i < hydrocarbonsWithDeuterium; ++i) {
        properties.append(hydrogenIsotopes(hydrocarbons[i]));
    }
    return properties;
}

} // namespace GasProperties
