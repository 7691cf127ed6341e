#include "TDescriptionVorn.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QSet>

namespace {

QSet<QString> plainNames(const TKnownProperty& property) {
    QSet<QString> names{TKnownProperty::plain(property.label), TKnownProperty::plain(property.english),
                        TKnownProperty::plain(property.french)};
    for (const QString& alias : property.aliases) {
        names.insert(alias);
    }
    return names;
}

/// The key of the property that has a name, however it is written; empty for none.
QString keyOf(const QString& name) {
    const TDescriptionVorn description;
    for (const TKnownProperty& property : description.properties()) {
        if (plainNames(property).contains(TKnownProperty::plain(name))) {
            return property.key;
        }
    }
    return {};
}

} // namespace

// Over all families, since a table of any kind is compared with all of them.
TEST(TDescriptionVorn, no_two_properties_share_a_key_or_a_name_and_no_list_repeats_itself) {
    const TDescriptionVorn description;
    QMap<QString, QString> keyOfName;
    QSet<QString> keys;
    for (const TKnownProperty& one : description.properties()) {
        SCOPED_TRACE(one.key.toStdString());
        EXPECT_FALSE(keys.contains(one.key));
        keys.insert(one.key);
        for (const QString& name : plainNames(one)) {
            EXPECT_FALSE(name.isEmpty());
            EXPECT_FALSE(keyOfName.contains(name)) << qPrintable(name + ": " + keyOfName.value(name));
            keyOfName.insert(name, one.key);
        }
        for (const QString& alias : one.aliases) {
            EXPECT_EQ(TKnownProperty::plain(alias), alias);
        }
        EXPECT_FALSE(one.unitAliases.contains(one.unit));
        for (const QStringList& list : {one.aliases, one.unitAliases}) {
            EXPECT_EQ(QSet<QString>(list.begin(), list.end()).size(), list.size());
        }
    }
}

TEST(TDescriptionVorn, names_of_reports_in_both_languages_are_known) {
    const QString names =
        "T_max = tmax|COT = toc|Indice d’hydrogène = hi|IO = oi|S3’ = s3prime|S3 = s3|"
        "S1 + S2 = gp|TpkS2 = tps2|%Ro = ro|PROFONDEUR = depth|Méthane = gas.c1|CH₄ = gas.c1|"
        "i-Butane = gas.ic4|n-C5 = gas.nc5|C6 + = gas.c6+|Azote = gas.n2|"
        "C1/(C2+C3) = gas.bernard|C₁ / ΣC₁-C₅ = gas.dryness|δ¹³C-CH₄ = gas.d13c.c1|"
        "d13C1 = gas.d13c.c1|Δ13C éthane = gas.d13c.c2|δ13CO2 = gas.d13c.co2|"
        "δ²H CH4 = gas.dd.c1|C3 δD = gas.dd.c3|δ15N = gas.d15n.n2|Gamma ray = ";
    for (const QString& pair : names.split('|')) {
        EXPECT_EQ(keyOf(pair.section(" = ", 0, 0)), pair.section(" = ", 1)) << qPrintable(pair);
    }
}

TEST(TDescriptionVorn, labels_in_all_forms_hold_units_and_both_languages) {
    const QStringList all = TDescriptionVorn().getPropertiesLabels(true).values();
    for (const char* form : {"TOC", "TOC (wt%)", "Carbone organique total", "HI (mg HC/g TOC)",
                             "δ13C C1 (‰ VPDB)", "δD C1 (‰ VSMOW)", "Isotopes du carbone de l'éthane"}) {
        EXPECT_TRUE(all.contains(form)) << form;
    }
    EXPECT_FALSE(TDescriptionVorn().getPropertiesLabels(false).values().contains("TOC (wt%)"));
}

TEST(TKnownProperty, of_names_only_counts_what_tells_them_apart) {
    const QString names = " T_max (°C) =>tmaxc|ÉTHANE=>ethane|e\u0301thane=>ethane|i-C₄=>ic4|"
                          "δ¹³C-CH₄ (‰)=>d13cch4|Δ13C CH4=>d13cch4|∆13C\u00A0CH4=>d13cch4|Ｃ１=>c1|C₆ +=>c6+|"
                          "S1 + S2=>s1+s2|C1/(C2 + C3)=>c1/c2+c3|S1\u2215TOC=>s1/toc|/+ depth / =>depth|"
                          "C6++=>c6+|C2+ / C1+=>c2+/c1+|S3’ CO=>s3'co|Indice d'hydrogène=>indicedhydrogene|"
                          " / (%) — =>|Глубина=>глубина|𐌰 1=>𐌰1";
    for (const QString& pair : names.split('|')) {
        EXPECT_EQ(TKnownProperty::plain(pair.section("=>", 0, 0)), pair.section("=>", 1)) << qPrintable(pair);
    }
}
