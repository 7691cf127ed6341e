#pragma once

#include <QString>

#include <random>

/// Chance that comes again with the same seed, on every machine: no distribution of the library's own.
class Chance {
public:
    explicit Chance(unsigned seed) : m_generator(seed) {}

    /// From 0 up to `limit`, which it never is.
    int below(int limit) { return static_cast<int>(m_generator() % static_cast<unsigned>(limit)); }
    bool oneIn(int number) { return below(number) == 0; }

    template <class Container>
    auto oneOf(const Container& container) {
        return *(container.begin() + below(static_cast<int>(container.size())));
    }
    template <class Item>
    Item oneOf(std::initializer_list<Item> items) {
        return *(items.begin() + below(static_cast<int>(items.size())));
    }

    /// What a user may type, and what he never would.
    QString text() {
        return oneOf({QStringLiteral("good"), QStringLiteral("0"), QStringLiteral("-12,5e3"),
                      QStringLiteral("é<b>%1</b>'\"&"), QStringLiteral("%"), QString(300, QLatin1Char('W')),
                      QStringLiteral("\u202e\u0301\n\t"), QString()});
    }

private:
    std::mt19937 m_generator;
};
