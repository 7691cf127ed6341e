#include "GasNotation.h"

#include <QHash>
#include <QStringList>
#include <QVector>

namespace {

struct Compound {
    const char* canonical;
    QStringList others;
};

/// By every name, the canonical one among them.
const QHash<QString, QString>& compounds() {
    static const QHash<QString, QString> names = [] {
        const QVector<Compound> all = {
            {"c1", {"1", "ch4", "methane"}},
            {"c2", {"2", "c2h6", "ethane"}},
            {"c3", {"3", "c3h8", "propane"}},
            {"ic4", {"i4", "ic4h10", "isobutane", "ibutane"}},
            {"nc4", {"n4", "nc4h10", "nbutane"}},
            {"ic5", {"i5", "ic5h12", "isopentane", "ipentane"}},
            {"nc5", {"n5", "nc5h12", "npentane"}},
            {"neoc5", {"neopentane"}},
            {"co2", {"carbondioxide", "dioxydedecarbone"}},
        };
        QHash<QString, QString> byName;
        for (const Compound& compound : all) {
            byName.insert(compound.canonical, compound.canonical);
            for (const QString& name : compound.others) {
                byName.insert(name, compound.canonical);
            }
        }
        return byName;
    }();
    return names;
}

/// What stands before the compound for its isotope ratio, the longer ones first.
struct Ratio {
    const char* written;
    const char* canonical;
};
constexpr Ratio ratios[] = {{"delta13c", "d13c"}, {"d13c", "d13c"}, {"13c", "d13c"}, {"delta2h", "dd"},
                            {"deltad", "dd"},     {"d2h", "dd"},    {"dd", "dd"}};

/// The compound's one name; empty for what is none.
QString compound(const QString& name) {
    QString known = compounds().value(name);
    for (const auto* word : {"del", "de", "du", "of"}) {
        if (known.isEmpty() && name.startsWith(QLatin1String(word))) {
            return compounds().value(name.mid(QLatin1String(word).size()));
        }
    }
    return known;
}

} // namespace

QString GasNotation::canonical(const QString& plain) {
    for (const Ratio& ratio : ratios) {
        const QLatin1String written(ratio.written);
        const bool isBefore = plain.startsWith(written);
        if (!isBefore && !plain.endsWith(written)) {
            continue;
        }
        const QString rest = isBefore ? plain.mid(written.size()) : plain.left(plain.size() - written.size());
        const QString name = compound(rest);
        if (!name.isEmpty()) {
            return QLatin1String(ratio.canonical) + name;
        }
    }
    // A number alone is a compound only behind a sign of isotopes.
    const bool isShort = plain.size() <= 2;
    return isShort ? plain : compounds().value(plain, plain);
}
