# Writes one CTest test per test function of a Qt Test program, and one per data row
# where the function has rows, so that CTest can run a long program's cases side by
# side. Run after each build of the program, with
#   -D PROGRAM=<path> -D NAME=<test name prefix> -D OUTPUT=<file>
#   -D ENVIRONMENT=<list, '|' between entries> -D TIMEOUT=<seconds>
# The program lists its cases with -datatags as "Class function [row tag]".
string(REPLACE "|" ";" environment "${ENVIRONMENT}")
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
            ${PROGRAM} -datatags
    OUTPUT_VARIABLE listing
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} -datatags failed (${status})")
endif()

set(script "")
string(REPLACE "\n" ";" lines "${listing}")
foreach(line IN LISTS lines)
    if(NOT line MATCHES "^[A-Za-z_][A-Za-z0-9_]* ([A-Za-z_][A-Za-z0-9_]*)( (.*))?$")
        continue()
    endif()
    set(function "${CMAKE_MATCH_1}")
    set(case "${function}")
    if(NOT "${CMAKE_MATCH_3}" STREQUAL "")
        set(case "${function}:${CMAKE_MATCH_3}")
    endif()
    string(APPEND script
        "add_test([==[${NAME}.${case}]==] [==[${PROGRAM}]==] [==[${case}]==])\n"
        "set_tests_properties([==[${NAME}.${case}]==] PROPERTIES TIMEOUT ${TIMEOUT} "
        "ENVIRONMENT [==[${environment}]==])\n")
endforeach()
file(WRITE "${OUTPUT}" "${script}")
