cmake_minimum_required(VERSION 3.25)

# Links the files of one folder into another:
# cmake -D FROM=folder -D TO=folder -P linkFolder.cmake
# Hard links, since programs look for the plug-in where they themselves stand.
# What stands in `kept` is the other folder's own.
set(kept prism_tinctures.telm test_prism test_prism.exe)
file(GLOB files RELATIVE ${FROM} ${FROM}/*)
foreach(file IN LISTS files)
  if(NOT file IN_LIST kept AND NOT IS_DIRECTORY ${FROM}/${file})
    file(CREATE_LINK ${FROM}/${file} ${TO}/${file})
  endif()
endforeach()
