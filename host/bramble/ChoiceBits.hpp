#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// A bit for each text of a list. Copies share what is equal, so the many copies that a history keeps take little: a
/// copy costs 16 bytes for each 4,096 bits, and about as much more for each such piece that was changed. One thread at
/// a time; an object and its copies may be used on different threads. Prints nothing.
class TALO_EXPORT ChoiceBits {
public:
    /// So many bits, all off.
    explicit ChoiceBits(std::size_t size = 0);
    ~ChoiceBits();
    /// Shares the pieces of the other, and of the copy that was made of it last, with that.
    ChoiceBits(ChoiceBits const& other);
    ChoiceBits& operator=(ChoiceBits const&) = delete;

    /// How many bits there are.
    std::size_t size() const { return size_; }
    /// Whether a bit is on. REQUIRES: `place` is below size().
    bool operator[](std::size_t place) const {
        return (((*pieces_[place / bitsOfAPiece])[place % bitsOfAPiece / bitsOfAWord] >> (place % bitsOfAWord)) & 1U) !=
               0;
    }
    /// Switches a bit. REQUIRES: `place` is below size().
    void set(std::size_t place, bool on);
    /// Switches all bits on or off.
    void setAll(bool on);
    /// Switches each bit that is off on, and the other way round.
    void flip();
    /// The first place, not before `from`, at which both differ; size() if there is none. REQUIRES: both have the same
    /// size.
    std::size_t firstDifference(ChoiceBits const& other, std::size_t from = 0) const;
    /// The bytes of the pieces that it shares with nobody, and of the list of all pieces.
    std::size_t byteCount() const;

private:
    static constexpr std::size_t bitsOfAWord = 64;
    static constexpr std::size_t wordsOfAPiece = 64;
    static constexpr std::size_t bitsOfAPiece = bitsOfAWord * wordsOfAPiece;
    using Piece = std::array<std::uint64_t, wordsOfAPiece>;
    using Pieces = std::vector<std::shared_ptr<Piece>>;

    /// Has equal pieces of the last copy instead of its own. What is edited as a whole is nearly always as it was.
    void shareWithLastCopy() const;

    std::size_t const size_;
    // Bits behind the last one have no meaning.
    mutable Pieces pieces_;
    // Which pieces were made here and never shared. Only these may be changed: whether those who shared another one are
    // all gone cannot be asked without waiting for their threads.
    mutable std::vector<bool> isOwn_;
    mutable Pieces lastCopy_;
};

} // namespace Kolt
