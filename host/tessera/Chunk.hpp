#pragma once

#include <atomic>
#include <cstddef>
#include <tessera/Reference.hpp>
#include <typeinfo>
#include <vector>

namespace Tessera {

/// A block of memory of one element type. Elements are read and written by one thread at a time.
class ChunkBase : public ReferenceBase<ChunkBase> {
public:
    /// The bytes that all living chunks hold together.
    static std::atomic<std::size_t> TotalMemsize;

    ~ChunkBase() override;
    ChunkBase(ChunkBase const&) = delete;
    ChunkBase& operator=(ChunkBase const&) = delete;

    /// The bytes of this block.
    std::size_t memsize() const noexcept { return bytes_; }
    virtual std::type_info const& elementType() const = 0;
    virtual std::size_t size() const = 0;

protected:
    explicit ChunkBase(std::size_t bytes);

private:
    std::size_t bytes_;
};

/// A block of `size` elements of type T, value-initialised.
template <typename T>
class Chunk : public ChunkBase {
public:
    explicit Chunk(std::size_t size) : ChunkBase(size * sizeof(T)), elements_(size) {}

    std::type_info const& elementType() const override { return typeid(T); }
    std::size_t size() const override { return elements_.size(); }
    /// An element; an index beyond the size throws std::out_of_range.
    T& at(std::size_t index) { return elements_.at(index).value; }
    T const& at(std::size_t index) const { return elements_.at(index).value; }

private:
    // A struct, so that a block of bool has addressable elements.
    struct Element {
        T value{};
    };
    std::vector<Element> elements_;
};

} // namespace Tessera
