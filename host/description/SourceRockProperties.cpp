#include "SourceRockProperties.h"

#include "PropertyRow.h"

namespace SourceRockProperties {

namespace {

constexpr auto weightPercent =
    "%|wt.%|wt %|wt. %|% wt|%wt|% wt.|weight %|weight%|% weight|% pds|%pds|pds%|pds %|% poids|"
    "% massique|% mass|mass%|mass %|% m/m|% w/w|g/100g|g/100 g|pct|percent";
constexpr auto hydrocarbons =
    "mg/g|mgHC/g|mg HC/g rock|mg HC/g roche|mgHC/g rock|mgHC/g roche|mg/g rock|mg/g roche|kg/t|"
    "kg HC/t|kgHC/t|mg.g-1|mg g-1";
constexpr auto carbonDioxide =
    "mg/g|mgCO2/g|mg CO₂/g|mgCO₂/g|mg CO2/g rock|mg CO2/g roche|mg CO₂/g rock|mg CO₂/g roche|"
    "mgCO2/g rock|mgCO2/g roche|mg/g rock|mg/g roche|kg/t|mg.g-1|mg g-1";
constexpr auto carbonMonoxide =
    "mg/g|mgCO/g|mg CO/g rock|mg CO/g roche|mgCO/g rock|mgCO/g roche|mg/g rock|mg/g roche|kg/t|"
    "mg.g-1|mg g-1";
constexpr auto celsius =
    "C|deg C|degC|deg. C|º C|ºC|˚C|° C|℃|celsius|degrees C|degrees celsius|degrés C|degrés celsius";

} // namespace

QVector<TKnownProperty> all() {
    // clang-format off
    static constexpr PropertyRow rows[] = {
        {"qty", "Qty", "Mass of the sample", "Masse de l'échantillon",
         "mg", "milligrams|milligrammes",
         "quantity|quantite|qte|sampleweight|weight|samplemass|mass|masse|poids|massedechantillon|"
         "masseechantillon|prisedessai"},
        {"s1", "S1", "Free hydrocarbons", "Hydrocarbures libres",
         "mg HC/g", hydrocarbons,
         "s1peak|peaks1|pics1|s1hc|freehc"},
        {"s2", "S2", "Hydrocarbons from cracking", "Hydrocarbures de craquage",
         "mg HC/g", hydrocarbons,
         "s2peak|peaks2|pics2|s2hc|residualpotential|potentielresiduel|residualpetroleumpotential|"
         "potentielpetrolierresiduel"},
        {"s3", "S3", "CO2 from organic matter", "CO2 de la matière organique",
         "mg CO2/g", carbonDioxide,
         "s3co2|s3peak|peaks3|pics3"},
        {"s3prime", "S3'", "CO2 from minerals in pyrolysis", "CO2 minéral de pyrolyse",
         "mg CO2/g", carbonDioxide,
         "s3'co2|s3prime"},
        {"s3co", "S3CO", "CO from organic matter", "CO de la matière organique",
         "mg CO/g", carbonMonoxide,
         "cos3|s3copeak"},
        {"s3coprime", "S3'CO", "CO from organic matter and minerals", "CO organique et minéral",
         "mg CO/g", carbonMonoxide,
         "s3primeco|s3coprime"},
        {"s4co2", "S4CO2", "CO2 from oxidation of organic matter", "CO2 de la combustion organique",
         "mg CO2/g", carbonDioxide,
         "co2s4"},
        {"s4co", "S4CO", "CO from oxidation of organic matter", "CO de la combustion organique",
         "mg CO/g", carbonMonoxide,
         "cos4"},
        {"s5", "S5", "CO2 from minerals in oxidation", "CO2 minéral de combustion",
         "mg CO2/g", carbonDioxide,
         "s5co2|s5peak"},
        {"tmax", "Tmax", "Temperature of maximum cracking", "Température de craquage maximal",
         "°C", celsius,
         "tmaxpyrolysis|maxtemp|temperaturemax|temperaturemaximale|temperaturemaximum|tmaxrockeval"},
        {"tps2", "TpS2", "Temperature at the top of S2", "Température au sommet de S2",
         "°C", celsius,
         "tpks2|tpeaks2|tpics2|tpeak|tsommets2|temperaturepics2"},
        {"toc", "TOC", "Total organic carbon", "Carbone organique total",
         "wt%", weightPercent,
         "cot|corg|organiccarbon|carboneorganique|totalorganiccarboncontent|teneurencot|leco|"
         "lecotoc|tocleco|tocrockeval"},
        {"hi", "HI", "Hydrogen index", "Indice d'hydrogène",
         "mg HC/g TOC", "mg/g TOC|mgHC/gTOC|mg HC/gTOC|mg/gTOC|mg HC/g COT|mg/g COT|mgHC/gCOT|mg HC/g C|mg HC/g Corg",
         "ih|indicehydrogene|s2/toc|s2/cot"},
        {"oi", "OI", "Oxygen index", "Indice d'oxygène",
         "mg CO2/g TOC", "mg CO₂/g TOC|mg/g TOC|mgCO2/gTOC|mg CO2/gTOC|mg/gTOC|mg CO2/g COT|mg CO₂/g COT|mg/g COT|mgCO2/gCOT|mg CO2/g C|mg CO2/g Corg",
         "io|indiceoxygene|oico2|ioco2|s3/toc|s3/cot"},
        {"oico", "OICO", "Oxygen index from CO", "Indice d'oxygène du CO",
         "mg CO/g TOC", "mg/g TOC|mgCO/gTOC|mg CO/gTOC|mg CO/g COT|mg/g COT|mgCO/gCOT",
         "ioco|oxygenindexco|indicedoxygeneco|s3co/toc|s3co/cot"},
        {"oire6", "OIRE6", "Total oxygen index", "Indice d'oxygène total",
         "mg O2/g TOC", "mg O₂/g TOC|mg/g TOC|mgO2/gTOC|mg O2/g COT|mg O₂/g COT|mg/g COT",
         "oitotal|iototal|iore6"},
        {"pi", "PI", "Production index", "Indice de production",
         "", "",
         "ip|s1/s1+s2"},
        {"gp", "S1+S2", "Genetic potential", "Potentiel génétique",
         "mg HC/g", hydrocarbons,
         "s2+s1|gp|pg|pp|petroleumpotential|potentielpetrolier|hydrocarbonpotential|"
         "productionpotential|generationpotential|potentieldeproduction"},
        {"osi", "OSI", "Oil saturation index", "Indice de saturation en huile",
         "mg HC/g TOC", "mg/g TOC|mgHC/gTOC|mg HC/gTOC|mg HC/g COT|mg/g COT",
         "s1/toc|s1/cot|s1100/toc"},
        {"s2s3", "S2/S3", "Ratio of S2 to S3", "Rapport de S2 à S3",
         "", "",
         "s2s3|rapports2/s3|ratios2/s3"},
        {"rc", "RC", "Residual carbon", "Carbone résiduel",
         "wt%", weightPercent,
         "cr|residualorganiccarbon|carboneorganiqueresiduel"},
        {"pc", "PC", "Pyrolysable carbon", "Carbone pyrolysable",
         "wt%", weightPercent,
         "cp|pyrolyzablecarbon|pyrolysedcarbon|pyrolyzedcarbon|carbonepyrolyse|"
         "pyrolysableorganiccarbon|carboneorganiquepyrolysable"},
        {"minc", "MINC", "Mineral carbon", "Carbone minéral",
         "wt%", weightPercent,
         "cmin|tic|inorganiccarbon|totalinorganiccarbon|carboneinorganique|carboneinorganiquetotal|"
         "cinorg"},
        {"pyrominc", "pyroMINC", "Mineral carbon from pyrolysis", "Carbone minéral de pyrolyse",
         "wt%", weightPercent,
         "mincpyro"},
        {"oximinc", "oxiMINC", "Mineral carbon from oxidation", "Carbone minéral de combustion",
         "wt%", weightPercent,
         "mincoxi"},
        {"tc", "TC", "Total carbon", "Carbone total",
         "wt%", weightPercent,
         "ctot|ctotal"},
        {"ts", "TS", "Total sulfur", "Soufre total",
         "wt%", weightPercent,
         "stot|stotal|sulfur|sulphur|totalsulphur|soufre"},
        {"tn", "TN", "Total nitrogen", "Azote total",
         "wt%", weightPercent,
         "ntot|ntotal"},
        {"carbonate", "Carbonate", "Carbonate content", "Teneur en carbonates",
         "wt%", weightPercent,
         "carbonates|caco3|calcimetry|calcimetrie|teneurencaco3"},
        {"ro", "Ro", "Vitrinite reflectance", "Réflectance de la vitrinite",
         "%", "%Ro|% Ro|%Rr|% Rr|%VR|pct",
         "rr|rm|vr|vro|vrr|rom|rmean|romean|meanro|romoyen|rorandom|meanvitrinitereflectance|"
         "randomvitrinitereflectance|reflectancevitrinite|pouvoirreflecteur|"
         "pouvoirreflecteurdelavitrinite|prv"},
        {"vre", "VRe", "Equivalent vitrinite reflectance", "Réflectance équivalente de la vitrinite",
         "%", "%Ro|% Ro|%VRe|% VRe|%Rr|% Rr|pct",
         "roe|roeq|vreq|vroeq|equivalentro|roequivalent|calculatedro|rocalc|rocalcule|easyro"},
        {"tai", "TAI", "Thermal alteration index", "Indice d'altération thermique",
         "", "",
         "iat"},
        {"kerogentype", "Kerogen type", "Type of kerogen", "Type de kérogène",
         "", "",
         "kerogen|kerogene|typekerogene"},
        {"d13corg", "δ13C org", "Carbon isotopes of organic matter", "Isotopes du carbone de la matière organique",
         "‰ VPDB", PropertyRow::vpdb,
         "d13ctoc|d13corganic|d13corganique|d13ckerogen|d13ckerogene|delta13corg|delta13corganic|"
         "delta13ckerogen|delta13ctoc"},
    };
    // clang-format on
    QVector<TKnownProperty> properties;
    for (const PropertyRow& row : rows) {
        properties.append(row.property(TKnownProperty::Family::SourceRock));
    }
    return properties;
}

} // namespace SourceRockProperties
