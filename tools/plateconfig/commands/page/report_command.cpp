// `report`: the page with a configuration, its plates and holes inside, as one file to keep or to mail. What
// is wrong with them decides the exit code, as with `check`.

#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "plateconfig/checking/check_run.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/findings_text.h"
#include "plateconfig/report/embedded_page.h"
#include "plateconfig/report/report_page.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"
#include "plateconfig/system/open_file.h"

namespace plateconfig {
namespace {

struct ReportJob {
  CheckJob check;
  std::vector<std::string> holes;
  std::string page;  ///< UTF-8; empty for the program's own.
  bool opens = false;
};

/// Nothing, with an error, when there is none.
std::optional<std::string> PageOf(const ReportJob& job, Reporter& reporter) {
  if (!job.page.empty()) {
    const std::filesystem::path file = PathFromUtf8(job.page);
    auto page = ReadAllBytes(file);
    std::error_code error;
    if (!page) {
      reporter.Error({job.page}, std::filesystem::exists(file, error)
                                     ? Say("reading this file failed", "读取此文件失败")
                                     : Say("there is no such file", "此文件不存在"));
    }
    return page;
  }
  std::string page = EmbeddedPage();
  if (!page.empty()) return page;
  reporter.Error({"plateconfig"}, Say("this program was built without the page; give it with --page FILE",
                                      "此程序构建时未包含页面；请用 --page 文件 指定"));
  return std::nullopt;
}

void RunReport(const ReportJob& job, Context& context) {
  const auto page = PageOf(job, context.reporter);
  if (!page) return;
  const CheckJob& check = job.check;
  const auto data =
      ReadReportData({check.configuration, check.plateFiles, job.holes, check.typeFiles}, context.reporter);
  if (!data) return;
  const auto report = CheckAll(check, context.streams, context.reporter);
  if (!report) return;
  const auto filled = PageWithData(*page, *data);
  if (!filled) {
    return context.reporter.Error({job.page.empty() ? "plateconfig" : job.page},
                                  Say("this is not the page of plateconfig", "这不是 plateconfig 的页面"));
  }
  context.streams.out << *filled;
  const bool isInFile = context.summary != nullptr && context.summary != &context.streams.out;
  if (isInFile) WriteSummary(*report, *context.summary);
  CountFindings(check, *report, context.reporter);
}

void ReportNothingToOpen(Reporter& reporter) {
  reporter.Error({"plateconfig"}, Say("--open opens the file that -o names; give both",
                                      "--open 打开 -o 所写的文件，请同时给出"));
}

/// A file that was not written is not opened. One that can't be opened is as good as before.
void Open(const std::string& file, Reporter& reporter) {
  if (reporter.Result() == kUnusable || OpenWithItsProgram(PathFromUtf8(file))) return;
  reporter.ShowWarningsOnly();
  reporter.Warning({file},
                   Say("the system found no program to open this file", "系统没有找到可打开此文件的程序"));
}

}  // namespace

Run ReportOptions(CLI::App& command) {
  const auto job = std::make_shared<ReportJob>();
  AddConfigurationOptions(command, {}, job->check.configuration);
  AddFile(command, "--plates", job->check.plateFiles, Say("plates to put in", "要放入的板"));
  AddFile(command, "--holes", job->holes, Say("combined holes to put in", "要放入的组合孔"));
  AddFile(command, "--types", job->check.typeFiles, Say("hole types to put in", "要放入的孔类型"));
  AddFailOn(command, job->check.failOn);
  command
      .add_option("--page", job->page,
                  Say("this page instead of the program's own", "用此页面代替程序自带的页面"))
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty());
  const Run run = WithOutput(
      command, [job](Context& context) { RunReport(*job, context); },
      Say("write the page to this file", "将页面写入此文件"));
  command.add_flag("--open", job->opens, Say("open the file that was written", "写出后打开此文件"));
  return [job, run, &command](Context& context) {
    if (!job->opens) return run(context);
    const auto file = command.get_option("--output")->as<std::string>();
    if (file.empty()) return ReportNothingToOpen(context.reporter);
    run(context);
    Open(file, context.reporter);
  };
}

}  // namespace plateconfig
