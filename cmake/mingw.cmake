# Toolchain file: the compilers for Windows, of the program and of Qt.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Programs that the build runs belong to this system, everything else to Windows. QT_WINDOWS: the folder of Qt for
# Windows, as tools/windows/qt gives it.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QT_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${QT_WINDOWS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(KIND LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${KIND} ONLY)
endforeach()

# The tests run under Wine.
find_program(WINE wine)
if(WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE})
endif()
