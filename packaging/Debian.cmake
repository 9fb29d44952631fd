# `cpack` makes a Debian package of each component. They are for the release they are built on: what they depend on is
# read from what they were linked with.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kelcontrols8)
set(CPACK_PACKAGE_VENDOR KelControls8)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "KelControls8 developers")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_COMPONENTS_ALL "")

# A component's package: its name, section, one line and a few on what it holds.
function(kel_debian_package component name section summary description)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} PARENT_SCOPE)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
    install(FILES copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
endfunction()

set(shown "text, numbers, dates, times, choices,\nyes or no, and the progress of long jobs.")
if(BUILD_SHARED_LIBS)
    kel_debian_package(library libkelcontrols8 libs "data-entry controls for business forms"
        "Controls with captions for ${shown}\nAs Qt 6 widgets, and in memory for tests without a screen.")
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libkelcontrols8 (= ${PROJECT_VERSION})")
endif()
kel_debian_package(development libkelcontrols8-dev libdevel "data-entry controls for business forms, for developers"
    "Headers and CMake files: find_package(KelControls8 8 COMPONENTS Qt Headless).")
if(KEL_QT)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", qt6-base-dev (>= 6.4)")
    string(REGEX REPLACE "^, " "" CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS}")
endif()
if(TARGET kelforms)
    kel_debian_package(kelforms kelforms misc "opens, plays and checks classic Basic forms"
        "Shows a form (.frm) in a window or on a terminal, plays scripted sessions on it,\nchecks it and writes it back.")
    # Qt loads its databases as it runs.
    set(CPACK_DEBIAN_KELFORMS_PACKAGE_DEPENDS libqt6sql6-sqlite)
    set(CPACK_DEBIAN_KELFORMS_PACKAGE_SUGGESTS libqt6sql6-psql)
endif()
# What links the library itself: it is found where it was built, and depended on by name.
if(TARGET kel_designer)
    kel_debian_package(designer kelcontrols8-designer libdevel "data-entry controls in Qt Designer"
        "A plugin that offers the controls in the widget box.")
    if(BUILD_SHARED_LIBS)
        set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_CURRENT_BINARY_DIR})
        set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "libkelcontrols8 (= ${PROJECT_VERSION})")
    endif()
endif()
include(CPack)
