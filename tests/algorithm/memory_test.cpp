#include "enginetest.h"

using namespace enginetest;
using Pool = algo::core::MemoryManager<Values>;

// The pool lives as long as the process, so each test takes sizes of its own.

TEST(ScratchPool, a_freed_buffer_is_used_again_with_its_old_contents) {
    const auto* storage = &Pool::getVector(11).data();
    Pool::getVector(11).data()[3] = 42;
    const auto again = Pool::getVector(11);
    EXPECT_EQ(&again.data(), storage);
    EXPECT_EQ(again.data()[3], 42);
    EXPECT_EQ(Pool::getVector(11).data(), Values(11, 0.0)); // another one, since the first is in use
    EXPECT_EQ(Pool::getVector(10).data().size(), 10U);      // no larger buffer stands in
    EXPECT_EQ(Pool::getVector(0).data().size(), 0U);
}

TEST(ScratchPool, copies_keep_a_buffer_busy_however_far_the_pool_grows) {
    std::vector<algo::core::Vector<Values>> handles;
    for (int i = 0; i < 3000; ++i) { // the vector copies them as it grows
        handles.push_back(Pool::getVector(13));
        handles.back().data()[0] = i;
    }
    for (std::size_t i = 0; i < 3000; ++i) {
        ASSERT_EQ(handles[i].data()[0], i);
    }
    handles[7] = handles[8];
    EXPECT_EQ(Pool::getVector(13).data()[0], 7); // assigned away, so free
}

TEST(ScratchPool, refuses_more_than_ten_million_numbers) {
    EXPECT_EQ(Pool::getVector(10000000).data().size(), 10000000U);
    EXPECT_RAISES(Pool::getVector(10000001), "MemoryManager::getVector", "core/memorymanager.h",
                  "request over-sized vector");
}
