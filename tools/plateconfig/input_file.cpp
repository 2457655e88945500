#include "plateconfig/input_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "plateconfig/language.h"

namespace plateconfig {
namespace {

struct OpenInput {
  std::istream& in;
  std::string shownAs;
  std::size_t size;  ///< Bytes; 0 when it is unknown.
};

void Visit(const OpenInput& input, Session& session, const ReadInput& read, const std::string& nothingRead) {
  Progress progress(session.streams.err, session.streams.showsProgress, input.in, input.size);
  session.reporter.BeforeMessage([&progress] { progress.Clear(); });
  const std::size_t count = read(input.in, input.shownAs, progress);
  if (input.in.bad())
    session.reporter.Error({input.shownAs}, Say("reading this file failed", "读取此文件失败"));
  if (count == 0) session.reporter.Warning({input.shownAs}, nothingRead);
  session.reporter.BeforeMessage({});
}

}  // namespace

void VisitInput(const std::string& file, Session& session, const ReadInput& read,
                const std::string& nothingRead) {
  if (file == "-") {
    return Visit({session.streams.in, Say("standard input", "标准输入"), 0}, session, read, nothingRead);
  }
  const std::filesystem::path path(std::u8string(file.begin(), file.end()));
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    return session.reporter.Error({file}, Say("this is a folder, not a file", "这是文件夹，不是文件"));
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) return session.reporter.Error({file}, Say("this file can not be opened", "无法打开此文件"));
  const auto size = std::filesystem::file_size(path, error);
  Visit({in, file, error ? 0 : static_cast<std::size_t>(size)}, session, read, nothingRead);
}

}  // namespace plateconfig
