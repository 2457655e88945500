#include "plateconfig/tables/schema_words.h"

#include "plateconfig/messages/language.h"

namespace plateconfig {

std::string InWords(const Words& words) {
  return SayPlain(words.english, words.chinese);
}

}  // namespace plateconfig
