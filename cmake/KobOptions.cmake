# What every target of the tree is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual)
if(KOB_WERROR)
  add_compile_options(-Werror)
endif()
if(KOB_SANITIZE)
  add_compile_options(-fsanitize=${KOB_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${KOB_SANITIZE})
endif()

if(KOB_STATIC)
  set(KOB_LIBRARY_KIND STATIC)
  add_compile_definitions(KOB_STATIC)
else()
  set(KOB_LIBRARY_KIND SHARED)
endif()
if(WIN32)
  # One file without companions; the calls with wide characters, of Windows 7 and later.
  add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
  add_link_options(-static)
endif()

find_program(KOB_CCACHE ccache)
if(KOB_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${KOB_CCACHE}")
endif()

# kob_optimise_whole(): for the targets of this directory and those below it. A call from one file of a library to
# another, of which loading a model makes many, can be compiled into its caller then.
macro(kob_optimise_whole)
  if(KOB_LTO)
    set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
  endif()
endmacro()

# kob_precompile(TARGET header...): headers that most of its files include, compiled once. A file includes what it
# needs all the same: the preset no-gui and the linter compile without.
function(kob_precompile target)
  if(KOB_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
