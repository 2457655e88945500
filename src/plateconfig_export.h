#pragma once

// PLATECONFIG_API marks what the shared library exports. Everything else stays hidden, on every platform.
// PLATECONFIG_STATIC is for programs that link the library's objects themselves.

#if defined(_WIN32)
#if defined(PLATECONFIG_STATIC)
#define PLATECONFIG_API
#elif defined(PLATECONFIG_BUILDING)
#define PLATECONFIG_API __declspec(dllexport)
#else
#define PLATECONFIG_API __declspec(dllimport)
#endif
#else
#define PLATECONFIG_API __attribute__((visibility("default")))
#endif
