# Whatever a library uses must be found when it is linked. A Windows linker asks
# for that anyhow. Clang leaves the functions of its sanitizers to the program,
# and the fuzz targets are built with them.
function(prism_complete target)
  if(NOT WIN32 AND NOT PRISM_FUZZERS)
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()
