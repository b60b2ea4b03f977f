# Warning and sanitizer flags shared by every target of the project.
add_library(sk_compile_options INTERFACE)

if(MSVC)
    target_compile_options(sk_compile_options INTERFACE /W4 /permissive-)
    if(SK_WARNINGS_AS_ERRORS)
        target_compile_options(sk_compile_options INTERFACE /WX)
    endif()
else()
    target_compile_options(sk_compile_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align
        -Wold-style-cast -Woverloaded-virtual -Wformat=2 -Wnull-dereference
        -Wimplicit-fallthrough)
    if(SK_WARNINGS_AS_ERRORS)
        target_compile_options(sk_compile_options INTERFACE -Werror)
    endif()
endif()

if(SK_SANITIZE)
    if(MSVC)
        message(FATAL_ERROR "SK_SANITIZE is supported with GCC and Clang only")
    endif()
    set(_sk_san -fsanitize=address,undefined -fno-sanitize-recover=undefined
                -fno-omit-frame-pointer)
    target_compile_options(sk_compile_options INTERFACE ${_sk_san})
    target_link_options(sk_compile_options INTERFACE ${_sk_san})
endif()

# Line coverage of the whole suite, read with gcovr (scripts/bootstrap.sh coverage).
if(SK_COVERAGE)
    if(MSVC)
        message(FATAL_ERROR "SK_COVERAGE is supported with GCC and Clang only")
    endif()
    target_compile_options(sk_compile_options INTERFACE --coverage -O0)
    target_link_options(sk_compile_options INTERFACE --coverage)
endif()

# sk_qt_autogen(target...): moc, uic and rcc for targets of the Qt half. They are
# switched on target by target, never for the whole tree: each one adds a generator
# step to its target, and the plain C++ half must build without any Qt tool.
function(sk_qt_autogen)
    set_target_properties(${ARGN} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
endfunction()

# sk_add_library(name [QT] SOURCES ... [LINKS ...]): one library target per layer.
# QT, or a folder the top level marks with SK_QT_LAYER, runs moc, uic and rcc on it.
function(sk_add_library name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS" ${ARGN})
    if(ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "sk_add_library(${name}): unknown arguments ${ARG_UNPARSED_ARGUMENTS}")
    endif()
    set(_compiled ${ARG_SOURCES})
    list(FILTER _compiled INCLUDE REGEX "\\.(cpp|ui|qrc)$")
    if(_compiled)
        add_library(${name} STATIC ${ARG_SOURCES})
        target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
        target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE sk_compile_options)
        if(ARG_QT OR SK_QT_LAYER)
            sk_qt_autogen(${name})
        endif()
    else()
        # A layer that so far holds only headers.
        add_library(${name} INTERFACE ${ARG_SOURCES})
        target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR})
        target_link_libraries(${name} INTERFACE ${ARG_LINKS})
    endif()
endfunction()

# Fuzzing builds instrument every library for coverage, not only the fuzz targets,
# and catch memory errors with ASan on the way.
if(SK_BUILD_FUZZERS)
    target_compile_options(sk_compile_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
    target_link_options(sk_compile_options INTERFACE -fsanitize=address,undefined)
endif()
