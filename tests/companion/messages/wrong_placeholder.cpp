// Must not compile: the Chinese text has a place for an argument that is not given, and the compiler is to
// say so by naming fmt's complaint, "argument not found".
#include "plateconfig/messages/language.h"

std::string WrongPlaceholder() {
  return plateconfig::Say("{} rows", "{} 行 {} 列", 3);
}
