#include "ImportNotices.h"

#include "ImportDraft.h"
#include "WorkbookModel.h"

#include <algorithm>

namespace {

constexpr int mostListed = 12;
constexpr int mostNotices = 60;
constexpr int longestText = 80;

QString bold(const QString& text) {
    const bool isLong = text.size() > longestText;
    const QString shown = isLong ? text.left(longestText) + QStringLiteral("…") : text;
    return QStringLiteral("<b>%1</b>").arg(shown.toHtmlEscaped());
}

} // namespace

QVector<ImportNotices::Notice> ImportNotices::of(const ImportDraft& draft) {
    ImportNotices notices(draft);
    notices.addObstacles();
    notices.addIdentifiers();
    notices.addRenamed();
    notices.addUnits();
    notices.addLeftOut();
    notices.addOmitted();
    return notices.m_notices;
}

void ImportNotices::addObstacles() {
    if (m_draft.sampleCount() == 0) {
        add(Notice::Level::Obstacle,
            tr("This sheet has no samples below its header. Choose another sheet, or correct the rows above.",
               "Cette feuille n'a pas d'échantillons sous son en-tête. Choisissez une autre feuille ou "
               "corrigez les lignes ci-dessus."));
    } else if (!m_draft.isComplete()) {
        add(Notice::Level::Obstacle,
            tr("Nothing but the names of the samples would be imported. Choose for one more column at least "
               "what it is imported as.",
               "Rien que les noms des échantillons ne serait importé. Choisissez pour au moins une autre "
               "colonne ce qu'elle devient."));
    }
}

void ImportNotices::addIdentifiers() {
    const IdentifierCheck& check = m_draft.identifiers();
    if (!check.emptyRows().isEmpty()) {
        add(Notice::Level::Warning, tr("Rows without a sample name make no sample: %1.",
                                       "Les lignes sans nom d'échantillon ne donnent pas d'échantillon : %1.")
                                        .arg(rowList(check.emptyRows())));
    }
    for (const IdentifierCheck::Collision& collision : check.collisions()) {
        add(Notice::Level::Warning,
            tr("Rows %1 become one sample: %2.", "Les lignes %1 deviennent un seul échantillon : %2.")
                .arg(rowList(collision.rows), bold(collision.identifier)));
    }
}

void ImportNotices::addRenamed() {
    for (const ColumnNames::Renamed& renamed : m_draft.names().renamed()) {
        add(Notice::Level::Warning,
            tr("Columns %1 and %2 would both be %3: column %2 is imported as %4.",
               "Les colonnes %1 et %2 seraient toutes deux %3 : la colonne %2 est importée comme %4.")
                .arg(columnLetters(renamed.holder), columnLetters(renamed.place), bold(renamed.name),
                     bold(m_draft.names().names()[renamed.place])));
    }
}

void ImportNotices::addUnits() {
    const ColumnMatcher& matcher = m_draft.matcher();
    for (int place = 0; place < m_draft.columnCount(); ++place) {
        const int property = m_draft.column(place).property();
        if (property >= 0 && !matcher.fits(property, m_draft.header(place))) {
            const TKnownProperty& known = matcher.properties()[property];
            add(Notice::Level::Warning,
                tr("Column %1 has another unit than %2 (%3); its values are taken as they are.",
                   "La colonne %1 a une autre unité que %2 (%3) ; ses valeurs sont reprises telles quelles.")
                    .arg(columnName(place), bold(known.label), known.unit.toHtmlEscaped()));
        }
    }
}

void ImportNotices::addLeftOut() {
    QStringList others;
    for (int place = 0; place < m_draft.columnCount(); ++place) {
        if (m_draft.column(place).isImported()) {
            continue;
        }
        const int property = m_draft.matcher().match(m_draft.header(place)).otherUnit;
        if (property < 0) {
            others += columnName(place);
            continue;
        }
        const TKnownProperty& known = m_draft.matcher().properties()[property];
        add(Notice::Level::Warning,
            tr("Column %1 is not imported: its unit is not that of %2 (%3).",
               "La colonne %1 n'est pas importée : son unité n'est pas celle de %2 (%3).")
                .arg(columnName(place), bold(known.label), known.unit.toHtmlEscaped()));
    }
    if (!others.isEmpty()) {
        add(Notice::Level::Remark,
            tr("Not imported: %1.", "Non importées : %1.").arg(list(others, others.size())));
    }
    if (m_draft.isRemembered()) {
        add(Notice::Level::Remark, tr("As chosen at the last import of a table with these headers.",
                                      "Selon les choix du dernier import d'un tableau aux mêmes en-têtes."));
    }
}

void ImportNotices::addOmitted() {
    if (m_omitted > 0) {
        m_notices += {Notice::Level::Warning,
                      tr("%1 more remarks of this kind.", "%1 autres remarques de ce genre.").arg(m_omitted)};
    }
}

void ImportNotices::add(Notice::Level level, const QString& text) {
    if (m_notices.size() < mostNotices) {
        m_notices += {level, text};
    } else {
        ++m_omitted;
    }
}

QString ImportNotices::columnName(int place) const {
    const ColumnHeader& header = m_draft.header(place);
    const QString unit = header.unit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(header.unit);
    return header.levels.isEmpty() ? bold(columnLetters(place)) : bold(header.text() + unit);
}

QString ImportNotices::columnLetters(int place) const {
    return WorkbookModel::columnLetters(m_draft.column(place).column);
}

QString ImportNotices::rowList(const QVector<int>& rows) {
    QStringList numbers;
    for (int i = 0; i < std::min(rows.size(), mostListed); ++i) {
        numbers += QString::number(rows[i] + 1);
    }
    return list(numbers, rows.size());
}

QString ImportNotices::list(const QStringList& texts, int count) {
    const QString shown = texts.mid(0, mostListed).join(QStringLiteral(", "));
    const int more = count - std::min(texts.size(), mostListed);
    return more == 0 ? shown : tr("%1 and %2 more", "%1 et %2 de plus").arg(shown, QString::number(more));
}
