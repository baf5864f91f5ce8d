# Whatever a library uses must be found when it is linked. A Windows linker asks
# for that anyhow. Clang leaves the functions of its sanitizers to the program.
function(prism_complete target)
  if(NOT WIN32 AND NOT (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_FLAGS MATCHES "-fsanitize"))
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

# What stands in a plug-in: an ELF library with unique symbols is never unloaded.
add_library(prism_unloadable INTERFACE)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
  target_compile_options(prism_unloadable INTERFACE -fno-gnu-unique)
endif()
