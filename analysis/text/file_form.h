#pragma once

// What a file that should be a table really is, as far as its bytes tell: spreadsheet programs offer many
// ways to save, and only one of them is read.

#include <string_view>

namespace plateconfig {

enum class FileForm {
  kTable,            ///< Nothing speaks against commas, lines and GBK.
  kWorkbook,         ///< An Excel workbook, new (zip) or old (compound file), whatever its name says.
  kUtf16,            ///< Two bytes a character.
  kUtf8,             ///< UTF-8, with a byte order mark or with Chinese in it.
  kCarriageReturns,  ///< Lines end with CR alone, as old Macintosh programs write them.
  kSeparatorLine,    ///< The first line is Excel's `sep=,`, which is no header.
  kWrongSeparator,   ///< The header is one cell, and something else than a comma separates its columns.
};

FileForm FormOf(std::string_view bytes);

}  // namespace plateconfig
