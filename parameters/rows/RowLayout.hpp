#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Where the rows of a long form are: rows below each other, in sections. Most rows were never made; their height is
/// estimated from rows of their height class. Knows no widgets. All lengths are in pixels; rows and sections are
/// numbered from 0, and the rows of one section are consecutive. Rows can be joined to the ones before them, and stand
/// beside them: they share a place, which is as high as the highest of them.
class TALO_EXPORT RowLayout {
public:
    /// The room that a section adds around its rows.
    struct SectionMargins {
        /// Above the first row.
        int top = 0;
        /// Below the last row.
        int bottom = 0;
        /// The height of the section while it is folded.
        int folded = 0;
    };
    /// The constant distances of the form.
    struct Spacing {
        int top = 0;    ///< above the first section
        int bottom = 0; ///< below the last one
        /// Between two sections.
        int betweenSections = 0;
        /// Between two rows of a section.
        int betweenRows = 0;
        int unknownRowHeight = 0; ///< the height of a row of whose class no height is known
    };

    /// A form without sections.
    explicit RowLayout(Spacing const& spacing) : spacing_(spacing) {}

    /// Makes room for that many rows, so that adding them moves none.
    void reserve(std::size_t rows) { rows_.reserve(rows); }
    /// Adds a section at the end and returns its number.
    std::size_t addSection();
    /// Adds a row at the end of the last section. REQUIRES: a section. Rows of one height class share a height
    /// estimate.
    void addRow(std::uint32_t heightClass) {
        auto& row = rows_.emplace_back();
        row.section = static_cast<std::uint32_t>(sections_.size() - 1);
        row.heightClass = heightClass;
        row.height = spacing_.unknownRowHeight;
        ++sections_.back().rowCount;
        isArranged_ = false;
        if (heightClass >= estimates_.size())
            estimates_.resize(heightClass + 1);
    }
    /// Sets the room around the rows of a section; 0 at first.
    void setSectionMargins(std::size_t section, SectionMargins const& margins);

    /// The height of a row that exists. It becomes the estimate of its class. Says whether the row's height changed.
    bool setHeight(std::size_t row, int height);
    /// From now on the height of the row is estimated.
    void dropHeight(std::size_t row);
    /// Forgets the estimates, as after a change of the font.
    void forgetEstimates();
    /// Of a folded section only its title is seen, if it has a shown row. Sections are open at first.
    void setFolded(std::size_t section, bool folded);
    /// A row that is not shown takes no room. Rows are shown at first.
    void setShown(std::size_t row, bool shown);

    /// Puts a row beside the one before it, or below it, as it is at first. The first row of a section stays below.
    void setJoined(std::size_t row, bool joined);

    /// Computes the places of all rows and sections. To be called after changes, before places are asked for; without
    /// one since the last call it does nothing.
    void arrange();

    /// The number of rows, shown or not.
    std::size_t rowCount() const { return rows_.size(); }
    /// The number of sections.
    std::size_t sectionCount() const { return sections_.size(); }
    /// Whether the section is folded.
    bool isFolded(std::size_t section) const { return sections_[section].folded; }
    /// Whether the row is shown wherever its section is open.
    bool passesFilter(std::size_t row) const { return rows_[row].shown; }
    /// Whether the row has a place: it is shown, and its section is not folded.
    bool isShown(std::size_t row) const { return rows_[row].shown && !isFolded(rows_[row].section); }
    /// The number of shown rows, in folded sections as well.
    std::size_t shownCount() const;
    /// The number of the row's section.
    std::size_t sectionOf(std::size_t row) const { return rows_[row].section; }
    /// From the top of the form; of a row that is not shown the place at which it would begin.
    int top(std::size_t row) const { return rows_[row].top; }
    /// The height of the row's place, measured or estimated; 0 for one that is not shown, nor any row beside it.
    int height(std::size_t row) const { return rows_[row].placeHeight; }
    /// The height of the row itself, measured or estimated, wherever the rows beside it end. Known at once.
    int ownHeight(std::size_t row) const { return rows_[row].height; }
    /// The height class of the row.
    std::size_t heightClassOf(std::size_t row) const { return rows_[row].heightClass; }
    /// Where the row ends, from the top of the form.
    int bottom(std::size_t row) const { return top(row) + height(row); }
    /// Where the section begins, from the top of the form.
    int sectionTop(std::size_t section) const { return sections_[section].top; }
    /// 0 for a section without a shown row.
    int sectionHeight(std::size_t section) const { return sections_[section].height; }
    /// The height of the form.
    int totalHeight() const { return totalHeight_; }
    /// Those of some rows that are out of sight between two heights of the form, but for the nearest ones.
    std::vector<std::size_t> farRows(std::set<std::size_t> const& rows, int top, int bottom, std::size_t nearest) const;
    /// The first row that ends below `y`; rowCount() if there is none. It may be one that is not shown.
    std::size_t firstRowBelow(int y) const;

private:
    // A form has a hundred thousand of them.
    struct Row {
        std::uint32_t section = 0;
        std::uint32_t heightClass = 0;
        int top = 0;
        int height = 0;
        int placeHeight = 0;
        bool measured = false;
        bool shown = true;
        bool joined = false;
    };
    struct Section {
        SectionMargins margins;
        std::size_t firstRow = 0;
        std::size_t rowCount = 0;
        int top = 0;
        int height = 0;
        bool folded = false;
    };
    void arrange(Section& section);
    /// The height that the row needs; 0 if it is not shown. Takes over the estimate of a row that was not measured.
    int neededHeight(Row& row) const;

    Spacing const spacing_;
    std::vector<Row> rows_;
    std::vector<Section> sections_;
    // By class; 0 for one of which no row was measured.
    std::vector<int> estimates_;
    int totalHeight_ = 0;
    bool isArranged_ = false;
};

} // namespace Talo
