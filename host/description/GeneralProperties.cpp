#include "GeneralProperties.h"

#include "PropertyRow.h"

namespace GeneralProperties {

namespace {

constexpr auto metres = "meter|meters|metre|metres|mètre|mètres|mMD|m MD|mTVD|m TVD";
constexpr auto degrees = "deg|degree|degrees|degré|degrés|dd|decimal degrees|degrés décimaux";

} // namespace

QVector<TKnownProperty> all() {
    // clang-format off
    static constexpr PropertyRow rows[] = {
        {"sample", "Sample", "Sample name", "Nom de l'échantillon",
         "", "",
         "sampleid|sampleno|samplenumber|samplenr|sampleref|samplereference|samplelabel|"
         "sampleidentifier|idsample|id|samples|echantillon|echantillons|echantillonid|idechantillon|"
         "nomechantillon|nechantillon|noechantillon|numeroechantillon|numerodechantillon|"
         "referenceechantillon"},
        {"well", "Well", "Well name", "Nom du puits",
         "", "",
         "wellid|wellbore|borehole|boreholename|puits|nompuits|forage|sondage|nomduforage"},
        {"depth", "Depth", "Measured depth", "Profondeur mesurée",
         "m", metres,
         "md|depthmd|mddepth|profondeur|prof|profmd|profondeurmd|cote|sampledepth|depthofsample|"
         "profondeurechantillon|profondeurdelechantillon"},
        {"depth.top", "Top depth", "Upper depth", "Profondeur du toit",
         "m", metres,
         "depthtop|depthfrom|fromdepth|top|toit|profondeurtoit|toitprofondeur|profondeurmin|"
         "mindepth|depthmin"},
        {"depth.base", "Base depth", "Lower depth", "Profondeur de la base",
         "m", metres,
         "depthbase|bottomdepth|depthbottom|depthto|todepth|bottom|base|profondeurbase|"
         "baseprofondeur|profondeurmax|maxdepth|depthmax"},
        {"depth.tvd", "TVD", "True vertical depth", "Profondeur verticale vraie",
         "m", metres,
         "depthtvd|tvddepth|verticaldepth|profondeurverticale|profondeurtvd|profverticale"},
        {"depth.tvdss", "TVDSS", "True vertical depth below sea level", "Profondeur verticale sous le niveau de la mer",
         "m", metres,
         "tvdsubsea|subseadepth|tvdmsl"},
        {"elevation", "Elevation", "Height above sea level", "Altitude",
         "m", metres,
         "groundlevel|kb|kellybushing|rkb|cotesol|elevationkb"},
        {"latitude", "Latitude", "Geographic latitude", "Latitude géographique",
         "°", degrees,
         "lat|latitudewgs84|latwgs84|latdd|latitudedd|latitudedecimale"},
        {"longitude", "Longitude", "Geographic longitude", "Longitude géographique",
         "°", degrees,
         "long|lon|lng|longitudewgs84|lonwgs84|longwgs84|longdd|longitudedd|longitudedecimale"},
        {"country", "Country", "Country of the sample", "Pays de prélèvement",
         "", "",
         "pays"},
        {"basin", "Basin", "Sedimentary basin", "Bassin sédimentaire",
         "", "",
         "bassin|basinname|nomdubassin"},
        {"field", "Field", "Oil or gas field", "Champ pétrolier ou gazier",
         "", "",
         "champ|fieldname|gisement|nomduchamp"},
        {"formation", "Formation", "Geological formation", "Formation géologique",
         "", "",
         "fm|formationname|fmname|nomdelaformation|stratigraphicunit|unitestratigraphique|member|"
         "membre|reservoir"},
        {"lithology", "Lithology", "Type of rock", "Type de roche",
         "", "",
         "litho|lithologie|rocktype|facies|lithofacies|roche"},
        {"age", "Age", "Geological age", "Âge géologique",
         "", "",
         "agegeol|geologicage|stratigraphicage|agestratigraphique|period|periode|stage|etage|epoch|"
         "epoque|chronostratigraphy|chronostratigraphie"},
        {"sampletype", "Sample type", "Kind of sample", "Nature de l'échantillon",
         "", "",
         "typeofsample|samplekind|typeechantillon|typedechantillon|natureechantillon"},
        {"date", "Date", "Date of the analysis", "Date de l'analyse",
         "", "",
         "analysisdate|dateanalyse|datedanalyse|measuredon|acquisitiondate|dateacquisition"},
        {"comment", "Comment", "Comment on the sample", "Commentaire sur l'échantillon",
         "", "",
         "comments|commentaire|commentaires|remark|remarks|remarque|remarques|notes|observation|"
         "observations"},
    };
    // clang-format on
    QVector<TKnownProperty> properties;
    for (const PropertyRow& row : rows) {
        properties.append(row.property(TKnownProperty::Family::General));
    }
    return properties;
}

} // namespace GeneralProperties
