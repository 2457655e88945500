#include "plateconfig/input/input_file.h"

#include <filesystem>
#include <system_error>

#include "plateconfig/messages/language.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"

namespace plateconfig {
namespace {

struct OpenInput {
  std::istream& in;
  std::string shownAs;
  std::size_t size;         ///< Bytes; 0 when it is unknown.
  std::string nothingRead;  ///< As in `InputFile`.
};

void Visit(const OpenInput& input, const Streams& streams, Reporter& reporter, const ReadInput& read) {
  Progress progress(streams.err, streams.showsProgress, input.in, input.size);
  reporter.BeforeMessage([&progress] { progress.Clear(); });
  const std::size_t count = read(input.in, input.shownAs, progress);
  if (input.in.bad()) reporter.Error({input.shownAs}, Say("reading this file failed", "读取此文件失败"));
  if (count == 0 && !input.nothingRead.empty()) reporter.Warning({input.shownAs}, input.nothingRead);
  reporter.BeforeMessage({});
}

}  // namespace

void VisitInput(const InputFile& file, const Streams& streams, Reporter& reporter, const ReadInput& read) {
  const std::string& name = file.name;
  if (name == "-") {
    return Visit({streams.in, Say("standard input", "标准输入"), 0, file.nothingRead}, streams, reporter,
                 read);
  }
  const std::filesystem::path path = PathFromUtf8(name);
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    return reporter.Error({name}, Say("this is a folder, not a file", "这是文件夹，不是文件"));
  }
  InputFileStream in(path);
  if (!in) {
    return reporter.Error({name}, std::filesystem::exists(path, error)
                                      ? Say("this file can not be opened", "无法打开此文件")
                                      : Say("there is no such file", "此文件不存在"));
  }
  const auto size = std::filesystem::file_size(path, error);
  Visit({in, name, error ? 0 : static_cast<std::size_t>(size), file.nothingRead}, streams, reporter, read);
}

}  // namespace plateconfig
