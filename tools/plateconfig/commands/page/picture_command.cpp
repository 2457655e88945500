// `picture`: what a page or another program needs to draw a configuration. One verb with several kinds
// of pictures; each takes some of the options.

#include <algorithm>
#include <iterator>
#include <memory>

#include "analysis/checks/rule_values.h"
#include "analysis/pictures/sheet_settings.h"
#include "analysis/text/strict_values.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/pictures/pictures.h"

namespace plateconfig {
namespace {

using namespace picture_kinds;

struct PictureKind {
  const char* name;
  bool takesFiles;
  void (*write)(const PictureJob& job, const Streams& streams, Reporter& reporter);
};

constexpr PictureKind kKinds[] = {
    {kCells, true, WriteCells}, {kMap, false, WriteMap},     {kChanges, true, WriteChanges},
    {kHoles, true, WriteHoles}, {kSheet, false, WriteSheet},
};

/// The pictures that take an option; the others would ignore it, which is refused.
struct OptionUse {
  std::string option;
  std::string_view kind;
  std::string_view otherKind = {};
};

/// The tables that pictures are made of, each an option of its own: that of the map, and those of a sheet.
std::vector<Role> DrawnRoles() {
  std::vector<Role> roles = {Role::kProcessRules};
  roles.insert(roles.end(), std::begin(kSheetRoles), std::end(kSheetRoles));
  return roles;
}

std::vector<OptionUse> Uses() {
  std::vector<OptionUse> uses = {
      {"--config", kMap, kSheet},
      {"--x", kMap, kChanges},
      {"--y", kMap, kChanges},
      {"--fixed", kMap, kChanges},
      {"--body-color", kMap, kChanges},
      {"--profile", kMap, kChanges},
      {"--wire-cutting", kMap, kChanges},
      {"--x-range", kMap, kChanges},
      {"--y-range", kMap, kChanges},
      {"--types", kHoles},
      {"--size", kSheet},
      {"--paper", kSheet},
  };
  for (const Role role : DrawnRoles())
    uses.push_back({OptionOf(role), role == Role::kProcessRules ? kMap : kSheet});
  return uses;
}

bool IsGiven(const CLI::App& command, const std::string& option) {
  const auto all = command.get_options();
  return std::any_of(all.begin(), all.end(),
                     [&](const CLI::Option* each) { return each->check_name(option) && each->count() > 0; });
}

void Refuse(const std::string& kind, const std::string& what, Reporter& reporter) {
  reporter.Error({"plateconfig"}, Say("picture {} takes no {}", "picture {} 不接受 {}", kind, what));
}

/// False, with an error, for an option or a file that this picture does not take.
bool TakesAll(const CLI::App& command, const PictureKind& kind, const PictureJob& job, Reporter& reporter) {
  for (const OptionUse& use : Uses()) {
    if (kind.name == use.kind || kind.name == use.otherKind || !IsGiven(command, use.option)) continue;
    Refuse(job.kind, use.option, reporter);
    return false;
  }
  if (kind.takesFiles || job.files.empty()) return true;
  Refuse(job.kind, Say("file such as {}", "{} 这样的文件", job.files.front()), reporter);
  return false;
}

void RunPicture(const PictureJob& job, const CLI::App& command, Context& context) {
  context.reporter.ShowWarningsOnly();
  const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                 [&](const PictureKind& each) { return job.kind == each.name; });
  if (TakesAll(command, *kind, job, context.reporter)) kind->write(job, context.streams, context.reporter);
}

// ---- options ----

std::vector<std::string> KindNames() {
  std::vector<std::string> names;
  for (const PictureKind& kind : kKinds) names.emplace_back(kind.name);
  return names;
}

std::vector<std::string> SizeNames() {
  std::vector<std::string> names;
  for (const SizeCondition& size : kSizeConditions) names.emplace_back(NameOf(size.condition));
  return names;
}

CLI::Validator IsRange() {
  const auto check = [](std::string& text) {
    return RangeOf(text) ? std::string()
                         : Say("\"{}\" is no range; write it like 50_800",
                               "“{}”不是范围；请写成 50_800 这样的形式", text);
  };
  return CLI::Validator(check, "");
}

CLI::Validator IsFixedSize() {
  const auto check = [](std::string& text) {
    return FixedSizeOf(text) ? std::string()
                             : Say("\"{}\" is no size with a value; write it like thickness=30",
                                   "“{}”不是尺寸及其数值；请写成 thickness=30 这样的形式", text);
  };
  return CLI::Validator(check, "");
}

CLI::Validator IsPaper() {
  const auto check = [](std::string& text) {
    return PaperSizeOf(text) ? std::string()
                             : Say("\"{}\" is no paper size in mm; write it like 420x297",
                                   "“{}”不是以毫米计的纸张尺寸；请写成 420x297 这样的形式", text);
  };
  return CLI::Validator(check, "");
}

CLI::Validator IsColor() {
  const auto check = [](std::string& text) {
    return StrictInteger(text) ? std::string() : Say("\"{}\" is no colour index", "“{}”不是颜色号", text);
  };
  return CLI::Validator(check, "");
}

void AddMapOptions(CLI::App& command, PictureJob& job) {
  const std::string size = fmt::format("{}", fmt::join(SizeNames(), "|"));
  command.add_option("--x", job.x, Say("map: the size to the right", "规则图：横轴的尺寸"))
      ->type_name(size)
      ->check(OneOf(SizeNames()));
  command.add_option("--y", job.y, Say("map: the size upwards", "规则图：纵轴的尺寸"))
      ->type_name(size)
      ->check(OneOf(SizeNames()));
  command
      .add_option(
          "--fixed", job.fixed,
          Say("map: other sizes, thickness=30,weight=120", "规则图：其余尺寸，thickness=30,weight=120"))
      ->type_name(Say("SIZES", "尺寸"))
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(IsFixedSize());
  command
      .add_option("--body-color", job.bodyColor, Say("map: body colour of the plates", "规则图：板的体颜色"))
      ->type_name("N")
      ->check(IsColor());
  command.add_flag("--profile", job.answers.profile, Say("map: plates with a profile", "规则图：有型面的板"));
  command.add_flag("--wire-cutting", job.answers.wireCutting,
                   Say("map: plates with wire cutting", "规则图：有线割的板"));
  for (const auto& [option, range] : {std::pair{"--x-range", &job.xRange}, {"--y-range", &job.yRange}}) {
    command.add_option(option, *range, Say("map: what this axis shows", "规则图：此轴的范围"))
        ->type_name("50_800")
        ->check(IsRange());
  }
}

void AddSheetOptions(CLI::App& command, PictureJob& job) {
  command
      .add_option("--size", job.sheetSize,
                  Say("sheet: places of small or large sheets", "图纸：小图或大图的位置"))
      ->type_name(fmt::format("{}|{}", sheet_sizes::kSmall, sheet_sizes::kLarge))
      ->check(OneOf({sheet_sizes::kSmall, sheet_sizes::kLarge}));
  command
      .add_option(
          "--paper", job.paper,
          Say("sheet: width and height in mm, which no table says", "图纸：以毫米计的宽和高，各表中没有"))
      ->type_name("420x297")
      ->check(IsPaper());
}

}  // namespace

Run PictureOptions(CLI::App& command) {
  const auto job = std::make_shared<PictureJob>();
  command
      .add_option("picture", job->kind,
                  Say("cells of a table, map of the rules, changes between two, holes in section, sheet",
                      "cells：表的单元格；map：规则图；changes：规则的变化；holes：孔的剖面；sheet：图纸"))
      ->type_name(fmt::format("{}", fmt::join(KindNames(), "|")))
      ->check(OneOf(KindNames()))
      ->required();
  command
      .add_option("files", job->files,
                  Say("cells: the table; changes: both folders; holes: files of combined holes",
                      "cells：表文件；changes：两个文件夹；holes：组合孔文件"))
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty());
  AddConfigurationOptions(command, DrawnRoles(), job->configuration);
  AddMapOptions(command, *job);
  AddFile(command, "--types", job->typeFiles, Say("holes: files of hole types", "孔：孔类型文件"));
  AddSheetOptions(command, *job);
  return WithOutput(command, [job, &command](Context& context) { RunPicture(*job, command, context); });
}

}  // namespace plateconfig
