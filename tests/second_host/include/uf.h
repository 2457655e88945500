#pragma once

#include "second_host_export.h"

extern "C" {
SECOND_HOST_API int UF_is_initialized();
SECOND_HOST_API int UF_initialize();
SECOND_HOST_API int UF_translate_variable(const char* name, char** translation);
}
