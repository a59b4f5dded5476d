# The plug-in's sources, in plugin_sources. Each target that compiles them includes this file, so that moc runs for the
# target when the list changes; for a list that came another way it does not.

# The editors: each is a class, whose header and source have its name.
set(editors
    QBool
    QFloat
    QInteger
    QIntegerIcon
    qVAction
    qVColor
    qVFlagList
    qVInfo
    qVMultipleStringList
    qVObjectStatus
    qVString
    qVstringFileNameInput
    qVStringInput
    qVStringList
    vQEnum
)
# What they share.
set(plugin_sources
    FilledTexts.cpp
    FilledTexts.hpp
    FloatInterval.cpp
    FloatInterval.hpp
    IconFile.cpp
    IconFile.hpp
    NumberControl.hpp
    NumberSelection.cpp
    NumberSelection.hpp
    NumberToolTip.cpp
    NumberToolTip.hpp
    Text.hpp)
foreach(editor IN LISTS editors)
    list(APPEND plugin_sources ${editor}.cpp ${editor}.hpp)
endforeach()
list(TRANSFORM plugin_sources PREPEND "${PROJECT_SOURCE_DIR}/qVinputs/basics/")
foreach(source IN ITEMS
        Plugin.cpp
        Plugin.hpp
        QInputWidgetCreator.hpp
        ValueCreators.cpp
        VInputValue.hpp)
    list(APPEND plugin_sources "${CMAKE_CURRENT_LIST_DIR}/${source}")
endforeach()
