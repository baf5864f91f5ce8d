# Which layer may include which.
#
# A target sees only the layers that it is given: each layer has an include
# folder of its own in the build tree, with a link to the sources in it, and
# nobody has the root of the sources on the include path.
function(prism_layer target)
  foreach(layer IN LISTS ARGN)
    set(folder ${CMAKE_BINARY_DIR}/layers/${layer})
    if(NOT EXISTS ${folder}/${layer})
      file(MAKE_DIRECTORY ${folder})
      file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${layer} ${folder}/${layer} SYMBOLIC)
    endif()
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "INTERFACE_LIBRARY")
      target_include_directories(${target} INTERFACE ${folder})
    else()
      target_include_directories(${target} PRIVATE ${folder})
    endif()
  endforeach()
endfunction()

# A header-only Debian package for any compiler: the named folders and headers
# of the system's include folder, linked into a folder of their own. The whole
# system folder would break the C headers of a cross compiler.
function(prism_system_headers target)
  set(folder ${CMAKE_BINARY_DIR}/system-headers)
  file(MAKE_DIRECTORY ${folder})
  foreach(name IN LISTS ARGN)
    if(NOT EXISTS /usr/include/${name})
      message(FATAL_ERROR "The headers '${name}' are missing. scripts/install-packages installs them.")
    endif()
    if(NOT EXISTS ${folder}/${name})
      file(CREATE_LINK /usr/include/${name} ${folder}/${name} SYMBOLIC)
    endif()
  endforeach()
  target_include_directories(${target} SYSTEM PRIVATE ${folder})
endfunction()
