# The C++ runtime that all libraries and the program share, beside the program.
# Stripped: the distribution's files carry debug data that makes each load slow.
foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${file}")
    set(file ${CMAKE_FIND_ROOT_PATH}/lib/${name})
  endif()
  if(NOT EXISTS ${PROJECT_BINARY_DIR}/bin/${name})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
    execute_process(
      COMMAND ${CMAKE_STRIP} --strip-all -o ${PROJECT_BINARY_DIR}/bin/${name} ${file}
      COMMAND_ERROR_IS_FATAL ANY)
  endif()
  list(APPEND PRISM_WINDOWS_RUNTIME ${PROJECT_BINARY_DIR}/bin/${name})
endforeach()
