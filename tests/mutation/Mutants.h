#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

/// Damaged forms of one file, the same ones in every run: one byte in twenty is another one, or a few bytes
/// alone, or a piece is missing, doubled or moved. VORN_MUTANTS makes that many times as many.
class Mutants {
public:
    /// All begin after the first `spared` bytes.
    explicit Mutants(std::string whole, std::size_t spared = 0)
        : m_whole(std::move(whole)), m_spared(spared) {}

    /// Calls `meet` with each and its number, and counts how often it was true. One that takes longer than 20
    /// seconds ends the program.
    template <class Meeting>
    int each(int count, const Meeting& meet) const {
        const char* const times = std::getenv("VORN_MUTANTS");
        count *= times == nullptr ? 1 : std::max(1, std::atoi(times));
        int met = 0;
        for (int number = 0; number < count && !testing::Test::HasFailure(); ++number) {
            const testing::ScopedTrace trace(__FILE__, __LINE__, "mutant " + std::to_string(number));
            alarm(20);
            met += meet(mutant(static_cast<unsigned>(number)), number) ? 1 : 0;
        }
        alarm(0);
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        EXPECT_LT(usage.ru_maxrss, 1'500'000) << "KiB";
        return met;
    }

    std::string mutant(unsigned number) const {
        std::mt19937 chance(number);
        std::string bytes = m_whole;
        if (bytes.size() <= m_spared) {
            return bytes;
        }
        const auto place = [&] { return m_spared + chance() % (bytes.size() - m_spared); };
        if (const unsigned kind = number % 5; kind < 4) {
            for (auto changes = kind < 2 ? (bytes.size() - m_spared) / 20 + 1 : 1 + chance() % 8; changes > 0;
                 --changes) {
                bytes[place()] = kind % 2 == 0 ? static_cast<char>(chance()) : bytes[place()];
            }
            return bytes;
        }
        const std::string piece = bytes.substr(place(), 1 + chance() % 2000);
        bytes.insert(place(), chance() % 2 == 0 ? piece : std::string());
        bytes.erase(place(), chance() % 3 == 0 ? 0 : 1 + chance() % 2000);
        return bytes;
    }

private:
    std::string m_whole;
    std::size_t m_spared;
};
