#pragma once

#include <memory>
#include <QAbstractItemModel>
#include <QPointer>
#include <tessera/StringList.hpp>

namespace Kolt {

/// Remembers with which texts a model was filled, so that a list is not filled anew with equal ones: even a few entries
/// take many times longer than to choose another one. Whatever else changes the model makes it forget. User-interface
/// thread.
class FilledTexts {
public:
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
    // The receiver of the model's signals; null while nothing is remembered.
    std::unique_ptr<QObject> receiver_;
};

} // namespace Kolt
