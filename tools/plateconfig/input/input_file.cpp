#include "plateconfig/input/input_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

struct OpenInput {
  std::istream& in;
  std::string shownAs;
  std::size_t size;  ///< Bytes; 0 when it is unknown.
};

void Visit(const OpenInput& input, Context& context, const ReadInput& read, const std::string& nothingRead) {
  Progress progress(context.streams.err, context.streams.showsProgress, input.in, input.size);
  context.reporter.BeforeMessage([&progress] { progress.Clear(); });
  const std::size_t count = read(input.in, input.shownAs, progress);
  if (input.in.bad())
    context.reporter.Error({input.shownAs}, Say("reading this file failed", "读取此文件失败"));
  if (count == 0) context.reporter.Warning({input.shownAs}, nothingRead);
  context.reporter.BeforeMessage({});
}

}  // namespace

void VisitInput(const std::string& file, Context& context, const ReadInput& read,
                const std::string& nothingRead) {
  if (file == "-") {
    return Visit({context.streams.in, Say("standard input", "标准输入"), 0}, context, read, nothingRead);
  }
  const std::filesystem::path path(std::u8string(file.begin(), file.end()));
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    return context.reporter.Error({file}, Say("this is a folder, not a file", "这是文件夹，不是文件"));
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) return context.reporter.Error({file}, Say("this file can not be opened", "无法打开此文件"));
  const auto size = std::filesystem::file_size(path, error);
  Visit({in, file, error ? 0 : static_cast<std::size_t>(size)}, context, read, nothingRead);
}

}  // namespace plateconfig
