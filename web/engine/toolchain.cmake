# Compiles to WebAssembly with Debian's emscripten, for the page.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Exceptions of WebAssembly's own: through JavaScript they cost many times as much, and without them a wrong command line
# would end the engine.
set(CMAKE_CXX_FLAGS_INIT -fwasm-exceptions)
set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG" CACHE STRING "The page is one file, which has to stay small")
