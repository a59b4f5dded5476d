#pragma once

#include <string>
#include <vector>

/// A creator that the plug-in registers when it is loaded.
struct CreatorRow {
    std::string module;    ///< the source file that defines it
    std::string valueType; ///< readable name
    std::string name;
    std::vector<std::string> given; ///< its preferences, sorted; "QT" is added to them
};

/// All creators; those of one module are in the order of their registration. A new editor adds its rows here.
inline std::vector<CreatorRow> const& creatorsTable() {
    static std::vector<CreatorRow> const rows = {
        {"QBool", "bool", "boolean", {}},
        {"QInteger", "int", "int", {}},
        {"QInteger", "int", "intDial", {"dial"}},
        {"QInteger", "int", "intDialPeriodic", {"dial", "periodic"}},
        {"QFloat", "double", "double", {}},
        {"QFloat", "double", "FltDial", {"dial"}},
        {"QFloat", "double", "Periodic FltDial", {"dial", "periodic"}},
        {"qVAction", "Tessera::StrongPtr<Kolt::VAction>", "action", {}},
        {"qVColor", "Ferro::rgba_float_t", "ColorDisplay", {"QT"}},
        {"vQEnum", "Kolt::Enum", "enum", {}},
        {"qVFlagList", "Kolt::FlagList", "checkboxes", {}},
        {"qVInfo", "Kolt::info", "InformationDisplay", {}},
        {"qVMultipleStringList",
         "Tessera::StrongPtr<Kolt::MultipleStringSelection, Tessera::StringList>",
         "selection",
         {}},
        {"qVMultipleStringList",
         "Tessera::StrongPtr<Kolt::MultipleStringSelection, Tessera::StringList>",
         "selection",
         {"editable"}},
        {"qVObjectStatus", "Kolt::VObjectStatus", "StatusDisplay", {}},
        {"qVStringInput", "std::string", "simplestring", {"OneLine"}},
        {"qVStringInput", "std::array<std::string, 1>", "singlelinestring", {}},
        {"qVStringList", "Tessera::StrongPtr<Kolt::StringSelection, Tessera::StringList>", "selection", {}},
        {"qVStringList", "Tessera::StrongPtr<Kolt::StringSelection, Tessera::StringList>", "selection", {"editable"}},
        {"qVString", "std::string", "string", {"MultiLine"}},
        {"qVstringFileNameInput", "std::string", "FileNameCreator", {"Save as"}},
        {"qVstringFileNameInput", "std::string", "FileNameCreatorPDF", {"Save as PDF"}},
        {"qVstringFileNameInput", "std::string", "OpenFileCreator", {"FileInput"}},
    };
    return rows;
}
