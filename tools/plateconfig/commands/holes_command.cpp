#include <memory>
#include <optional>

#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/holes/hole_answer.h"
#include "plateconfig/holes/hole_files.h"
#include "plateconfig/holes/hole_output.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/csv_output.h"
#include "plateconfig/output/json_output.h"

namespace plateconfig {
namespace {

struct HoleJob {
  std::vector<std::string> typeFiles;  ///< UTF-8; "-" is standard input.
  std::vector<std::string> files;      ///< UTF-8; "-" is standard input.
  bool explains = false;
  Severity failOn = Severity::kWarning;
};

class HoleLoop {
 public:
  HoleLoop(const HoleJob& job, const std::vector<HoleTypeInput>& types, Context& context)
      : job_(job), types_(types), context_(context) {
    if (context.format == Format::kJson) array_.emplace(context.streams.out);
    if (context.format == Format::kCsv) csv_.emplace(context.streams.out, HoleColumns());
  }

  void Visit(const HoleInput& hole) {
    const HoleAnswer answer = ClassifyAgainst(hole.hole, types_);
    if (answer.BestCount() != 1) context_.reporter.CountFinding();
    ++count_;
    if (answer.BestCount() == 0) ++withoutType_;
    if (answer.IsTied()) ++tied_;
    Write(hole, answer);
  }

  void Finish() const {
    if (context_.summary == nullptr) return;
    std::string line =
        Say("{0} {1} and {2} {3}: {4} with one best type", "{0} 个孔，{2} 个类型：{4} 个有唯一最佳类型",
            count_, count_ == 1 ? "hole" : "holes", types_.size(), types_.size() == 1 ? "type" : "types",
            count_ - withoutType_ - tied_);
    if (withoutType_ > 0) line += Say(", {} without a type", "，{} 个没有类型", withoutType_);
    if (tied_ > 0) line += Say(", {} with a tie", "，{} 个得分并列", tied_);
    *context_.summary << line << "\n";
  }

 private:
  void Write(const HoleInput& hole, const HoleAnswer& answer) {
    if (array_) {
      array_->Add(HoleToJson(hole, answer, job_.explains));
    } else if (csv_) {
      for (const std::vector<std::string>& cells : HoleCells(hole, answer)) csv_->Row(cells);
    } else {
      WriteHoleText(hole, answer, job_.explains, context_.streams.out);
    }
  }

  const HoleJob& job_;
  const std::vector<HoleTypeInput>& types_;
  Context& context_;
  std::optional<JsonArray> array_;
  std::optional<CsvOutput> csv_;
  std::size_t count_ = 0;
  std::size_t withoutType_ = 0;
  std::size_t tied_ = 0;
};

void RunHoles(const HoleJob& job, Context& context) {
  context.reporter.FailOn(job.failOn);
  const std::vector<HoleTypeInput> types = ReadTypeFiles(job.typeFiles, context.streams, context.reporter);
  // Without a type every hole would only repeat that there is none.
  if (types.empty() && context.reporter.Result() == kUnusable) return;
  HoleLoop loop(job, types, context);
  VisitHoleFiles(job.files, context.streams, context.reporter,
                 [&](const HoleInput& hole) { loop.Visit(hole); });
  loop.Finish();
}

}  // namespace

Run HolesOptions(CLI::App& command) {
  const auto job = std::make_shared<HoleJob>();
  command
      .add_option("--types", job->typeFiles,
                  Say("hole types: a CSV file (GBK or UTF-8) or a JSON file; may be given several times",
                      "孔类型：CSV 文件（GBK 或 UTF-8）或 JSON 文件；可重复使用"))
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty())
      ->allow_extra_args(false)
      ->required();
  command.add_flag("--explain", job->explains,
                   Say("add the verdict on each segment, and the types that refuse the hole",
                       "同时说明每一段的判定，以及不接受此孔的类型"));
  command
      .add_option("holes", job->files,
                  Say("combined holes: a CSV file (GBK or UTF-8) or a JSON file; - reads standard input",
                      "组合孔：CSV 文件（GBK 或 UTF-8）或 JSON 文件；- 表示标准输入"))
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty())
      ->required();
  AddFailOn(command, job->failOn);
  return WithOutput(command, [job](Context& context) { RunHoles(*job, context); });
}

}  // namespace plateconfig
