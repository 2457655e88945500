#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "plateconfig/companion.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/reporter.h"
#include "platform/diagnostic_file.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {

/// What one command line gave.
struct CompanionResult {
  int exitCode;
  std::string out;
  std::string err;
};

/// Runs the companion on `arguments` and the standard input `in`. It speaks English unless the arguments say
/// otherwise, whatever the machine's language is.
inline CompanionResult RunPlateconfig(std::vector<std::string> arguments, const std::string& in = "") {
  const ScopedVariable locale("LC_ALL", "C.UTF-8");
#ifdef _WIN32
  // The last one counts, and there the language is not a variable's.
  const auto isLanguage = [](const std::string& argument) {
    return argument == "--lang" || argument.starts_with("--lang=");
  };
  if (std::none_of(arguments.begin(), arguments.end(), isLanguage))
    arguments.insert(arguments.begin(), {"--lang", "en"});
#endif
  std::istringstream input(in);
  std::ostringstream out;
  std::ostringstream err;
  const int exitCode = RunCompanion(arguments, {input, out, err});
  EnableDiagnosticFiles(true);  // The command has turned them off for the whole process.
  SetLanguage(Language::kEnglish);
  return {exitCode, out.str(), err.str()};
}

/// A reporter with its messages, in English.
struct Messages {
  Messages() { SetLanguage(Language::kEnglish); }

  std::string Text() const { return err.str(); }

  std::ostringstream err;
  Reporter reporter{err};
};

/// The path of a file in the folder as it is written on a command line.
inline std::string ArgumentPath(const TemporaryFolder& folder, const std::string& name) {
  const std::u8string path = (folder.Path() / std::u8string(name.begin(), name.end())).u8string();
  return {path.begin(), path.end()};
}

/// A small configuration: four processes and three rule rows (lines 2 to 4).
class SmallConfiguration {
 public:
  SmallConfiguration() {
    folder_.WriteBytes("tables.json", R"({"process-rules": "规则.csv", "process-settings": "设置.csv"})");
    folder_.WriteTable("规则.csv", kRules);
    folder_.WriteTable("设置.csv", "连接符号,输出行号\n→,N\n");
  }

  const TemporaryFolder& Folder() const { return folder_; }
  std::string Path() const { return ArgumentPath(folder_, ""); }

  CompanionResult Process(const std::string& plates) const {
    return RunPlateconfig({"process", "--config", Path(), "-"}, plates);
  }
  CompanionResult Explain(const std::string& plates) const {
    return RunPlateconfig({"explain", "--config", Path(), "-"}, plates);
  }

 private:
  static constexpr std::string_view kRules =
      "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,"
      "模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求,下料,钻孔,线割,检测\n"
      "软料（体颜色）,12_87,下料,自定义追加工艺,,"
      "12,100_500,100_400,20_100,0_200,,,软料（体颜色）,锯床下料,钻孔到数,,检测外形\n"
      "硬料（体颜色）,42,钻孔,圆孔颜色,36_186,"
      "12,100_500,100_400,20_100,,有型面,,软料（体颜色）,锯床下料,钻孔到数,,三坐标检测\n"
      "有线割,103,线割,有无异型槽,,"
      "13,100_1200,50_1000,12_250,,,有线割,硬料（体颜色）,锻件下料,细孔放电,慢走丝,检测孔距\n"
      "有型面,190,检测,孔数量大于参数值,3,,,,,,,,,,,,\n";

  TemporaryFolder folder_;
};

}  // namespace plateconfig::test
