# ctest script: the help documents the build rendered have their pages and their text.
# Arguments: PDFTOTEXT, PDFINFO, GUIDE, EULA.

function(check_document pdf min_pages max_pages)
    execute_process(COMMAND "${PDFINFO}" "${pdf}" OUTPUT_VARIABLE info RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "${pdf}: pdfinfo failed (${rc})")
    endif()
    if(NOT info MATCHES "Pages: +([0-9]+)")
        message(FATAL_ERROR "${pdf}: no page count in:\n${info}")
    endif()
    set(pages ${CMAKE_MATCH_1})
    if(pages LESS min_pages OR pages GREATER max_pages)
        message(FATAL_ERROR "${pdf}: ${pages} pages, expected ${min_pages} to ${max_pages}")
    endif()
    execute_process(COMMAND "${PDFTOTEXT}" "${pdf}" - OUTPUT_VARIABLE text RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "${pdf}: pdftotext failed (${rc})")
    endif()
    # Line breaks fall wherever the layout puts them.
    string(REGEX REPLACE "[ \r\n]+" " " text "${text}")
    foreach(phrase IN LISTS ARGN)
        string(FIND "${text}" "${phrase}" at)
        if(at EQUAL -1)
            message(FATAL_ERROR "${pdf}: the text lacks \"${phrase}\"")
        endif()
    endforeach()
    message(STATUS "${pdf}: ${pages} pages")
endfunction()

check_document("${GUIDE}" 4 12
    "StrataKeep User Guide" "The array tree" "Prepare To Remove" "S.M.A.R.T. Overview"
    "Dedicated Spares" "skemu fail-disk" "https://support.vor-storage.com/stratakeep")
check_document("${EULA}" 1 3
    "StrataKeep End User License Agreement" "No warranty" "Limitation of liability")
