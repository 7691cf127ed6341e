#pragma once

#include <QCollator>

#include <optional>

class QVariant;

/// What a cell is sorted by: numbers by value, and texts that are a number as that number; then the other
/// texts, naturally ("a2" before "a10", without regard to case); then what is empty.
class SortKey {
public:
    SortKey(const QVariant& value, const QCollator& collator);

    bool isEmpty() const { return m_kind == Kind::Empty; }

    bool operator<(const SortKey& other) const;

private:
    enum class Kind { Number, Text, Empty };

    Kind m_kind = Kind::Empty;
    double m_number = 0;
    std::optional<QCollatorSortKey> m_text;
};
