# Warnings are errors, on every compiler that the project is built with by itself.
add_library(prism_warnings INTERFACE)
target_compile_options(prism_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2
  $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # gcc 12 sees an overlap in every "literal" + std::string (its bug 105651).
  target_compile_options(prism_warnings INTERFACE -Wlogical-op -Wduplicated-cond -Wno-restrict)
endif()
