# What every target needs so that the numbers are the same everywhere: no
# contraction of a product and a sum, no liberties, doubles in SSE2 registers.
add_library(prism_numbers INTERFACE)
target_compile_features(prism_numbers INTERFACE cxx_std_20)
target_compile_options(prism_numbers INTERFACE -ffp-contract=off -fno-fast-math)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  target_compile_options(prism_numbers INTERFACE -msse2 -mfpmath=sse)
endif()
