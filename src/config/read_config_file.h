#pragma once

// Reads one configuration table: a comma-separated GBK text file whose first line names the columns.
//
//   ReadConfigFile table;
//   table.OpenConfigFile(path);
//   std::string cell = table.GetItemValue(column, 1);   // first data row

#include <memory>
#include <string>
#include <vector>

#include "plateconfig_export.h"

class ReadConfigFile;

namespace plateconfig {
class Table;

/// A reader of a table that is in memory already, for those who look at a table and load from it too.
ReadConfigFile ReaderOf(std::shared_ptr<const Table> table);
/// The table of a reader, for as long as the reader is neither opened again nor gone.
const Table& TableOf(const ReadConfigFile& reader);
}  // namespace plateconfig

/// A configuration table, whole in memory once opened and independent of the file from then on. Nothing
/// throws on bad data: what is missing reads as empty. Cells may be quoted as spreadsheet programs quote
/// them; no blank is trimmed. Copies share the loaded table, which never changes.
class PLATECONFIG_API ReadConfigFile {
 public:
  /// An empty reader: no columns, no rows.
  ReadConfigFile();
  ReadConfigFile(const ReadConfigFile&);
  ReadConfigFile& operator=(const ReadConfigFile&);
  virtual ~ReadConfigFile();

  /// Reads the whole file. `path` is a host path (GBK on a Chinese Windows). False when the file can not be
  /// opened or read (missing, a directory, no rights, 4 GiB or more, no memory): the reader is empty then. An
  /// empty file is true and has no columns. A second call replaces the table.
  bool OpenConfigFile(const std::string& path);

  /// Has nothing left to release: the file is closed as soon as it was read. The table stays, and the call is
  /// allowed at any time, also after a failed open.
  void CloseConfigFile();

  /// The header cells, in file order.
  std::vector<std::string> GetColumnNames() const;

  /// The column's cells, one per data row, in row order. An unknown column gives no cells; of two columns of
  /// one name the first answers; a cell that a short line lacks is empty.
  std::vector<std::string> GetColumnValue(const std::string& column) const;

  /// The data row (0 is the first) of the first cell that equals `value` byte by byte; -1 when column or
  /// value is absent.
  int GetItemIndex(const std::string& column, const std::string& value) const;

  /// The cell in data row `row`, counted from 1; row 0 is the header cell. An unknown column or row gives an
  /// empty text.
  std::string GetItemValue(const std::string& column, int row) const;

 private:
  friend ReadConfigFile plateconfig::ReaderOf(std::shared_ptr<const plateconfig::Table> table);
  friend const plateconfig::Table& plateconfig::TableOf(const ReadConfigFile& reader);

  std::shared_ptr<const plateconfig::Table> table_;
};
