#include "plateconfig/commands/verbs.h"

namespace plateconfig {

// Each in a file of its own: folder_command.cpp and so on.
AddOptions FolderOptions, InitOptions, CheckVerbOptions, ProcessOptions, ExplainOptions, DiffOptions,
    HolesOptions, ShowOptions, SchemaOptions, TemplateOptions, PictureOptions, ReportOptions;

std::span<const Verb> Verbs() {
  static constexpr std::string_view kTextOrJson = "text json";
  static constexpr std::string_view kTextJsonOrCsv = "text json csv";
  static constexpr Verb kVerbs[] = {
      {"folder", "print the active configuration folder that TQConfig leads to, and why",
       "显示 TQConfig 所指的有效配置文件夹及其由来", FolderOptions, kTextOrJson, "plateconfig folder"},
      {"init", "write the tables.json of a folder: which of its tables plays which role",
       "为文件夹写出 tables.json：其中的表各有何用途", InitOptions, kTextOrJson,
       "plateconfig init config/新配置"},
      {"check", "find every mistake in the tables of a configuration", "找出配置各表中的所有错误",
       CheckVerbOptions, kTextJsonOrCsv,
       "plateconfig check --config samples/config/标准 --plates samples/plates.csv"},
      {"process", "print the manufacturing-process text of each plate", "输出每块板的制造工艺文本",
       ProcessOptions, kTextJsonOrCsv, "plateconfig process --format csv -o 工艺.csv samples/plates.csv"},
      {"explain", "tell for each plate which rule row fits, and why none before it does",
       "说明每块板符合哪一规则行，以及之前各行为何不符合", ExplainOptions, kTextJsonOrCsv,
       "plateconfig explain --config samples/config/标准 --plate A板 samples/plates.csv"},
      {"diff", "tell what changed between two configurations, and for which plates",
       "比较两个配置：有哪些变化，影响哪些板", DiffOptions, kTextOrJson,
       "plateconfig diff samples/config/标准 samples/config/精密模 --plates samples/plates.csv"},
      {"holes", "list for each combined hole the types that it belongs to, with their scores, best first",
       "列出每个组合孔所属的类型及其得分，得分最高者在前", HolesOptions, kTextJsonOrCsv,
       "plateconfig holes --types samples/hole-types.csv samples/holes.csv"},
      {"show", "print every setting of a configuration, and where it comes from",
       "显示配置中的每一项设置及其来源", ShowOptions, kTextJsonOrCsv,
       "plateconfig show process-rules --config samples/config/标准"},
      {"schema", "print every table and column that the library reads, with defaults",
       "列出库读取的所有表和列及其默认值", SchemaOptions, kTextOrJson, "plateconfig schema --format json"},
      {"template", "write a table, or a file of plates or holes, with all columns (GBK, CR LF)",
       "写出一个表，或板、孔的文件，含全部列（GBK，CR LF）", TemplateOptions, "csv json",
       "plateconfig template plates --config samples/config/标准 -o 板.csv"},
      {"report", "write the page with a configuration inside, as one file to keep or to mail",
       "写出含有配置的页面：一个可保存、可邮寄的文件", ReportOptions, "text",
       "plateconfig report --config samples/config/标准 --plates samples/plates.csv -o report.html"},
      {"picture", "print as numbers what a program needs to draw tables, rules, holes or a sheet",
       "以数值输出画表格、规则图、孔或图纸所需的内容", PictureOptions, "json",
       "plateconfig picture map --config samples/config/标准 --x length --y width"},
  };
  return kVerbs;
}

}  // namespace plateconfig
