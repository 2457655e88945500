// Compiled with GBK as the compiler's execution character set: what the sources spell in Chinese has to
// come out the same as without it.
#include <string_view>

#include "settings/system_default_keys.h"
#include "text/gbk.h"

using namespace plateconfig::literals;

static_assert(std::string_view("图") == "\xCD\xBC", "the compiler was not told to write GBK");

static_assert("图层间距"_gbk == "\xCD\xBC\xB2\xE3\xBC\xE4\xBE\xE0");
static_assert("€"_gbk == "\x80");

static_assert(plateconfig::kBomKeys[0].column == "\xC3\xDC\xB6\xC8(g/cm)");
