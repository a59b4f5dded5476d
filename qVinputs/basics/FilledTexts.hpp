#pragma once

#include <memory>
#include <QAbstractItemModel>
#include <QPointer>
#include <tessera/StringList.hpp>

namespace Kolt {

/// Remembers with which texts a model was filled, so that a long list is not filled anew with equal ones. Whatever
/// else changes the model makes it forget. Of a short list it remembers nothing: to fill that anew costs less than to
/// follow its model. User-interface thread.
class FilledTexts {
public:
    /// Lists with fewer texts are not remembered.
    static constexpr std::size_t ShortestList = 256;

    FilledTexts();
    ~FilledTexts();

    /// From now on the model, which is not null, holds these texts and nothing else.
    void remember(QAbstractItemModel* model, Tessera::StrongPtr<Tessera::StringList> const& texts);
    /// Whether the model still holds equal texts in the same order.
    bool hold(QAbstractItemModel const* model, Tessera::StringList const& texts) const;
    /// Call it before the model is filled, and when it is to be filled anew in any case.
    void forget();

private:
    QPointer<QAbstractItemModel> model_;
    Tessera::StrongPtr<Tessera::StringList> texts_;
    // The receiver of the model's signals; null for a short list.
    std::unique_ptr<QObject> receiver_;
};

} // namespace Kolt
