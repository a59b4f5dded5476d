#pragma once

#include <lattice/ValuePool.hpp>
#include <panel/gallery/GalleryRow.hpp>
#include <panel/gallery/GalleryState.hpp>
#include <parameters/PoolSource.hpp>
#include <QComboBox>

class QVBoxLayout;

namespace Panel {

/// All registered creators of Qt editors in one state, a row each, in sections by value type. It owns the parameters
/// and the pools. User-interface thread.
class GalleryPage : public QWidget {
    Q_OBJECT

public:
    explicit GalleryPage(GalleryState state, QWidget* parent = nullptr);
    ~GalleryPage() override;

    /// In order of registration, but those of one type together.
    std::vector<GalleryRow*> const& rows() const { return rows_; }
    Talo::PoolSource& pools() { return poolSource_; }
    /// Chooses among the pools; null in a state without a choice.
    QComboBox* poolSelector() const { return poolSelector_; }

signals:
    /// An action of one of the editors was fired.
    void actionFired(QString const& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* makeHeader(GalleryState state);
    void makePoolSelector(QLayout* layout);
    void addSections(QVBoxLayout* layout, GalleryState state);
    void connectActions(Kolt::VParameter const& parameter);
    QWidget* makeColumnTitles() const;
    void alignColumns();

    Talo::PoolSource poolSource_;
    std::vector<Kolt::PoolPtr> pools_;
    std::vector<Kolt::ParameterPtr> parameters_;
    std::vector<GalleryRow*> rows_;
    QWidget* titles_ = nullptr;
    QComboBox* poolSelector_ = nullptr;
};

} // namespace Panel
