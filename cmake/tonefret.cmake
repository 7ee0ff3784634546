# SPDX-FileCopyrightText: 2026 The tonefret developers
# SPDX-License-Identifier: MIT

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The program is small and spends its time in the toolkit: size counts for more than what -O3 unrolls.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# What every target is compiled with; includes are written from the top folder ("core/notes.h").
add_library(tonefret_flags INTERFACE)
target_include_directories(tonefret_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(tonefret_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 takes the assignment of a short text to a std::string for an overlapping copy when it optimises fully.
target_compile_options(tonefret_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_options(tonefret_flags INTERFACE -ffunction-sections -fdata-sections)
target_link_options(tonefret_flags INTERFACE -Wl,--gc-sections)
if(TONEFRET_SANITIZE)
  # GCC 12 checks the wrong object where a lambda within a lambda calls through a pointer to a member.
  target_compile_options(tonefret_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tonefret_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TONEFRET_FUZZ)
  target_compile_options(tonefret_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tonefret_library(name SOURCES file... LINKS library...)
function(tonefret_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC tonefret_flags ${arg_LINKS})
endfunction()

# The same for a library of widgets. Only these, the program, the tour and the screen tests know Qt.
function(tonefret_screens name)
  tonefret_library(${name} ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
  target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
endfunction()
