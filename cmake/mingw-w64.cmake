# 64-bit Windows by Debian's mingw-w64, with the posix thread model (the other
# one has no std::mutex), run by Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)  # for GoogleTest
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run-wine;${CMAKE_BINARY_DIR}/wine)
# Two builds of the same sources give the same bytes.
string(APPEND CMAKE_SHARED_LINKER_FLAGS_INIT " -Wl,--no-insert-timestamp,--disable-auto-image-base")
string(APPEND CMAKE_MODULE_LINKER_FLAGS_INIT " -Wl,--no-insert-timestamp,--disable-auto-image-base")
string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -Wl,--no-insert-timestamp")
