# SPDX-License-Identifier: GPL-3.0-or-later
# Writes the menu's pages, as the program itself lists them (zelflightab
# --pages), into a text: @PAGE_COUNT@ and @PAGE_LIST@ ("1 Weight, 2 Fluid, ...").
#   cmake -DPROGRAM=zelflightab -DIN=file.in -DOUT=file -P pagelist.cmake
# Included with PROGRAM set and neither IN nor OUT, it only sets the two variables.
execute_process(COMMAND ${PROGRAM} --pages OUTPUT_VARIABLE lines RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "${PROGRAM} --pages failed: ${failed}")
endif()
string(STRIP "${lines}" lines)
string(REPLACE "\n" ";" lines "${lines}")
list(LENGTH lines PAGE_COUNT)
list(TRANSFORM lines REPLACE "\t" " ")
list(JOIN lines ", " PAGE_LIST)
if(DEFINED IN AND DEFINED OUT)
    configure_file(${IN} ${OUT} @ONLY)
endif()
