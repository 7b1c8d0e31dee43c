# SPDX-License-Identifier: MIT
# What every target of the house shares: language, warnings, output folders, and the two kinds
# of target. A room is an object library, so that a test links one room and the linker proves
# the direction of the arrows.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(QUILLMESH_PLUGIN_DIR ${PROJECT_BINARY_DIR}/plugins)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

add_library(quillmesh_flags INTERFACE)
target_include_directories(quillmesh_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(quillmesh_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING)
if(MSVC)
    target_compile_options(quillmesh_flags INTERFACE /W4 /WX)
else()
    # Contraction would let one build fuse what another rounds twice: meshes must repeat.
    target_compile_options(quillmesh_flags INTERFACE
        -Wall -Wextra -Wshadow -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Werror
        -ffp-contract=off)
endif()
if(QUILLMESH_SANITIZE)
    target_compile_options(quillmesh_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1 -g1)
    target_link_options(quillmesh_flags INTERFACE -fsanitize=address,undefined)
    # The vptr check needs each class's type information, which hidden visibility keeps apart.
    target_compile_options(quillmesh_flags INTERFACE -fno-sanitize=vptr)
endif()
if(QUILLMESH_COVERAGE)
    target_compile_options(quillmesh_flags INTERFACE --coverage -O0)
    target_link_options(quillmesh_flags INTERFACE --coverage)
endif()

# orvane_add_room(NAME SOURCES files... [DEPENDS targets...])
# One folder of the plug-in, as an object library.
function(orvane_add_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} OBJECT ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC quillmesh_flags ${ROOM_DEPENDS})
    target_compile_definitions(${name} PRIVATE QUILLMESH_BUILDING)
endfunction()

# orvane_add_library(NAME EXPORT_MACRO macro SOURCES files... [DEPENDS targets...])
# A shared library of the host.
function(orvane_add_library name)
    cmake_parse_arguments(LIB "" "EXPORT_MACRO" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} SHARED ${LIB_SOURCES})
    target_link_libraries(${name} PUBLIC ${LIB_DEPENDS} PRIVATE quillmesh_flags)
    target_compile_definitions(${name} PRIVATE ${LIB_EXPORT_MACRO})
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION}
                          SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

# orvane_add_test(NAME SOURCES files... LINKS targets...)
# A GoogleTest program of one theme; it runs without a display.
function(orvane_add_test name)
    cmake_parse_arguments(TEST "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE test_support ${TEST_LINKS})
    add_test(NAME ${name} COMMAND ${name})
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${TEST_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QUILLMESH_MODELS=${PROJECT_SOURCE_DIR}/../shared/models;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0")
endfunction()

# orvane_add_display_test(NAME SOURCES files... LINKS targets... [TIMEOUT seconds])
# A GoogleTest program that needs OpenGL, and so a display: a virtual one, where a software renderer
# draws the same picture everywhere. Leaks are not looked for there: drivers keep what they have and
# are gone from memory when their leaks are named.
function(orvane_add_display_test name)
    cmake_parse_arguments(TEST "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    find_program(XVFB_RUN xvfb-run REQUIRED)
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE test_support ${TEST_LINKS} OpenGL::GL Qt5::Test)
    add_test(NAME ${name}
        COMMAND ${XVFB_RUN} -a -s "-screen 0 1600x1000x24" $<TARGET_FILE:${name}>)
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 600)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${TEST_TIMEOUT}
        LABELS display
        RUN_SERIAL TRUE
        ENVIRONMENT "QT_QPA_PLATFORM=xcb;LIBGL_ALWAYS_SOFTWARE=1;ASAN_OPTIONS=detect_leaks=0")
endfunction()

# orvane_skip_test(NAME WHY)
# A test that this build cannot have: it is listed as skipped, with the reason.
function(orvane_skip_test name why)
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -E echo "Skipped: ${why}.")
    set_tests_properties(${name} PROPERTIES SKIP_REGULAR_EXPRESSION "Skipped:")
endfunction()
