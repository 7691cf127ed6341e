#pragma once

#include "core/exception.h"

#include <cstdint>
#include <deque>
#include <utility>

namespace algo::core {

template <class Storage>
class MemoryManager;

/// A handle by value to a scratch buffer of the pool; the last handle on a buffer frees it.
///
/// Not safe across threads: the use count is a plain integer. A handle must not outlive the
/// process's static data.
template <class Storage>
class Vector {
public:
    Vector(const Vector& other) : m_entry(other.m_entry) { ++m_entry->useCount; }
    Vector& operator=(Vector other) noexcept {
        std::swap(m_entry, other.m_entry);
        return *this;
    }
    ~Vector() { --m_entry->useCount; }

    Storage& data() const { return m_entry->data; }
    std::uint64_t size() const { return m_entry->size; }

private:
    friend class MemoryManager<Storage>;

    struct Entry {
        std::int64_t useCount; ///< handles on this entry; 0 means free
        std::uint64_t size;    ///< the key of the pool
        Storage data;
    };

    explicit Vector(Entry& entry) : m_entry(&entry) { m_entry->useCount = 1; }

    Entry* m_entry;
};

/// The process-wide pool of scratch buffers: a size met before costs no allocation.
///
/// Entries are never removed or resized. Nothing is guarded: one thread at a time.
template <class Storage>
class MemoryManager {
public:
    MemoryManager() = delete;

    /// A buffer of exactly `n` numbers. A new one is zeroed, a reused one keeps what its last user
    /// wrote. Raises above 10,000,000 numbers.
    static Vector<Storage> getVector(std::uint64_t n) {
        if (n > 10000000) {
            ALGO_RAISE("request over-sized vector");
        }
        for (auto& entry : s_entries) {
            if (entry.useCount == 0 && entry.size == n) {
                return Vector<Storage>(entry);
            }
        }
        s_entries.push_back({0, n, Storage(n, 0.0)});
        return Vector<Storage>(s_entries.back());
    }

private:
    // Handles point into the pool, so the entries must not move when it grows: a deque, not a vector.
    // One pool for the process is the point of it.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    inline static std::deque<typename Vector<Storage>::Entry> s_entries;
};

} // namespace algo::core
