// `template`: a table of a role, or an input file of plates, holes or hole types, ready to be filled in.

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>

#include "plateconfig/answers/plate_to_json.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/holes/hole_template.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/plates/plate_template.h"
#include "plateconfig/tables/table_template.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

struct TemplateJob {
  std::string name;
  ConfigurationOptions configuration;
};

std::string Plates(const TemplateJob& job, Context& context) {
  const auto rules = LoadRules(job.configuration, context.reporter);
  return rules ? PlateTemplate(rules->tables) : std::string();
}

std::string Holes(const TemplateJob&, Context&) {
  return HoleTemplate();
}

std::string HoleTypes(const TemplateJob&, Context&) {
  return HoleTypeTemplate();
}

/// What is no table of a configuration.
struct InputTemplate {
  const char* name;
  std::string (*make)(const TemplateJob& job, Context& context);
};
constexpr const char* kPlates = "plates";
constexpr InputTemplate kInputs[] = {{kPlates, Plates}, {"holes", Holes}, {"hole-types", HoleTypes}};

std::string Template(const TemplateJob& job, Context& context) {
  const auto input = std::find_if(std::begin(kInputs), std::end(kInputs),
                                  [&](const InputTemplate& each) { return each.name == job.name; });
  return input != std::end(kInputs) ? input->make(job, context)
                                    : TableTemplate(SchemaOf(*FindRole(job.name)));
}

/// A file gets the bytes of a table, GBK with CR LF; a terminal takes text.
void RunTemplate(const TemplateJob& job, Context& context) {
  std::string text = Template(job, context);
  if (context.streams.isWatched) {
    text = GbkToUtf8(text);
    std::erase(text, '\r');
  }
  context.streams.out << text;
}

/// Tables are CSV, and holes have nothing that a configuration asks for.
void RunJsonTemplate(const TemplateJob& job, Context& context) {
  if (job.name != kPlates) {
    context.reporter.Error({"plateconfig"}, Say("template {} does not write json; it writes csv",
                                                "template {} 不能输出 json，只能输出 csv", job.name));
    return;
  }
  const auto rules = LoadRules(job.configuration, context.reporter);
  if (rules) JsonArray(context.streams.out).Add(PlateToJson(ExampleOf(rules->tables)));
}

std::vector<std::string> TemplateNames() {
  const std::vector<std::string_view> roles = NamesOf(Roles());
  std::vector<std::string> names(roles.begin(), roles.end());
  for (const InputTemplate& input : kInputs) names.emplace_back(input.name);
  return names;
}

}  // namespace

Run TemplateOptions(CLI::App& command) {
  const auto job = std::make_shared<TemplateJob>();
  command
      .add_option("name", job->name,
                  Say("a table by its role, or plates, holes or hole-types",
                      "表的用途名，或 plates、holes、hole-types"))
      ->type_name(Say("ROLE", "用途"))
      ->required()
      ->check(OneOf(TemplateNames()));
  AddRolesToHelp(command, TemplateNames());
  AddConfigurationOptions(command, {Role::kProcessRules, Role::kProcessSettings}, job->configuration);
  const Run run = WithOutput(command, [job](Context& context) {
    context.format == Format::kJson ? RunJsonTemplate(*job, context) : RunTemplate(*job, context);
  });
  return [run](Context& context) {
    if (context.format == Format::kJson) return run(context);
    // A template is GBK already, and so are its bytes on the standard output.
    Context bytes{context.streams, context.reporter, Format::kText, context.summary};
    run(bytes);
  };
}

}  // namespace plateconfig
