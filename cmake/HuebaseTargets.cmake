# Each source folder contributes a Qt-free logic library (huebase_<folder>)
# and, where it has windows, a widget library (huebase_<folder>_ui).
# huebase_logic and huebase_ui gather them, so the executable and the tests
# link one name per layer.

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

# huebase_logic_library(<folder> SOURCES ... [DEPENDS other folder libs])
function(huebase_logic_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    set(target huebase_${folder})
    add_library(${target} STATIC ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS})
    huebase_warnings(${target})
    target_link_libraries(huebase_logic INTERFACE ${target})
    foreach(src IN LISTS ARG_SOURCES)
        get_filename_component(abs ${src} ABSOLUTE)
        set_property(GLOBAL APPEND PROPERTY HUEBASE_LOGIC_SOURCES ${abs})
    endforeach()
endfunction()

# huebase_ui_library(<folder> SOURCES ... [DEPENDS ...])
function(huebase_ui_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    set(target huebase_${folder}_ui)
    add_library(${target} STATIC ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} Qt6::Widgets)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    huebase_warnings(${target})
    target_link_libraries(huebase_ui INTERFACE ${target})
endfunction()

# huebase_test(<name> SOURCES ... LIBS ... [QT] [XVFB])
# Logic tests run without a QApplication. QT tests get a main that creates one
# on the offscreen platform; XVFB tests need a real X server (DISPLAY).
function(huebase_test name)
    cmake_parse_arguments(ARG "QT;XVFB" "" "SOURCES;LIBS" ${ARGN})
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
