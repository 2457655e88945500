#pragma once

// Stand-in for the host's function interface: the few calls that this library makes, with an environment
// variable behind each of the host's.

extern "C" {

/// 1 once `UF_initialize` was called, else 0.
int UF_is_initialized();

/// Marks the host as initialised; always 0.
int UF_initialize();

/// Marks the host as not initialised; always 0.
int UF_terminate();

/// Sets `*translation` to the value of the host variable `name`, which lives until the next call; null when
/// it is unset. On every system the value is in GBK, as on a Chinese Windows. Always 0.
int UF_translate_variable(const char* name, char** translation);
}
