#include <memory>

#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/tables/table_template.h"

namespace plateconfig {
namespace {

struct TemplateJob {
  std::string role;
  std::string output;  ///< UTF-8; empty is the standard output.
  bool force = false;
};

void RunTemplate(const TemplateJob& job, Context& context) {
  const std::string table = TableTemplate(SchemaOf(*FindRole(job.role)));
  if (job.output.empty()) {
    context.streams.out << table;
  } else {
    WriteOutputFile(job.output, table, job.force ? IfPresent::kReplace : IfPresent::kKeep, context.reporter);
  }
}

std::vector<std::string> RoleNames() {
  const std::vector<std::string_view> roles = NamesOf(Roles());
  return {roles.begin(), roles.end()};
}

}  // namespace

Run TemplateOptions(CLI::App& command) {
  const auto job = std::make_shared<TemplateJob>();
  command.add_option("role", job->role, Say("the role of the table", "表的用途"))
      ->type_name(Say("ROLE", "用途"))
      ->required()
      ->check(OneOf(RoleNames()));
  AddRolesToHelp(command, RoleNames());
  command.add_option("-o,--output", job->output, Say("write to this file", "写入此文件"))
      ->type_name(Say("FILE", "文件"));
  command.add_flag("--force", job->force, Say("replace a file that exists", "覆盖已有文件"));
  return [job](Context& context) { RunTemplate(*job, context); };
}

}  // namespace plateconfig
