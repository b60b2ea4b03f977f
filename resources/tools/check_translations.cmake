# ctest script: a translation file holds every text of the console's sources, each one
# finished. lupdate runs over a copy; an entry the committed file lacks comes back
# unfinished in the copy, as does one never translated.
# Arguments: LUPDATE, TS (the committed file), WORK_DIR.

include("${CMAKE_CURRENT_LIST_DIR}/../translations.cmake")

get_filename_component(name "${TS}" NAME)
set(copy "${WORK_DIR}/${name}")
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
file(COPY_FILE "${TS}" "${copy}")

execute_process(COMMAND "${LUPDATE}" ${SK_LUPDATE_ARGUMENTS} -ts "${copy}"
    RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "lupdate failed (${rc}):\n${out}${err}")
endif()

file(READ "${copy}" text)
string(REGEX MATCHALL "<name>[^<]*</name>|<source>[^<]*</source>[ \r\n]*<translation type=\"unfinished\""
    hits "${text}")
set(context "")
set(missing "")
set(count 0)
foreach(hit IN LISTS hits)
    if(hit MATCHES "^<name>([^<]*)</name>$")
        set(context "${CMAKE_MATCH_1}")
    elseif(hit MATCHES "^<source>([^<]*)</source>")
        string(APPEND missing "  ${context}: \"${CMAKE_MATCH_1}\"\n")
        math(EXPR count "${count} + 1")
    endif()
endforeach()
if(count GREATER 0)
    message(FATAL_ERROR "${name}: ${count} text(s) missing or unfinished; run the "
        "update_translations target and translate them:\n${missing}")
endif()
message(STATUS "${name}: every text of the sources is translated")
