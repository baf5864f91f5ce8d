# Packages of what is installed, by `cpack` in the build folder: on Linux Debian packages and
# an archive, for Windows a zip. scripts/release makes and tries them.
#
# The same sources give the same bytes in whatever folder, where SOURCE_DATE_EPOCH tells
# the time.
set(CPACK_PACKAGE_NAME prism_tinctures)
set(CPACK_PACKAGE_VENDOR "The prism_tinctures authors")
set(CPACK_PACKAGE_CONTACT "The prism_tinctures authors <maintainers@prism-tinctures.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_COMPONENTS_ALL plugin host development)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_SYSTEM_NAME windows-x86_64)
  install(FILES LICENSE DESTINATION . COMPONENT host)
  # The C++ runtime is the compiler's; its licence comes along.
  install(FILES /usr/share/doc/gcc-mingw-w64-base/copyright DESTINATION . COMPONENT host
    RENAME "LICENSE of the C++ runtime.txt" OPTIONAL)
else()
  set(CPACK_GENERATOR DEB TGZ)
  set(CPACK_SYSTEM_NAME linux-${CMAKE_SYSTEM_PROCESSOR})
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_HOST_PACKAGE_NAME prism-host)
set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME prism-tinctures)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME prism-host-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_HOST_PACKAGE_RECOMMENDS prism-tinctures)
set(CPACK_DEBIAN_PLUGIN_PACKAGE_DEPENDS "prism-host (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "prism-host (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "g++ | clang, cmake (>= 3.25)")
set(CPACK_DEBIAN_HOST_DESCRIPTION "host for plug-ins of colour maps
The libraries that plug-ins of colour maps import, and telmbench, a
program that loads such plug-ins, looks colours up, paints data, draws
saved networks, and exports maps to other programs.")
set(CPACK_DEBIAN_PLUGIN_DESCRIPTION "twenty-one colour maps for a dataflow host
A plug-in with fixed tables for land, water and classes, generated
colours that are as far apart as can be, and formulas.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "headers and CMake package for plug-ins of colour maps
The contract between plug-ins and their host as headers, the entry that
each plug-in has, the CMake package prism_host with prism_add_plugin,
and a sample.")

# What Debian wants to find with each package.
if(NOT WIN32)
  set(epoch 0)
  if(DEFINED ENV{SOURCE_DATE_EPOCH})
    set(epoch $ENV{SOURCE_DATE_EPOCH})
  endif()
  execute_process(COMMAND date -u -R -d @${epoch} OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
  foreach(component plugin host development)
    string(TOUPPER ${component} upper)
    set(name ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(folder ${PROJECT_BINARY_DIR}/debian/${name})
    file(WRITE ${folder}/changelog
      "${name} (${PROJECT_VERSION}) unstable; urgency=low\n\n  * Release ${PROJECT_VERSION}.\n\n"
      " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    execute_process(COMMAND gzip -9nf ${folder}/changelog COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${folder}/changelog.gz DESTINATION share/doc/${name} COMPONENT ${component})
    install(FILES LICENSE DESTINATION share/doc/${name} RENAME copyright COMPONENT ${component})
  endforeach()
endif()

include(CPack)
