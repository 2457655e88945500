#include <memory>
#include <sstream>

#include "analysis/schema/table_schema.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/tables/schema_words.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

struct SchemaJob {
  std::string format;  ///< Empty: the companion's own.
};

std::string AbsentText(const ColumnSchema& column) {
  std::string text;
  for (const std::string& cell : column.whenAbsent) text += (text.empty() ? "" : ", ") + GbkToUtf8(cell);
  return text;
}

void WriteText(const TableSchema& table, std::ostream& out) {
  out << NameOf(table.role) << ": " << InWords(RowOf(table.role).title) << "\n";
  for (const ColumnSchema& column : table.columns) {
    out << "  " << GbkToUtf8(column.column) << ": " << InWords(column.help);
    if (column.unit != Unit::kNone) out << " [" << InWords(WordsOf(column.unit)) << "]";
    out << Say("; ", "；") << InWords(WordsOf(column.form));
    if (!AbsentText(column).empty()) out << Say("; when absent {}", "；缺列时 {}", AbsentText(column));
    out << "\n";
  }
  out << "\n";
}

Json ToJson(const TableSchema& table, const ColumnSchema& column) {
  Json absent = Json::array();
  for (const std::string& cell : column.whenAbsent) absent.push_back(GbkToUtf8(cell));
  return {{"role", NameOf(table.role)},
          {"column", GbkToUtf8(column.column)},
          {"kind", WordsOf(column.form).english},
          {"unit", WordsOf(column.unit).english},
          {"help", InWords(column.help)},
          {"whenAbsent", absent},
          {"rows", column.isRowColumn},
          {"list", column.isList},
          {"placeholder", column.use == ColumnUse::kPlaceholder}};
}

/// A cell of a Markdown table: its own separator would end it.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '|') escaped += '\\';
    escaped += c;
  }
  return escaped;
}

std::string WhenAbsentCell(const ColumnSchema& column) {
  if (column.isRowColumn) return Say("rows", "多行");
  if (column.whenAbsent.empty()) return Say("no values", "无");
  const std::string text = AbsentText(column);
  return text.empty() ? Say("empty text", "空文本") : "`" + Escaped(text) + "`";
}

void WriteMarkdown(const TableSchema& table, std::ostream& out) {
  out << "\n## " << NameOf(table.role) << "\n\n" << InWords(RowOf(table.role).title) << "\n\n";
  out << Say("| Column | What it is | Unit | Cells | When absent |", "| 列 | 含义 | 单位 | 单元格 | 缺列时 |")
      << "\n|---|---|---|---|---|\n";
  for (const ColumnSchema& column : table.columns) {
    const std::string name = "`" + GbkToUtf8(column.column) + "`";
    out << "| " << (column.use == ColumnUse::kPlaceholder ? "*" + name + "*" : name) << " | "
        << Escaped(InWords(column.help)) << " | " << InWords(WordsOf(column.unit)) << " | "
        << InWords(WordsOf(column.form)) << " | " << WhenAbsentCell(column) << " |\n";
  }
}

void WriteMarkdownHead(std::ostream& out) {
  out << Say("# Tables", "# 配置表") << "\n\n"
      << Say("Every table and every column that the library reads, in the order of reading. Written by\n"
             "`plateconfig schema --format markdown --lang en > docs/tables.md` from the rows that "
             "the loaders "
             "walk.\n\n"
             "Tables are CSV in GBK; the first line names the columns. A single value stands in the first "
             "data row. A "
             "list runs\n"
             "down its column; the columns marked \"rows\" belong together row by row. An empty first cell "
             "is a cell: a "
             "number is 0, a text\n"
             "empty; only where \"empty = no column\" is said it counts as absent. \"When absent\" is what a "
             "missing column "
             "and a\n"
             "table without data rows give. A slanted name stands for names that the user chooses.",
             "库读取的所有表和列，按读取顺序列出。本页由命令\n"
             "`plateconfig schema --format markdown --lang zh > docs/tables.zh.md` "
             "写出，与读取表格用的是同一份资料。\n\n"
             "表是 GBK 编码的 "
             "CSV，第一行是列名。单个值写在第一个数据行；列表沿列向下排列；标为“多行”的各列逐行对应。\n"
             "第一个单元格为空也算有值：数字为 "
             "0，文本为空；只有注明“空单元格等于没有此列”的才视为缺列。“缺列时”是缺少该列、\n"
             "或表中没有数据行时的值。斜体的名称代表由用户选定的名称。")
      << "\n";
}

std::string Written(const std::string& format) {
  std::ostringstream out;
  out.exceptions(std::ios::badbit);  // No memory for it: the stream would go on without it.
  if (format == "json") {
    JsonArray array(out);
    for (const TableSchema& table : FullSchema()) {
      for (const ColumnSchema& column : table.columns) array.Add(ToJson(table, column));
    }
  } else if (format == "markdown") {
    WriteMarkdownHead(out);
    for (const TableSchema& table : FullSchema()) WriteMarkdown(table, out);
  } else {
    for (const TableSchema& table : FullSchema()) WriteText(table, out);
  }
  return out.str();
}

void RunSchema(const SchemaJob& job, Context& context) {
  const std::string format = !job.format.empty()               ? job.format
                             : context.format == Format::kJson ? std::string("json")
                                                               : std::string("text");
  context.streams.out << Written(format);
}

}  // namespace

Run SchemaOptions(CLI::App& command) {
  const auto job = std::make_shared<SchemaJob>();
  command.add_option("--format", job->format, Say("text, json or markdown", "text、json 或 markdown"))
      ->check(OneOf({"text", "json", "markdown"}))
      ->type_name("text|json|markdown");
  return WithOutput(command, [job](Context& context) { RunSchema(*job, context); });
}

}  // namespace plateconfig
