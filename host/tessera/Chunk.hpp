#pragma once

#include <atomic>
#include <cstddef>
#include <tessera/Reference.hpp>
#include <typeinfo>
#include <vector>

namespace Tessera {

/// A block of memory of one element type, which is counted: TotalMemsize says how much memory all blocks need together.
/// Made for large data of one type, such as the samples of a curve or the pixels of a picture, that an object or a
/// value refers to. The elements are read and written by one thread at a time. Prints nothing.
class TALO_EXPORT ChunkBase : public ReferenceBase<ChunkBase> {
public:
    /// The bytes of all living blocks together; elements count with their own size, not with what they refer to. Any
    /// thread.
    static std::atomic<std::size_t> TotalMemsize;

    ~ChunkBase() override;
    ChunkBase(ChunkBase const&) = delete;
    ChunkBase& operator=(ChunkBase const&) = delete;

    /// The bytes of this block, as counted in TotalMemsize.
    std::size_t memsize() const noexcept { return bytes_; }
    /// The type of the elements.
    virtual std::type_info const& elementType() const = 0;
    /// The number of elements; fixed when the block is made.
    virtual std::size_t size() const = 0;

protected:
    /// Counts these bytes as used, until it is destroyed.
    explicit ChunkBase(std::size_t bytes);

private:
    std::size_t bytes_;
};

/// A block of `size` elements of type T, value-initialised: numbers are 0. Throws std::bad_alloc or std::length_error
/// if the block cannot be made; nothing is counted then.
template <typename T>
class Chunk : public ChunkBase {
public:
    /// Elements with the value that their default constructor gives.
    explicit Chunk(std::size_t size) : ChunkBase(size * sizeof(T)), elements_(size) {}

    std::type_info const& elementType() const override { return typeid(T); }
    std::size_t size() const override { return elements_.size(); }
    /// An element, from 0; throws std::out_of_range for an index beyond the size. The reference stays valid as long as
    /// the block.
    T& at(std::size_t index) { return elements_.at(index).value; }
    /// The element at an index below size().
    T const& at(std::size_t index) const { return elements_.at(index).value; }

private:
    // A struct, so that the elements of a block of bool have addresses.
    struct Element {
        T value{};
    };
    std::vector<Element> elements_;
};

} // namespace Tessera
