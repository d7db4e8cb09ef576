# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build into a scratch prefix, checks that every file lands in its
# standard place, and runs the installed program there: it must start from the
# installed settings file (marked here so that its copy can be told apart).
file(REMOVE_RECURSE ${WORK})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/usr
    OUTPUT_QUIET RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${status}")
endif()
foreach(path
        bin/zelflightab
        lib/zelflightab/zelflightab-window.so
        lib/zelflightab/zelflightab-http.so
        share/applications/zelflightab.desktop
        share/metainfo/io.github.zelflightab.zelflightab.metainfo.xml
        share/icons/hicolor/scalable/apps/zelflightab.svg
        share/man/man1/zelflightab.1.gz
        share/zelflightab/zelFLIGHTAB.ini)
    if(NOT EXISTS ${WORK}/usr/${path})
        message(FATAL_ERROR "not installed: ${path}")
    endif()
endforeach()
file(APPEND ${WORK}/usr/share/zelflightab/zelFLIGHTAB.ini "; installed copy\r\n")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env --unset=XDG_DATA_HOME HOME=${WORK}/home
            ${WORK}/usr/bin/zelflightab --locale en_US --convert weight lbs 165
    OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT out MATCHES "row 1 \"kilogram - kg\" \"74.83\"")
    message(FATAL_ERROR "the installed program printed (${status}):\n${out}${err}")
endif()
file(READ ${WORK}/home/.local/share/zelFLIGHTAB/Tech/zelFLIGHTAB.ini settings)
if(NOT settings MATCHES "; installed copy")
    message(FATAL_ERROR "the settings were not copied from the installed file:\n${settings}")
endif()
# The installed program finds its window module.
file(WRITE ${WORK}/empty.script "")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env HOME=${WORK}/home QT_QPA_PLATFORM=offscreen
            ${WORK}/usr/bin/zelflightab --script ${WORK}/empty.script --screenshot ${WORK}/window.png
    RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT EXISTS ${WORK}/window.png)
    message(FATAL_ERROR "the installed program drew no window (${status})")
endif()
