#include <uf.h>

#include <string>

#include "platform/environment.h"

namespace {

bool isInitialized = false;
std::string translatedValue;

}  // namespace

int UF_is_initialized() {
  return isInitialized ? 1 : 0;
}

int UF_initialize() {
  isInitialized = true;
  return 0;
}

int UF_terminate() {
  isInitialized = false;
  return 0;
}

int UF_translate_variable(const char* name, char** translation) {
  *translation = nullptr;
  const auto value = plateconfig::EnvironmentVariable(name);
  if (!value) return 0;
  translatedValue = *value;
  *translation = translatedValue.data();
  return 0;
}
