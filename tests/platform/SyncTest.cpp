#include <chrono>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "platform/ui/Sync.h"

using namespace Tevra;
using Clock = std::chrono::steady_clock;

namespace {

TEST(Sync, TakenOnceUntilFreed) {
    SyncObject object;
    CSingleLock first(object);
    EXPECT_FALSE(first.IsLocked());
    EXPECT_TRUE(first.Lock(0));
    EXPECT_TRUE(first.Lock(0)) << "it is held already";

    CSingleLock second(object);
    const auto start = Clock::now();
    EXPECT_FALSE(second.Lock(30)) << "the same thread is shut out too";
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(30));
    EXPECT_FALSE(second.IsLocked());
    second.Unlock();
    EXPECT_FALSE(ProbeLock(object, 0)) << "a lock that does not hold the object cannot free it";

    first.Unlock();
    EXPECT_TRUE(second.Lock(-5));
}

TEST(Sync, ScopeAndProbeLeaveTheObjectFree) {
    SyncObject object;
    {
        const CSingleLock lock(object, true);
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_FALSE(ProbeLock(object, 1));
    }
    EXPECT_TRUE(ProbeLock(object, 0));
    EXPECT_TRUE(ProbeLock(object, 0));
}

TEST(Sync, WaitsForAnotherThread) {
    SyncObject object;
    CSingleLock held(object, true);
    std::thread holder([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        held.Unlock();
    });
    EXPECT_TRUE(ProbeLock(object, 10000));
    holder.join();
}

TEST(Sync, ThreadsExcludeEachOther) {
    SyncObject object;
    int counter = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 2000; ++i) {
                const CSingleLock lock(object, true);
                ++counter;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counter, 8000);
}

}  // namespace
