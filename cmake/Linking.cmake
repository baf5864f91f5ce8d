# Whatever a library uses must be found when it is linked. A Windows linker asks
# for that anyhow. Clang leaves the functions of its sanitizers to the program.
function(prism_complete target)
  if(NOT WIN32 AND NOT (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_FLAGS MATCHES "-fsanitize"))
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

# What stands in a plug-in: an ELF library with unique symbols is never unloaded.
if(NOT TARGET prism_unloadable)
  add_library(prism_unloadable INTERFACE)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
  target_compile_options(prism_unloadable INTERFACE -fno-gnu-unique)
endif()

# A file that is quickly loaded: no symbols for a debugger in it; fewer segments, each
# of which is mapped; and on ELF the addresses that are only moved packed into a few
# bits, which takes glibc 2.36. Nothing in such a library is worth the inlining of -O3:
# what computes is compiled by itself.
function(prism_small target)
  target_compile_options(${target} PRIVATE
    $<$<CONFIG:Release>:-O2> $<$<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU>>:-finline-limit=30>)
  target_link_options(${target} PRIVATE $<$<CONFIG:Release>:-s>)
  if(NOT WIN32)
    target_link_options(${target} PRIVATE -Wl,-z,pack-relative-relocs,-z,noseparate-code)
  endif()
endfunction()
