#pragma once

#include <string>
#include <string_view>

namespace plateconfig {

/// The SHA-256 digest (FIPS 180-4) of the bytes, 64 hexadecimal digits in small letters. It tells files apart
/// and names findings; nothing secret rests on it.
std::string Sha256(std::string_view bytes);

}  // namespace plateconfig
