#include "IdentifierGuess.h"

#include "ColumnHeader.h"
#include "TKnownProperty.h"

#include <QRegularExpression>

namespace {

constexpr int longestName = 60;

/// Patterns for whole names in their plain form, the surest first.
const std::vector<QRegularExpression>& patterns() {
    const QString labels =
        QStringLiteral("id|ident|identifier|identifiant|name|nom|no|nr|numero|number|code|ref|"
                       "reference|label|libelle");
    const QString fillers = QStringLiteral("n|num|lab|labo|laboratoire|client|of|the|de|des|du|d|l|le|la");
    const QString samples = QStringLiteral("samples?|echantillons?|ech|spl");
    const QString wells = QStringLiteral("wells?|puits|boreholes?|forages?|sondages?");
    const auto whole = [](const QString& with, const QString& around) {
        return QRegularExpression(QStringLiteral("^(?:%2)*(?:%1)(?:%2)*$").arg(with, around));
    };
    static const std::vector<QRegularExpression> all = {
        whole(samples, labels + '|' + fillers),
        whole(labels, labels + QStringLiteral("|lab|labo|laboratoire|client|analysis|analyse|of|de|du|the")),
        whole(wells, labels + '|' + fillers),
    };
    return all;
}

bool isNamed(const ColumnHeader& header, const QRegularExpression& pattern) {
    const QString whole = TKnownProperty::plain(header.levels.join(' '));
    const QString lowest = header.levels.isEmpty() ? QString() : TKnownProperty::plain(header.levels.last());
    return (whole.size() <= longestName && pattern.match(whole).hasMatch()) ||
           (lowest.size() <= longestName && pattern.match(lowest).hasMatch());
}

} // namespace

int IdentifierGuess::of(const std::vector<ColumnHeader>& headers) {
    for (const QRegularExpression& pattern : patterns()) {
        for (std::size_t place = 0; place < headers.size(); ++place) {
            if (isNamed(headers[place], pattern)) {
                return static_cast<int>(place);
            }
        }
    }
    return headers.empty() ? TableLayout::none : 0;
}
