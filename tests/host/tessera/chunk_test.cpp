#include "support/TaloTest.hpp"
#include <stdexcept>
#include <tessera/Chunk.hpp>

namespace {

using Tessera::Chunk;
using Tessera::ChunkBase;
using Tessera::StrongPtr;

class ChunkTest : public TaloTest {
protected:
    std::size_t const before_ = ChunkBase::TotalMemsize;
};

TEST_F(ChunkTest, ABlockCountsItsBytesUntilItGoes) {
    {
        StrongPtr<ChunkBase> const doubles(new Chunk<double>(10));
        StrongPtr<ChunkBase> const bytes(new Chunk<char>(3));
        EXPECT_EQ(doubles->memsize(), 10 * sizeof(double));
        EXPECT_EQ(ChunkBase::TotalMemsize, before_ + 10 * sizeof(double) + 3);
    }
    EXPECT_EQ(ChunkBase::TotalMemsize, before_);
}

TEST_F(ChunkTest, ABlockKnowsItsElements) {
    Chunk<int> chunk(2);
    EXPECT_EQ(chunk.size(), 2U);
    EXPECT_EQ(chunk.elementType(), typeid(int));
    EXPECT_EQ(chunk.at(0), 0);
    EXPECT_EQ(chunk.at(1), 0);
    chunk.at(1) = 7;
    EXPECT_EQ(std::as_const(chunk).at(1), 7);
}

TEST_F(ChunkTest, ElementsOfABlockOfBoolAreReferences) {
    Chunk<bool> chunk(2);
    bool& second = chunk.at(1);
    second = true;
    EXPECT_FALSE(chunk.at(0));
    EXPECT_TRUE(chunk.at(1));
}

TEST_F(ChunkTest, AnIndexBeyondTheSizeThrows) {
    Chunk<int> chunk(2);
    EXPECT_THROW(chunk.at(2), std::out_of_range);
    Chunk<int> const empty(0);
    EXPECT_THROW(empty.at(0), std::out_of_range);
}

TEST_F(ChunkTest, ABlockThatCannotBeMadeIsNotCounted) {
    EXPECT_THROW(Chunk<double>(static_cast<std::size_t>(-1) / sizeof(double)), std::exception);
    EXPECT_EQ(ChunkBase::TotalMemsize, before_);
}

} // namespace
