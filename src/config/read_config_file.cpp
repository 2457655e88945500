#include "config/read_config_file.h"

#include <utility>

#include "config/table.h"

using plateconfig::Table;

namespace {

const std::shared_ptr<const Table>& EmptyTable() {
  static const auto empty = std::make_shared<const Table>();
  return empty;
}

}  // namespace

ReadConfigFile::ReadConfigFile() : table_(EmptyTable()) {}
ReadConfigFile::ReadConfigFile(const ReadConfigFile&) = default;
ReadConfigFile& ReadConfigFile::operator=(const ReadConfigFile&) = default;
ReadConfigFile::~ReadConfigFile() = default;

bool ReadConfigFile::OpenConfigFile(const std::string& path) {
  std::optional<Table> table = Table::Read(path);
  table_ = table ? std::make_shared<const Table>(std::move(*table)) : EmptyTable();
  return table.has_value();
}

void ReadConfigFile::CloseConfigFile() {}

std::vector<std::string> ReadConfigFile::GetColumnNames() const {
  std::vector<std::string> names(table_->ColumnCount());
  for (std::size_t column = 0; column < names.size(); ++column) names[column] = table_->Cell(0, column);
  return names;
}

std::vector<std::string> ReadConfigFile::GetColumnValue(const std::string& column) const {
  const auto position = table_->FindColumn(column);
  return position ? table_->Column(*position) : std::vector<std::string>();
}

int ReadConfigFile::GetItemIndex(const std::string& column, const std::string& value) const {
  const auto position = table_->FindColumn(column);
  return position ? static_cast<int>(table_->FindInColumn(*position, value)) - 1 : -1;
}

std::string ReadConfigFile::GetItemValue(const std::string& column, int row) const {
  const auto position = table_->FindColumn(column);
  if (!position || row < 0 || static_cast<std::size_t>(row) > table_->RowCount()) return {};
  return table_->Cell(static_cast<std::size_t>(row), *position);
}

ReadConfigFile plateconfig::ReaderOf(std::shared_ptr<const Table> table) {
  ReadConfigFile reader;
  reader.table_ = std::move(table);
  return reader;
}

const Table& plateconfig::TableOf(const ReadConfigFile& reader) {
  return *reader.table_;
}
