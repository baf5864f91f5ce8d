# What is installed, and where.
#
# Components: `plugin`, the library of colour maps; `host`, the libraries and the program;
# `development`, what it takes to build plug-ins.
#
# Whatever is loaded stands in one folder, as in the build tree, so that run paths need
# nothing but $ORIGIN and the program finds the plug-in beside itself. On Linux that folder
# is lib/prism_host, and bin/telmbench is a link into it. Nothing holds the place where all
# of it was installed.
set(package lib/prism_host)
set(headers include/prism_host)
set(programs ${package})
if(WIN32)
  set(programs bin)
endif()

install(TARGETS prism_tinctures LIBRARY DESTINATION ${programs} COMPONENT plugin)

set(libraries nucleo lattice quartz vellum)
# The program that each test of a judged plug-in runs in.
install(TARGETS telmbench_judge RUNTIME DESTINATION ${programs} COMPONENT host)
install(TARGETS ${libraries} telmbench EXPORT prism_host
  RUNTIME DESTINATION ${programs} COMPONENT host
  LIBRARY DESTINATION ${programs} COMPONENT host
  ARCHIVE DESTINATION ${package} COMPONENT development)
if(TARGET telmbench_gdal)
  install(TARGETS telmbench_gdal LIBRARY DESTINATION ${programs} COMPONENT host)
endif()
if(WIN32)
  install(FILES ${PRISM_WINDOWS_RUNTIME} DESTINATION ${programs} COMPONENT host)
else()
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/link)
  file(CREATE_LINK ../${programs}/telmbench ${PROJECT_BINARY_DIR}/link/telmbench SYMBOLIC)
  install(FILES ${PROJECT_BINARY_DIR}/link/telmbench DESTINATION bin COMPONENT host)
endif()

# The networks to try, and beside the program the one that it shows if none is named.
install(FILES prism/tinctures/examples/HypsometricSlice.telm DESTINATION ${programs} COMPONENT host)
install(DIRECTORY prism/tinctures/examples/ DESTINATION share/prism_host/networks COMPONENT plugin
  FILES_MATCHING PATTERN *.telm)

# The headers and the entry, which plug-ins are compiled with.
install(DIRECTORY host DESTINATION ${headers} COMPONENT development FILES_MATCHING PATTERN *.hpp)
install(FILES prism/tinctures/OutputMap.hpp DESTINATION ${headers}/prism/tinctures COMPONENT development)
install(FILES prism/tinctures/science/tableRule.hpp
  DESTINATION ${headers}/prism/tinctures/science COMPONENT development)
install(DIRECTORY entry DESTINATION ${package} COMPONENT development
  FILES_MATCHING PATTERN *.cpp PATTERN *.hpp)
target_include_directories(prism_contract INTERFACE $<INSTALL_INTERFACE:${headers}>)
target_include_directories(prism_entry INTERFACE $<INSTALL_INTERFACE:${package}>)

# find_package(prism_host)
foreach(name contract numbers steps entry)
  set_target_properties(prism_${name} PROPERTIES EXPORT_NAME ${name})
endforeach()
install(TARGETS prism_contract prism_numbers prism_steps prism_entry EXPORT prism_host)
install(EXPORT prism_host FILE targets.cmake NAMESPACE prism:: DESTINATION ${package}/cmake
  COMPONENT development)
include(CMakePackageConfigHelpers)
configure_package_config_file(cmake/prism_host-config.cmake.in prism_host-config.cmake
  INSTALL_DESTINATION ${package}/cmake NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(prism_host-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/prism_host-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/prism_host-config-version.cmake
              cmake/Plugin.cmake cmake/Linking.cmake
  DESTINATION ${package}/cmake COMPONENT development)

# The page that begins with a plug-in in ten minutes, and whole ones to start from.
install(FILES docs/new-map.md DESTINATION share/prism_host COMPONENT development)
install(DIRECTORY docs/samples/ DESTINATION share/prism_host/samples COMPONENT development)
