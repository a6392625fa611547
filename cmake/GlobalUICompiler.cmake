# Language level, warnings, visibility, sanitizers and ccache for every target.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

# What one checkout has compiled serves the next: names in the cache are relative to the checkout.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND};-E;env;CCACHE_BASEDIR=${CMAKE_SOURCE_DIR};CCACHE_NOHASHDIR=true;${CCACHE_PROGRAM}")
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual)
option(GLOBALUI_WERROR "Warnings end the build" OFF)
if(GLOBALUI_WERROR)
    add_compile_options(-Werror)
endif()

if(GLOBALUI_SANITIZE)
    add_compile_options(-fsanitize=${GLOBALUI_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    # The sanitizers' own checks hide assignments from this warning; every other build has it.
    add_compile_options(-Wno-maybe-uninitialized)
    add_link_options(-fsanitize=${GLOBALUI_SANITIZE})
endif()

# What each program needs to be judged by the leak check: $<TARGET_OBJECTS:GlobalUIKeepModules>.
if(GLOBALUI_SANITIZE MATCHES address)
    add_library(GlobalUIKeepModules OBJECT "${CMAKE_CURRENT_LIST_DIR}/keepmodules.cpp")
endif()

# Everything that runs from the build tree finds its libraries and plug-ins below one folder,
# laid out like an installed program.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# An installed program or library finds its neighbours wherever the tree is unpacked.
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
