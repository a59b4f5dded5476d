#include <bramble/ChoiceBits.hpp>

#include <algorithm>
#include <atomic>

namespace Kolt {

ChoiceBits::ChoiceBits(std::size_t size) : size_(size), pieces_((size + bitsOfAPiece - 1) / bitsOfAPiece) {
    setAll(false);
}

ChoiceBits::~ChoiceBits() = default;

ChoiceBits::ChoiceBits(ChoiceBits const& other) : size_(other.size_) {
    other.shareWithLastCopy();
    pieces_ = other.pieces_;
    other.lastCopy_ = pieces_;
}

void ChoiceBits::shareWithLastCopy() const {
    for (std::size_t index = 0; index < lastCopy_.size(); ++index)
        if (pieces_[index] != lastCopy_[index] && *pieces_[index] == *lastCopy_[index])
            pieces_[index] = lastCopy_[index];
}

void ChoiceBits::set(std::size_t place, bool on) {
    auto& piece = pieces_[place / bitsOfAPiece];
    auto const bit = std::uint64_t{1} << (place % bitsOfAWord);
    auto const word = place % bitsOfAPiece / bitsOfAWord;
    if ((*this)[place] == on)
        return;
    auto const changed = on ? (*piece)[word] | bit : (*piece)[word] & ~bit;
    if (piece.use_count() > 1)
        piece = std::make_shared<Piece>(*piece);
    // Another thread may have given the piece up just now.
    std::atomic_thread_fence(std::memory_order_acquire);
    const_cast<Piece&>(*piece)[word] = changed;
}

void ChoiceBits::setAll(bool on) {
    auto const piece = std::make_shared<Piece>();
    piece->fill(on ? ~std::uint64_t{0} : 0);
    std::fill(pieces_.begin(), pieces_.end(), piece);
}

void ChoiceBits::flip() {
    for (auto& piece : pieces_) {
        auto const flipped = std::make_shared<Piece>(*piece);
        std::transform(flipped->begin(), flipped->end(), flipped->begin(), [](auto word) { return ~word; });
        piece = flipped;
    }
}

std::size_t ChoiceBits::byteCount() const {
    auto const own =
        std::count_if(pieces_.begin(), pieces_.end(), [](auto const& piece) { return piece.use_count() == 1; });
    return pieces_.size() * sizeof(Pieces::value_type) + static_cast<std::size_t>(own) * sizeof(Piece);
}

std::size_t ChoiceBits::firstDifference(ChoiceBits const& other, std::size_t from) const {
    for (auto place = from; place < size_; ++place) {
        auto const& piece = pieces_[place / bitsOfAPiece];
        auto const& otherPiece = other.pieces_[place / bitsOfAPiece];
        if (place % bitsOfAPiece == 0 && (piece == otherPiece || *piece == *otherPiece))
            place += bitsOfAPiece - 1;
        else if ((*this)[place] != other[place])
            return place;
    }
    return size_;
}

} // namespace Kolt
