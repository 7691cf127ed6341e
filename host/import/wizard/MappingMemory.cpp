#include "MappingMemory.h"

#include "ColumnHeader.h"
#include "TKnownProperty.h"
#include "UnitText.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSettings>

#include <algorithm>

namespace {

constexpr int mostTables = 200;
constexpr int noTarget = -1;

const QString group = QStringLiteral("importWizard");
const QString recentKey = QStringLiteral("recent");
const QString targetsKey = QStringLiteral("%1/targets");
const QString identifierKey = QStringLiteral("%1/identifier");
const QString asItIs = QStringLiteral("=");

/// The fingerprints met last, the latest first. Others wrote to the settings too: only what is a fingerprint
/// may name a group that is removed.
QStringList recentOnes(const QSettings& settings) {
    static const QRegularExpression form(QStringLiteral("^[0-9a-f]{40}$"));
    return settings.value(recentKey).toStringList().filter(form);
}

} // namespace

MappingMemory::MappingMemory(const QString& strategy, const QVector<TKnownProperty>& properties)
    : m_strategy(strategy) {
    for (const TKnownProperty& property : properties) {
        m_keys += property.key;
    }
}

bool MappingMemory::recall(const std::vector<ColumnHeader>& headers, ImportMapping& mapping) const {
    QSettings settings;
    settings.beginGroup(group);
    const QString table = fingerprint(headers);
    const QStringList choices = settings.value(targetsKey.arg(table)).toStringList();
    bool isNumber = false;
    const int identifier = settings.value(identifierKey.arg(table)).toInt(&isNumber);
    if (choices.size() != static_cast<int>(mapping.columns.size()) || !isNumber || identifier < 0 ||
        identifier >= choices.size()) {
        return false;
    }
    std::vector<int> targets;
    std::transform(choices.begin(), choices.end(), std::back_inserter(targets),
                   [this](const QString& choice) { return target(choice); });
    if (std::count(targets.begin(), targets.end(), noTarget) > 0 ||
        targets[static_cast<std::size_t>(identifier)] == ColumnMapping::notImported) {
        return false;
    }
    mapping.identifier = identifier;
    for (std::size_t place = 0; place < targets.size(); ++place) {
        mapping.columns[place].target = targets[place];
    }
    return true;
}

void MappingMemory::remember(const std::vector<ColumnHeader>& headers, const ImportMapping& mapping) const {
    QSettings settings;
    settings.beginGroup(group);
    const QString table = fingerprint(headers);
    QStringList choices;
    for (const ColumnMapping& column : mapping.columns) {
        choices += choice(column.target);
    }
    settings.setValue(targetsKey.arg(table), choices);
    settings.setValue(identifierKey.arg(table), mapping.identifier);
    QStringList recent = recentOnes(settings);
    recent.removeAll(table);
    recent.prepend(table);
    while (recent.size() > mostTables) {
        settings.remove(recent.takeLast());
    }
    settings.setValue(recentKey, recent);
}

QString MappingMemory::fingerprint(const std::vector<ColumnHeader>& headers) const {
    constexpr char between = '\x1f';
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(m_strategy.toUtf8());
    for (const ColumnHeader& header : headers) {
        hash.addData(&between, 1);
        hash.addData(TKnownProperty::plain(header.text()).toUtf8());
        hash.addData(&between, 1);
        hash.addData(UnitText::plain(header.unit).toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex());
}

int MappingMemory::target(const QString& choice) const {
    if (choice.isEmpty()) {
        return ColumnMapping::notImported;
    }
    if (choice == asItIs) {
        return ColumnMapping::asItIs;
    }
    const int property = m_keys.indexOf(choice);
    return property < 0 ? noTarget : ColumnMapping::firstProperty + property;
}

QString MappingMemory::choice(int target) const {
    switch (target) {
    case ColumnMapping::notImported:
        return {};
    case ColumnMapping::asItIs:
        return asItIs;
    default:
        return m_keys[target - ColumnMapping::firstProperty];
    }
}
