#include "plateconfig/commands/verbs.h"

namespace plateconfig {

// Each in a file of its own: folder_command.cpp and so on.
AddOptions FolderOptions, CheckVerbOptions, ProcessOptions, ExplainOptions, DiffOptions, HolesOptions,
    ShowOptions, SchemaOptions, TemplateOptions;

std::span<const Verb> Verbs() {
  static constexpr Verb kVerbs[] = {
      {"folder", "print the active configuration folder that TQConfig leads to, and why",
       "显示 TQConfig 所指的有效配置文件夹及其由来", FolderOptions},
      {"check", "find every mistake in the tables of a configuration", "找出配置各表中的所有错误",
       CheckVerbOptions},
      {"process", "print the manufacturing-process text of each plate", "输出每块板的制造工艺文本",
       ProcessOptions},
      {"explain", "tell for each plate which rule row fits, and why none before it does",
       "说明每块板符合哪一规则行，以及之前各行为何不符合", ExplainOptions},
      {"diff", "tell what changed between two configurations, and for which plates",
       "比较两个配置：有哪些变化，影响哪些板", DiffOptions},
      {"holes", "list for each combined hole the types that it belongs to, with their scores, best first",
       "列出每个组合孔所属的类型及其得分，得分最高者在前", HolesOptions},
      {"show", "print every setting of a configuration, and where it comes from",
       "显示配置中的每一项设置及其来源", ShowOptions},
      {"schema", "print every table and column that the library reads, with defaults",
       "列出库读取的所有表和列及其默认值", SchemaOptions},
      {"template", "write a table with all columns of a role and their defaults (GBK, CR LF)",
       "写出某一用途的表，含全部列及默认值（GBK，CR LF）", TemplateOptions},
  };
  return kVerbs;
}

}  // namespace plateconfig
