# SPDX-License-Identifier: GPL-3.0-or-later
# Runs one console script and compares what it printed, and its exit status,
# with NAME.expected. A line "#args: ..." in the script gives the options; a
# script made of a line "#run: ..." runs the program with those arguments
# instead of the console (one-line conversions, --help).
# Each script runs with a settings folder of its own, which starts from
# NAME.ini when the script has one beside it (else from the shipped file),
# and in that folder, where the test profiles of tests/data/aircraft are at
# aircraft/ (and a profile a script exports stays).
# LAUNCHER, when given, runs the program (node for the WebAssembly build).
get_filename_component(dir ${SCRIPT} DIRECTORY)
get_filename_component(name ${SCRIPT} NAME_WE)
file(STRINGS ${SCRIPT} arg_lines REGEX "^#args:")
set(args "")
if(arg_lines)
    list(GET arg_lines 0 arg_line)
    string(REGEX REPLACE "^#args: *" "" arg_line "${arg_line}")
    separate_arguments(args UNIX_COMMAND "${arg_line}")
endif()
if(NOT WORK)
    set(WORK ${CMAKE_CURRENT_BINARY_DIR})
endif()
set(folder ${WORK}/golden/${name})
file(REMOVE_RECURSE ${folder})
if(EXISTS ${dir}/${name}.ini)
    file(MAKE_DIRECTORY ${folder}/Tech)
    file(COPY_FILE ${dir}/${name}.ini ${folder}/Tech/zelFLIGHTAB.ini)
endif()
file(COPY ${dir}/../data/aircraft DESTINATION ${folder})
file(STRINGS ${SCRIPT} run_lines REGEX "^#run:")
set(command ${LAUNCHER} ${PROGRAM} --console ${SCRIPT} --folder ${folder} ${args})
if(run_lines)
    list(GET run_lines 0 run_line)
    string(REGEX REPLACE "^#run: *" "" run_line "${run_line}")
    separate_arguments(run_args UNIX_COMMAND "${run_line}")
    set(command ${LAUNCHER} ${PROGRAM} --folder ${folder} ${run_args})
endif()
execute_process(COMMAND ${command} WORKING_DIRECTORY ${folder}
    OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
set(actual "${out}${err}exit ${status}\n")
file(READ ${dir}/${name}.expected expected)
if(NOT actual STREQUAL expected)
    file(WRITE ${WORK}/${name}.actual "${actual}")
    message(FATAL_ERROR "console script ${name} printed:\n${actual}\nexpected:\n${expected}")
endif()
