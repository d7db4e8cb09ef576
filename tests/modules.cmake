# SPDX-License-Identifier: GPL-3.0-or-later
# The program's libraries as the dynamic loader reports them: a conversion in
# the terminal loads Qt Core only; a picture of the window loads the window
# module, with Qt Widgets.
set(ENV{LD_DEBUG} libs)
set(ENV{QT_QPA_PLATFORM} offscreen)
file(REMOVE_RECURSE ${WORK})
file(WRITE ${WORK}/empty.script "")
execute_process(COMMAND ${PROGRAM} --folder ${WORK} --convert weight lbs 165
    OUTPUT_VARIABLE out ERROR_VARIABLE loaded RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT out MATCHES "74.83")
    message(FATAL_ERROR "--convert failed: ${status}\n${out}")
endif()
string(REGEX MATCHALL "libQt6[A-Za-z]+" qt "${loaded}")
list(REMOVE_DUPLICATES qt)
if(NOT qt STREQUAL "libQt6Core")
    message(FATAL_ERROR "--convert loaded ${qt}")
endif()
execute_process(COMMAND ${PROGRAM} --folder ${WORK} --script ${WORK}/empty.script
                        --screenshot ${WORK}/window.png
    ERROR_VARIABLE loaded RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT EXISTS ${WORK}/window.png OR NOT loaded MATCHES "zelflightab-window.so"
   OR NOT loaded MATCHES "libQt6Widgets")
    message(FATAL_ERROR "the window's picture: ${status}")
endif()
