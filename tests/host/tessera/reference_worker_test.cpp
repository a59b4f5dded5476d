#include "support/TaloTest.hpp"
#include <tessera/Ageable.hpp>
#include <tessera/Reference.hpp>
#include <thread>

namespace {

using Tessera::ReferenceBase;
using Tessera::StrongPtr;
using Tessera::WeakPtr;

struct Shared : ReferenceBase<Shared> {
    explicit Shared(std::atomic<int>& deaths) : deaths_(deaths) {}
    ~Shared() override { ++deaths_; }
    std::atomic<int>& deaths_;
    int const number = 11;
};

void onThreads(int count, std::function<void()> const& work) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < count; ++thread)
        threads.emplace_back(work);
    for (auto& thread : threads)
        thread.join();
}

class ReferencesOnThreads : public TaloTest {
protected:
    std::atomic<int> deaths_{0};
};

TEST_F(ReferencesOnThreads, CopiesMadeAndDroppedOnManyThreadsKeepTheCount) {
    {
        StrongPtr<Shared> const shared(new Shared(deaths_));
        onThreads(4, [&] {
            for (int round = 0; round < 5000; ++round) {
                auto const copy = shared;
                WeakPtr<Shared> const weak(copy);
                auto const again = weak.strong();
                if (!again || again->number != 11)
                    ADD_FAILURE() << "the object was lost";
            }
        });
        EXPECT_EQ(deaths_, 0);
    }
    EXPECT_EQ(deaths_, 1);
}

TEST_F(ReferencesOnThreads, AWeakReferenceYieldsTheWholeObjectOrNoneWhileTheLastStrongOneGoes) {
    constexpr int rounds = 300;
    for (int round = 0; round < rounds; ++round) {
        StrongPtr<Shared> strong(new Shared(deaths_));
        WeakPtr<Shared> const weak(strong);
        std::atomic<int> ready{0};
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 2; ++thread) {
            threads.emplace_back([&ready, own = WeakPtr<Shared>(weak)] {
                ++ready;
                for (int attempt = 0; attempt < 100; ++attempt) {
                    auto const held = own.strong();
                    if (held && held->number != 11)
                        ADD_FAILURE() << "a dead object was given out";
                }
            });
        }
        while (ready != 2)
            std::this_thread::yield();
        strong.reset();
        for (auto& thread : threads)
            thread.join();
        EXPECT_FALSE(weak.alive());
    }
    EXPECT_EQ(deaths_, rounds);
}

TEST_F(ReferencesOnThreads, TheLastOfManyThreadsDeletesTheObjectOnce) {
    constexpr int rounds = 300;
    for (int round = 0; round < rounds; ++round) {
        StrongPtr<Shared> const first(new Shared(deaths_));
        auto second = std::make_unique<StrongPtr<Shared>>(first);
        auto third = std::make_unique<StrongPtr<Shared>>(first);
        std::thread left([&] { second.reset(); });
        std::thread right([&] { third.reset(); });
        left.join();
        right.join();
    }
    EXPECT_EQ(deaths_, rounds);
}

TEST_F(ReferencesOnThreads, AgeStampsTakenOnManyThreadsAreAllDifferent) {
    struct Thing : Tessera::Ageable {};
    auto const start = Tessera::Ageable::GlobalTime.load();
    onThreads(4, [] {
        Thing thing;
        unsigned long last = 0;
        for (int round = 0; round < 1000; ++round) {
            thing.renewAge();
            EXPECT_GT(thing.age(), last);
            last = thing.age();
        }
    });
    EXPECT_EQ(Tessera::Ageable::GlobalTime, start + 4000);
}

} // namespace
