#pragma once

#include <cstddef>
#include <functional>
#include <parameters/rows/ParameterRow.hpp>
#include <QScrollArea>
#include <tessera/Export.hpp>

namespace Talo {

/// Moves the focus from control to control through the rows of a form, made or not, as Tab does, and scrolls to it.
/// User-interface thread.
class TALO_EXPORT RowTabs {
public:
    /// Gives the row of a number, made if need be; null for one that is not shown.
    using RowOf = std::function<ParameterRow*(std::size_t number)>;

    /// For the rows of an area, which must outlive the object; they are numbered from 0.
    RowTabs(QScrollArea& area, std::size_t count, RowOf rowOf);

    /// Gives the focus to the first control of an editor; false if there is none.
    bool focusFirstEditor() const;
    /// Gives the focus to the next or the previous control after one in the row of this number, else to what follows
    /// the area. False if there is none.
    bool focusNext(QWidget& focus, std::size_t row, bool next) const;

private:
    /// Gives the focus to a control of the next row that has one, from a row on. The indicator before the editor is
    /// skipped if `toEditor`.
    bool focusFrom(std::ptrdiff_t row, bool next, bool toEditor) const;
    bool focusIn(ParameterRow& row, bool first, bool toEditor) const;
    void focusStop(QWidget& stop, bool next) const;

    QScrollArea& area_;
    std::size_t const count_;
    RowOf const rowOf_;
};

} // namespace Talo
