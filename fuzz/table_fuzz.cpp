// Any bytes are a table, the same one for the reader and for a naive second reader.
#include "fuzz/targets.h"

#include <string_view>

#include "config/reference_csv.h"
#include "config/table_text.h"
#include "fuzz/require.h"

void plateconfig::fuzz::FuzzTable(std::string_view bytes) {
  const Table table = test::TableOf(bytes);
  const test::Lines lines = test::LinesOf(table);
  Require(lines == test::ReferenceCsv::Parse(bytes), "both readers see the same cells");
  for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
    const auto first = table.FindColumn(lines[0][column]);
    Require(first && *first <= column && lines[0][*first] == lines[0][column],
            "a column is found by its name, the first of that name");
  }
}
