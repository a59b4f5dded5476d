#include <parameters/rows/RowFaults.hpp>

#include <parameters/rows/ParameterRow.hpp>
#include <sorrel/EditorFaults.hpp>

namespace Talo {

void showFaultsInRows() {
    auto& faults = Kolt::EditorFaults::theFaults();
    static auto const connection =
        QObject::connect(&faults, &Kolt::EditorFaults::failed, &faults, [](QWidget* editor, QString const& sentence) {
            if (auto* const row = ParameterRow::rowOf(editor))
                row->showFault(sentence);
        });
}

} // namespace Talo
