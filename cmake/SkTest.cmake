# A cross build can't use the build machine's GoogleTest libraries: build it from the
# sources Debian ships, with the cross compiler, once for all suites.
set(SK_GTEST_SOURCE_DIR /usr/src/googletest CACHE PATH
    "GoogleTest sources, built with the project when cross compiling")
if(CMAKE_CROSSCOMPILING AND SK_BUILD_TESTS AND NOT TARGET GTest::gtest)
    set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    add_subdirectory(${SK_GTEST_SOURCE_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()

# sk_add_test(name KIND gtest|qtest SOURCES ... [LINKS ...] [TIMEOUT s])
# One place that registers every test: GUI tests run offscreen, every test has a
# timeout, and unknown arguments are an error so a typo can't silently drop a test.
function(sk_add_test name)
    cmake_parse_arguments(ARG "" "KIND;TIMEOUT" "SOURCES;LINKS" ${ARGN})
    if(ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "sk_add_test(${name}): unknown arguments ${ARG_UNPARSED_ARGUMENTS}")
    endif()
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} sk_compile_options)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    if(ARG_KIND STREQUAL "gtest")
        if(NOT TARGET GTest::gtest)
            find_package(GTest REQUIRED)
        endif()
        target_link_libraries(${name} PRIVATE GTest::gtest GTest::gtest_main)
        add_test(NAME ${name} COMMAND ${name})
    elseif(ARG_KIND STREQUAL "qtest")
        target_link_libraries(${name} PRIVATE Qt5::Test)
        sk_qt_autogen(${name})
        add_test(NAME ${name} COMMAND ${name})
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT QT_QPA_PLATFORM=offscreen)
    else()
        message(FATAL_ERROR "sk_add_test(${name}): KIND must be gtest or qtest")
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
    if(SK_SANITIZE)
        # Qt's platform plugins keep a few objects until process exit; full stacks let
        # the suppressions name the plugin without hiding leaks of our own.
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
            "ASAN_OPTIONS=detect_leaks=1:abort_on_error=1"
            "LSAN_OPTIONS=fast_unwind_on_malloc=0:suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp"
            "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
    endif()
endfunction()
