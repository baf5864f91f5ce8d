# A plug-in file: prism_add_plugin(NAME [MODULE module] SOURCE...)
#
# Builds NAME.telm, a plug-in of the host, from these sources and the entry that every
# plug-in has. NAME, or the other one that is given, is what the module calls itself.
#
# The initialisers run last to first in the order of the sources. A Windows
# library runs its own last linked first, an ELF library first linked first;
# `loader.cpp` must come last there (it says why).
#
# This file and the two that it needs are installed too, beside the folder of the entry.
include(${CMAKE_CURRENT_LIST_DIR}/Linking.cmake)

# The date of the host's interface, as the export's name has it.
set_property(GLOBAL PROPERTY PRISM_INTERFACE_DATE 2024_MAR_06)

function(prism_add_plugin name)
  cmake_parse_arguments(PARSE_ARGV 1 PLUGIN "" MODULE "")
  set(module ${name})
  if(PLUGIN_MODULE)
    set(module ${PLUGIN_MODULE})
  endif()
  if(NOT module MATCHES "^[A-Za-z_][A-Za-z0-9_]*$")
    message(FATAL_ERROR "prism_add_plugin: the module name '${module}' becomes part of a C name; "
                        "take letters, digits and underscores, or give another by MODULE.")
  endif()
  if(NOT PLUGIN_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "prism_add_plugin: the plug-in '${name}' has no sources.")
  endif()
  get_property(date GLOBAL PROPERTY PRISM_INTERFACE_DATE)
  set(question TELM_API_${date}__${module})

  set(sources ${PLUGIN_UNPARSED_ARGUMENTS})
  if(NOT WIN32)
    list(REVERSE sources)
  endif()
  cmake_path(GET CMAKE_CURRENT_FUNCTION_LIST_DIR PARENT_PATH folder)
  set(entry export.cpp EntryRoutine.cpp loader.cpp)
  list(TRANSFORM entry PREPEND ${folder}/entry/)

  add_library(${name} MODULE ${sources} ${entry})
  set_target_properties(${name} PROPERTIES
    PREFIX "" SUFFIX .telm
    CXX_EXTENSIONS OFF CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH $ORIGIN)
  target_compile_definitions(${name} PRIVATE TELM_MODULE="${module}" TELM_QUESTION=${question})
  target_link_libraries(${name} PRIVATE prism::steps prism::entry prism::vellum prism::quartz prism::lattice
                                        prism::nucleo prism_unloadable)
  prism_complete(${name})
  prism_single_export(${name} ${question})
endfunction()

# Exactly one export.
function(prism_single_export target export_name)
  if(WIN32)
    set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
    file(CONFIGURE OUTPUT ${definition} CONTENT "EXPORTS\n    @export_name@\n" @ONLY)
    target_sources(${target} PRIVATE ${definition})
  else()
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    file(CONFIGURE OUTPUT ${script} CONTENT "{ global: @export_name@; local: *; };\n" @ONLY)
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
  endif()
endfunction()
