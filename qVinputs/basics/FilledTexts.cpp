#include <qVinputs/basics/FilledTexts.hpp>

namespace Kolt {

FilledTexts::FilledTexts() = default;

FilledTexts::~FilledTexts() = default;

void FilledTexts::remember(QAbstractItemModel* model, Tessera::StrongPtr<Tessera::StringList> const& texts) {
    forget();
    if (!texts)
        return;
    model_ = model;
    texts_ = texts;
    receiver_ = std::make_unique<QObject>();
    // The receiver stays, because this is called by one of its connections.
    auto const lose = [this] { texts_.reset(); };
    QObject::connect(model, &QAbstractItemModel::dataChanged, receiver_.get(), lose);
    QObject::connect(model, &QAbstractItemModel::rowsInserted, receiver_.get(), lose);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, receiver_.get(), lose);
    QObject::connect(model, &QAbstractItemModel::rowsMoved, receiver_.get(), lose);
    QObject::connect(model, &QAbstractItemModel::layoutChanged, receiver_.get(), lose);
    QObject::connect(model, &QAbstractItemModel::modelReset, receiver_.get(), lose);
}

bool FilledTexts::hold(QAbstractItemModel const* model, Tessera::StringList const& texts) const {
    return texts_ && model_ == model && texts_->hasSameTexts(texts);
}

void FilledTexts::forget() {
    receiver_.reset();
    texts_.reset();
    model_.clear();
}

} // namespace Kolt
