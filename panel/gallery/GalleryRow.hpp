#pragma once

#include <array>
#include <panel/gallery/NotificationCounter.hpp>
#include <parameters/rows/EditorCell.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QWidget>

class QHBoxLayout;

namespace Panel {

/// One creator in the gallery: its name and preferences, two editors that it made for one parameter, the parameter's
/// raw value with its age, and how often the parameter notified of a change. Where another creator would be chosen for
/// the same preferences, or none, the row says so under the name.
///
/// The row refers to the parameter weakly and stays usable without it. User-interface thread.
class GalleryRow : public QWidget {
    Q_OBJECT

public:
    /// Makes both editors. A null parameter gives a row that says that there is no value to show. `pools` must outlive
    /// the row.
    GalleryRow(Kolt::InputRegistry::Entry const& entry, Kolt::ParameterPtr const& parameter,
               Kolt::ValuePoolSource& pools, QWidget* parent = nullptr);
    ~GalleryRow() override;

    std::string const& creatorName() const { return creatorName_; }
    /// The readable name of the type that the creator is registered for.
    std::string const& valueType() const { return valueType_; }
    Kolt::CreatorRef const& creator() const { return creator_; }
    Kolt::ParameterPtr parameter() const { return parameter_.strong(); }
    /// An editor, 0 or 1, or its placeholder.
    QWidget* editor(std::size_t index) const { return editors_.at(index).widget(); }
    /// Which creator made an editor, and why.
    Kolt::InputChoice const& choice(std::size_t index) const { return editors_.at(index).choice(); }
    Talo::RawValueLabel* rawValue() const { return rawValue_; }
    NotificationCounter* counter() const { return counter_; }
    /// What is said under the name; empty where everything is as it should be.
    QString note() const;

    /// Shows what the chosen pool holds.
    void showPool();
    /// The widths that the name and an editor need.
    int nameWidth() const;
    int editorWidth() const;
    /// Gives the columns these widths, so that the rows of a page are aligned; the editors share what is left over.
    void setColumnWidths(int name, int editor, int counter);

private:
    QWidget* makeNames(Kolt::InputRegistry::Entry const& entry);
    QWidget* makeCell(std::size_t index);

    std::string const creatorName_;
    std::string const valueType_;
    Kolt::CreatorRef const creator_;
    Kolt::ParameterRef const parameter_;
    std::array<Talo::EditorCell, 2> editors_;
    std::array<QWidget*, 2> cells_{};
    QWidget* names_ = nullptr;
    QLabel* noteLabel_ = nullptr;
    Talo::RawValueLabel* const rawValue_;
    NotificationCounter* const counter_;
};

} // namespace Panel
