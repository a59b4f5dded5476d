# The version of Qt that everything is built with. Its targets are Qt${TALO_QT}::Core and so on.
set(TALO_QT 5 CACHE STRING "Qt's major version, 5 or 6")
set_property(CACHE TALO_QT PROPERTY STRINGS 5 6)
if(TALO_QT EQUAL 5)
    set(TALO_QT_VERSION 5.15)
elseif(TALO_QT EQUAL 6)
    set(TALO_QT_VERSION 6.4)
else()
    message(FATAL_ERROR "TALO_QT is 5 or 6, not ${TALO_QT}.")
endif()
find_package(Qt${TALO_QT} ${TALO_QT_VERSION} REQUIRED COMPONENTS Core Gui Widgets)

# What Qt gave up before 5.15 is not there. Of what Qt 6 gave up, some has no other name in Qt 5.
if(TALO_QT EQUAL 5)
    target_compile_definitions(talo_warnings INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
endif()

# The sources are written for Qt 5 and warn with Qt 6 where nothing is wrong: sizes have 64 bits there, channels of colours
# are floats, and it deprecates what Qt 5 knows by no other name. The builds with Qt 5 look at all of that.
if(TALO_QT EQUAL 6)
    target_compile_options(talo_warnings INTERFACE -Wno-conversion -Wno-float-conversion)
    target_compile_definitions(talo_warnings INTERFACE QT_NO_DEPRECATED_WARNINGS)
endif()
