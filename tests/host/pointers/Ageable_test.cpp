/// Time stamps.
#include "host/pointers/Ageable.hpp"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/support/Rendezvous.hpp"

namespace tests {
namespace {

using Nucleo::Ageable;

static_assert(!std::has_virtual_destructor_v<Ageable>);
static_assert(sizeof(Ageable) == 8, "one unsigned 64-bit stamp");
static_assert(std::is_same_v<Ageable::Stamp, std::uint64_t>);

TEST(TimeStamp, StartsWithThePresentTimeWithoutAdvancingIt) {
    Ageable::Stamp const before = Ageable::now();
    Ageable const fresh;
    EXPECT_EQ(fresh.age(), before);
    EXPECT_EQ(Ageable::now(), before);
}

TEST(TimeStamp, TouchedAdvancesTheTimeByOneAndTakesIt) {
    Ageable object;
    Ageable::Stamp const before = Ageable::now();
    object.touch();
    EXPECT_EQ(Ageable::now(), before + 1);
    EXPECT_EQ(object.age(), before + 1);
}

TEST(TimeStamp, RaisedTakesALaterStampOnly) {
    Ageable object;
    object.setAge(10);
    object.raiseAge(9);
    EXPECT_EQ(object.age(), 10u);
    object.raiseAge(10);
    EXPECT_EQ(object.age(), 10u);
    object.raiseAge(11);
    EXPECT_EQ(object.age(), 11u);
}

TEST(TimeStamp, CopiedKeepsItsAge) {
    Ageable object;
    object.touch();
    Ageable::GlobalTime.fetch_add(3);
    Ageable const copy(object);
    EXPECT_EQ(copy.age(), object.age());
}

TEST(GlobalTime, LosesNoTouchOnAnyThread) {
    constexpr unsigned threadCount = 4;
    constexpr int rounds = 100, touches = 500;
    Ageable::Stamp const before = Ageable::now();
    Rendezvous together(threadCount);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < threadCount; ++i)
        threads.emplace_back([&] {
            Ageable mine;
            Ageable::Stamp last = mine.age();
            for (int round = 0; round < rounds; ++round) {
                together.arriveAndWait();
                for (int k = 0; k < touches; ++k) {
                    mine.touch();
                    EXPECT_GT(mine.age(), last);
                    last = mine.age();
                }
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(Ageable::now(), before + threadCount * rounds * touches);
}

}  // namespace
}  // namespace tests
