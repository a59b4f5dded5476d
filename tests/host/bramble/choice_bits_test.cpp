#include "support/TaloTest.hpp"

#include <bramble/ChoiceBits.hpp>
#include <random>

namespace {

using Kolt::ChoiceBits;

/// The bits beside a plain list of them.
class ChoiceBitsTest : public TaloTest, public testing::WithParamInterface<unsigned> {
protected:
    struct Pair {
        ChoiceBits bits;
        std::vector<bool> plain;
    };
    std::size_t below(std::size_t limit) { return random_() % limit; }
    void change(Pair& pair) {
        auto const all = pair.plain.size();
        switch (below(all == 0 ? 3 : 8)) {
        case 0:
            pair.bits.setAll(true);
            pair.plain.assign(all, true);
            break;
        case 1:
            pair.bits.setAll(false);
            pair.plain.assign(all, false);
            break;
        case 2:
            pair.bits.flip();
            pair.plain.flip();
            break;
        default:
            for (auto count = below(20); count > 0; --count) {
                auto const place = below(all);
                bool const on = below(2) != 0;
                pair.bits.set(place, on);
                pair.plain[place] = on;
            }
        }
    }
    std::mt19937 random_{GetParam()};
};

TEST_P(ChoiceBitsTest, AndTheirCopiesAreLikePlainBits) {
    auto const size = below(3) ? below(20'000) : 4096 * below(4);
    std::vector<std::unique_ptr<Pair>> pairs;
    pairs.push_back(std::make_unique<Pair>(Pair{ChoiceBits(size), std::vector<bool>(size)}));
    for (int step = 0; step < 60; ++step) {
        auto const& source = *pairs[below(pairs.size())];
        if (pairs.size() < 6)
            pairs.push_back(std::make_unique<Pair>(source));
        else
            pairs[below(pairs.size())] = std::make_unique<Pair>(source);
        change(*pairs[below(pairs.size())]);
        auto const& left = *pairs[below(pairs.size())];
        auto const& right = *pairs[below(pairs.size())];
        for (std::size_t place = 0; place < size; ++place)
            ASSERT_EQ(left.bits[place], left.plain[place]) << place;
        auto const from = below(size + 1);
        auto place = from;
        while (place < size && left.plain[place] == right.plain[place])
            ++place;
        ASSERT_EQ(left.bits.firstDifference(right.bits, from), place) << from;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ChoiceBitsTest, testing::Range(0U, 30U));

using CopiedChoiceBits = TaloTest;

TEST_F(CopiedChoiceBits, TakeLittleHoweverTheyWereEdited) {
    constexpr std::size_t size = 100'000;
    ChoiceBits edited(size);
    std::vector<std::unique_ptr<ChoiceBits>> copies;
    for (std::size_t step = 0; step < 50; ++step) {
        // As an editor does after a click: everything is chosen anew.
        edited.setAll(false);
        for (std::size_t place = 0; place < size; place += 7)
            edited.set(place, true);
        edited.set(step, true);
        copies.push_back(std::make_unique<ChoiceBits>(edited));
    }
    for (auto const& copy : copies)
        EXPECT_LT(copy->byteCount(), 1100U);
    EXPECT_TRUE((*copies.front())[7]);
    EXPECT_FALSE((*copies.front())[1]);
    EXPECT_TRUE((*copies.back())[49]);
}

} // namespace
