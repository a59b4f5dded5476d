#include <tessera/Chunk.hpp>

namespace Tessera {

std::atomic<std::size_t> ChunkBase::TotalMemsize{0};

ChunkBase::ChunkBase(std::size_t bytes) : bytes_(bytes) {
    TotalMemsize += bytes_;
}

ChunkBase::~ChunkBase() {
    TotalMemsize -= bytes_;
}

} // namespace Tessera
