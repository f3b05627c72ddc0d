# Each source folder contributes a Qt-free logic library (huebase_<folder>)
# and, where it has windows, a widget library (huebase_<folder>_ui).
# huebase_logic and huebase_ui gather them, so the executable and the tests
# link one name per layer.
#
# A library's dependents see only the headers it lists as public; its own
# sources see the folder's private headers too. Both sets are staged as
# symbolic links in the build tree, so an include keeps its "<folder>/<name>.h"
# form and the compiler still reads the file in src/.

add_library(huebase_logic INTERFACE)
add_library(huebase_ui INTERFACE)
target_link_libraries(huebase_ui INTERFACE huebase_logic)

function(huebase_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    endif()
endfunction()

# Makes include/<view>/<folder>/ in the build tree hold symbolic links to the
# given headers of the current source folder, and returns include/<view> in
# out. A target given that include folder sees these headers under their usual
# names ("core/sort.h") and no other header of the folder.
function(huebase_stage_headers view folder out)
    set(root ${CMAKE_BINARY_DIR}/include/${view})
    # Made anew on every configure, so that a header taken off a list is gone.
    file(REMOVE_RECURSE ${root})
    file(MAKE_DIRECTORY ${root}/${folder})
    foreach(header IN LISTS ARGN)
        set(source ${CMAKE_CURRENT_SOURCE_DIR}/${header})
        if(NOT EXISTS ${source})
            message(FATAL_ERROR "${source} is listed as a header of ${folder} but does not exist")
        endif()
        file(CREATE_LINK ${source} ${root}/${folder}/${header} SYMBOLIC)
    endforeach()
    set(${out} ${root} PARENT_SCOPE)
endfunction()

# Adds the headers, as paths, to the global list of logic or widget headers
# (class LOGIC or WIDGET) that the header checks of tests/ read.
function(huebase_classify_headers class)
    foreach(header IN LISTS ARGN)
        set_property(GLOBAL APPEND PROPERTY HUEBASE_${class}_HEADERS
                                            ${CMAKE_CURRENT_SOURCE_DIR}/${header})
    endforeach()
endfunction()

# Gives target the staged public headers as its dependents' include folder and
# the private ones as its own; both lists may be empty.
function(huebase_expose_headers target folder public_headers private_headers)
    huebase_stage_headers(${target} ${folder} public_root ${public_headers})
    target_include_directories(${target} PUBLIC ${public_root})
    huebase_stage_headers(${target}.private ${folder} private_root ${private_headers})
    if(private_headers)
        target_include_directories(${target} PRIVATE ${private_root})
    endif()
endfunction()

# huebase_logic_library(<folder> SOURCES ... [PUBLIC_HEADERS ...] [HEADERS ...]
#                       [DEPENDS other folder libs])
# PUBLIC_HEADERS are the headers that other folders, tests, benchmarks, fuzz
# targets or tools include, and the headers those include; dependents see only
# these. HEADERS are the folder's other logic headers, seen by the folder's
# own libraries alone. Every logic header is in one of the two lists.
function(huebase_logic_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;HEADERS;DEPENDS" ${ARGN})
    set(target huebase_${folder})
    add_library(${target} STATIC ${ARG_SOURCES} ${ARG_PUBLIC_HEADERS} ${ARG_HEADERS})
    huebase_expose_headers(${target} ${folder} "${ARG_PUBLIC_HEADERS}" "${ARG_HEADERS}")
    # The folder's widget library sees these too.
    set_property(TARGET ${target} PROPERTY HUEBASE_PRIVATE_HEADERS ${ARG_HEADERS})
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS})
    huebase_warnings(${target})
    target_link_libraries(huebase_logic INTERFACE ${target})
    huebase_classify_headers(LOGIC ${ARG_PUBLIC_HEADERS} ${ARG_HEADERS})
    foreach(src IN LISTS ARG_SOURCES)
        get_filename_component(abs ${src} ABSOLUTE)
        set_property(GLOBAL APPEND PROPERTY HUEBASE_LOGIC_SOURCES ${abs})
    endforeach()
endfunction()

# huebase_ui_library(<folder> SOURCES ... [PUBLIC_HEADERS ...] [HEADERS ...]
#                    [DEPENDS ...])
# The widget headers, listed as for huebase_logic_library. The library sits on
# its folder's logic library and also sees that library's private headers.
function(huebase_ui_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;HEADERS;DEPENDS" ${ARGN})
    set(target huebase_${folder}_ui)
    set(logic huebase_${folder})
    add_library(${target} STATIC ${ARG_SOURCES} ${ARG_PUBLIC_HEADERS} ${ARG_HEADERS})
    get_property(logic_private TARGET ${logic} PROPERTY HUEBASE_PRIVATE_HEADERS)
    set(private_headers ${ARG_HEADERS} ${logic_private})
    huebase_expose_headers(${target} ${folder} "${ARG_PUBLIC_HEADERS}" "${private_headers}")
    target_link_libraries(${target} PUBLIC ${logic} ${ARG_DEPENDS} Qt6::Widgets)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    huebase_warnings(${target})
    target_link_libraries(huebase_ui INTERFACE ${target})
    huebase_classify_headers(WIDGET ${ARG_PUBLIC_HEADERS} ${ARG_HEADERS})
endfunction()

# huebase_test(<name> SOURCES ... LIBS ... [QT] [XVFB])
# Logic tests run without a QApplication. QT tests get a main that creates one
# on the offscreen platform; XVFB tests need a real X server (DISPLAY).
function(huebase_test name)
    cmake_parse_arguments(ARG "QT;XVFB" "" "SOURCES;LIBS" ${ARGN})
    if(HUEBASE_LOGIC_ONLY AND (ARG_QT OR ARG_XVFB))
        message(FATAL_ERROR "${name} needs Qt: declare it only when HUEBASE_LOGIC_ONLY is off")
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    huebase_warnings(${name})
    if(ARG_XVFB)
        # The main is compiled into the test itself: the shared library's copy
        # never sees HUEBASE_TEST_NEEDS_X and would force the offscreen platform.
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/qt_test_main.cpp)
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} huebase_test_support huebase_util_ui
                                              Qt6::Widgets GTest::gtest Qt6::Test)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    elseif(ARG_QT)
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} huebase_qt_test_main Qt6::Test)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    else()
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} huebase_test_support GTest::gtest_main)
    endif()
    if(ARG_XVFB)
        target_compile_definitions(${name} PRIVATE HUEBASE_TEST_NEEDS_X=1)
        # One X display is shared by all of them: the pointer, the focus and the
        # screen contents are global, so they run one at a time.
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
                             PROPERTIES LABELS xvfb TIMEOUT 120 RESOURCE_LOCK x_display)
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
    endif()
endfunction()
