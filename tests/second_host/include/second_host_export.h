#pragma once

// CMake defines second_host_EXPORTS for the sources of the host's library.
#if !defined(_WIN32)
#define SECOND_HOST_API
#elif defined(second_host_EXPORTS)
#define SECOND_HOST_API __declspec(dllexport)
#else
#define SECOND_HOST_API __declspec(dllimport)
#endif
