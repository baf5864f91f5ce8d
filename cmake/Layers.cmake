# Which layer may include which.
#
# A target sees only the layers that it is given: each layer has an include
# folder of its own in the build tree, with a link to the sources in it, and
# nobody has the root of the sources on the include path. A layer is a folder of
# the tree, such as `prism` or `workbench/scene`.
#
# prism_layer(TARGET [PUBLIC] LAYER...): with PUBLIC, what links the target sees
# the layers too.
function(prism_layer target)
  cmake_parse_arguments(PARSE_ARGV 1 LAYER PUBLIC "" "")
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    set(visibility INTERFACE)
  elseif(LAYER_PUBLIC)
    set(visibility PUBLIC)
  else()
    set(visibility PRIVATE)
  endif()
  foreach(layer IN LISTS LAYER_UNPARSED_ARGUMENTS)
    string(REPLACE / _ name ${layer})
    set(folder ${PROJECT_BINARY_DIR}/layers/${name})
    if(NOT EXISTS ${folder}/${layer})
      cmake_path(GET layer PARENT_PATH parent)
      file(MAKE_DIRECTORY ${folder}/${parent})
      file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${layer} ${folder}/${layer} SYMBOLIC)
    endif()
    target_include_directories(${target} ${visibility} $<BUILD_INTERFACE:${folder}>)
  endforeach()
endfunction()

# A header-only Debian package for any compiler: the named folders and headers
# of the system's include folder, linked into a folder of their own. The whole
# system folder would break the C headers of a cross compiler.
function(prism_system_headers target)
  set(folder ${PROJECT_BINARY_DIR}/system-headers)
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
