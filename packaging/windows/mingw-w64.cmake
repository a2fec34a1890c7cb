# Cross-compiles for 64-bit Windows with Debian's MinGW-w64; with posix threads, which std::mutex needs. The folder of
# Qt for Windows is in the environment, as QUEXAL_QT_WINDOWS.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 $ENV{QUEXAL_QT_WINDOWS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# The hour of the build and the folder it was made in are not part of what is made.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -Wl,--no-insert-timestamp)
endforeach()
set(CMAKE_C_FLAGS_INIT "\"-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.\"")
set(CMAKE_CXX_FLAGS_INIT "\"-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.\"")
