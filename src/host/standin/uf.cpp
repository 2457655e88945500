#include "uf.h"

#include <cstdlib>
#include <string>

#include "text/gbk.h"

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
  const char* value = std::getenv(name);
  *translation = nullptr;
  if (value == nullptr) return 0;
  translatedValue = value;
  if (const auto gbk = plateconfig::TryUtf8ToGbk(translatedValue)) translatedValue = *gbk;
  *translation = translatedValue.data();
  return 0;
}
