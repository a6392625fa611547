# How the folders of the house become targets.

# globalui_add_layer(<target> SOURCES ... [LINK ...])
# One OBJECT library for one folder. It exports its own folder as include directory and what it
# links, nothing else: an include of a higher folder does not compile.
function(globalui_add_layer target)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${target} OBJECT ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${target} PUBLIC ${ARG_LINK})
endfunction()

# globalui_add_test(<name> SOURCES ... LINK ... [LABELS ...] [TIMEOUT seconds])
# A QtTest program on a virtual display of its own, where no other test's window covers its pixels.
# LINK names folder libraries (whose objects are linked in directly) and ordinary libraries alike;
# LABELS are ctest labels ("unit" unless given).
function(globalui_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;LABELS" ${ARGN})
    if(NOT ARG_LABELS)
        set(ARG_LABELS unit)
    endif()
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} GlobalUITestSupport Qt5::Test)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    add_test(NAME ${name} COMMAND "${PROJECT_SOURCE_DIR}/scripts/with-display" $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=xcb;LIBGL_ALWAYS_SOFTWARE=1")
endfunction()

# globalui_add_panel(<target> GROUP camera|image|measure|report|spectrum SOURCES ... [LINK ...])
# A UI plug-in, built into plugins/<group>/ui beside the program's bin folder.
function(globalui_add_panel target)
    cmake_parse_arguments(ARG "" "GROUP" "SOURCES;LINK" ${ARGN})
    add_library(${target} MODULE ${ARG_SOURCES})
    target_link_libraries(${target} PRIVATE GlobalUICollaborators ${ARG_LINK})
    set_target_properties(${target} PROPERTIES PREFIX ""
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin/plugins/${ARG_GROUP}/ui")
    # Building the program builds what it shows.
    if(NOT TARGET GlobalUIPanels)
        add_custom_target(GlobalUIPanels)
        if(TARGET workbench)
            add_dependencies(workbench GlobalUIPanels)
        endif()
    endif()
    add_dependencies(GlobalUIPanels ${target})
    install(TARGETS ${target} LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/globalui/plugins/${ARG_GROUP}/ui")
endfunction()
