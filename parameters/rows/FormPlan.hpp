#pragma once

#include <cstdint>
#include <lattice/Parameter.hpp>
#include <map>
#include <parameters/rows/ParameterVector.hpp>
#include <QStringList>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// In which order and sections a form shows parameters: in sections (ParameterDescription), in order of their first
/// parameter. Within a section parameters keep their order, but for those of a vector, which are together.
struct TALO_EXPORT FormPlan {
    /// One row of the form.
    struct Row {
        /// The parameter of the row, one of those of the form. Never null.
        Kolt::VParameter* parameter = nullptr;
        /// The number of the section, counted from 0.
        std::uint32_t section = 0;
        std::uint32_t heightClass = 0; ///< equal for parameters whose editors are probably equally high
    };

    /// The titles of the sections; empty for parameters without a section.
    QStringList sectionTitles;
    /// The rows in the order in which they are shown.
    std::vector<Row> rows;
    /// The vectors of the form, by the numbers of the rows of their first components. The rows of the others follow.
    std::map<std::size_t, ParameterVector> vectors;
    /// The longest of the labels that rows show.
    QString longestLabel;

    /// The plan for these parameters, none of which is null. Valid as long as they live.
    explicit FormPlan(std::vector<Kolt::ParameterPtr> const& parameters);
};

} // namespace Talo
