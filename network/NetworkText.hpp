#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <utility>
#include <vector>

namespace Talo {

/// The text of a network file, written one object after the other: the JSON of a large network takes many times the
/// memory of its text, and what is freed of it piece by piece makes the memory slow. It is the text that Qt would write
/// of the whole network.
class NetworkText {
public:
    /// Writes what a network has beside its objects. `rest` has no key before "objects" in the alphabet.
    explicit NetworkText(QJsonObject const& rest);
    /// Writes one more object.
    void add(QJsonObject const& object);
    /// Writes the rest. To be called once, after all objects.
    void finish();

    /// The whole text. REQUIRES: it is finished.
    QByteArray const& bytes() const { return bytes_; }
    /// The text of the network with everything but its objects.
    QByteArray const& withoutObjects() const { return withoutObjects_; }
    /// How many objects there are.
    std::size_t objectCount() const { return places_.size(); }
    /// The text of a network with nothing but the n-th object. REQUIRES: there is one.
    QByteArray withObject(std::size_t n) const;
    /// Whether an object has slots.
    bool hasSlots() const { return hasSlots_; }

private:
    QByteArray const withoutObjects_;
    // What stands before and behind the objects of a network that has nothing else.
    QByteArray opening_;
    QByteArray closing_;
    QByteArray bytes_;
    // Where each object is in the bytes: its begin and its size.
    std::vector<std::pair<int, int>> places_;
    bool hasSlots_ = false;
};

} // namespace Talo
