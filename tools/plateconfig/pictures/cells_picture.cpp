// The cells of one table, row by row, so that a table of ten thousand rows needs little memory.

#include <nlohmann/json.hpp>

#include "analysis/pictures/table_cells.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/pictures/pictures.h"
#include "plateconfig/system/console.h"
#include "platform/file.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOf(FileForm form) {
  switch (form) {
    case FileForm::kTable:
      return "table";
    case FileForm::kWorkbook:
      return "workbook";
    case FileForm::kUtf16:
      return "utf16";
    case FileForm::kUtf8:
      return "utf8";
    case FileForm::kCarriageReturns:
      return "carriage-returns";
    case FileForm::kSeparatorLine:
      return "separator-line";
    case FileForm::kWrongSeparator:
      break;
  }
  return "wrong-separator";
}

Json NameOf(CellEncoding encoding) {
  switch (encoding) {
    case CellEncoding::kGbk:
      return "gbk";
    case CellEncoding::kUtf8:
      return "utf-8";
    case CellEncoding::kUnknown:
      break;
  }
  return nullptr;
}

void Write(const std::string& file, const TableCells& cells, std::ostream& out) {
  std::string head = JsonArray::ToText({{"file", file},
                                        {"form", NameOf(cells.Form())},
                                        {"encoding", NameOf(cells.Encoding())},
                                        {"columns", cells.ColumnCount()}});
  head.back() = ',';  // The rows follow in the same object.
  out << head << "\n\"rows\":";
  {
    JsonArray rows(out);
    for (std::size_t i = 0; i < cells.RowCount(); ++i) {
      const CellRow row = cells.Row(i);
      rows.Add({{"line", row.line}, {"cells", row.cells}});
    }
  }
  out << "}\n";
}

}  // namespace

void WriteCells(const PictureJob& job, const Streams& streams, Reporter& reporter) {
  if (job.files.size() != 1)
    return reporter.Error({"plateconfig"}, Say("the cells of one table are drawn: give one file",
                                               "一次画出一个表的单元格：请给出一个文件"));
  const std::string& file = job.files.front();
  const std::string path = HostPathFromUtf8(file);
  if (!FileExists(path)) return reporter.Error({file}, Say("there is no such file", "此文件不存在"));
  const auto table = Table::Read(path);
  if (table) return Write(file, TableCells(*table), streams.out);
  ForgetFailedRead();  // It is told here.
  reporter.Error({file}, Say("this file can not be read", "无法读取此文件"));
}

}  // namespace plateconfig
