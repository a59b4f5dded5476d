#include <bramble/ChoiceBits.hpp>

#include <algorithm>

namespace Kolt {

ChoiceBits::ChoiceBits(std::size_t size)
    : size_(size), pieces_((size + bitsOfAPiece - 1) / bitsOfAPiece), isOwn_(pieces_.size()) {
    setAll(false);
}

ChoiceBits::~ChoiceBits() = default;

ChoiceBits::ChoiceBits(ChoiceBits const& other) : size_(other.size_), isOwn_(other.isOwn_.size()) {
    other.shareWithLastCopy();
    pieces_ = other.pieces_;
    other.lastCopy_ = pieces_;
    other.isOwn_.assign(isOwn_.size(), false);
}

void ChoiceBits::shareWithLastCopy() const {
    for (std::size_t index = 0; index < lastCopy_.size(); ++index)
        if (pieces_[index] != lastCopy_[index] && *pieces_[index] == *lastCopy_[index])
            pieces_[index] = lastCopy_[index];
}

void ChoiceBits::set(std::size_t place, bool on) {
    if ((*this)[place] == on)
        return;
    auto const index = place / bitsOfAPiece;
    if (!isOwn_[index]) {
        pieces_[index] = std::make_shared<Piece>(*pieces_[index]);
        isOwn_[index] = true;
    }
    (*pieces_[index])[place % bitsOfAPiece / bitsOfAWord] ^= std::uint64_t{1} << (place % bitsOfAWord);
}

void ChoiceBits::setAll(bool on) {
    auto const piece = std::make_shared<Piece>();
    piece->fill(on ? ~std::uint64_t{0} : 0);
    std::fill(pieces_.begin(), pieces_.end(), piece);
    isOwn_.assign(pieces_.size(), false);
}

void ChoiceBits::flip() {
    for (auto& piece : pieces_) {
        piece = std::make_shared<Piece>(*piece);
        std::transform(piece->begin(), piece->end(), piece->begin(), [](auto word) { return ~word; });
    }
    isOwn_.assign(pieces_.size(), true);
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
