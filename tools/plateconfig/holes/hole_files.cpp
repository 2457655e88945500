#include "plateconfig/holes/hole_files.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "plateconfig/holes/hole_reader.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/input/input_file.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

std::vector<HoleTypeInput> ReadTypeFiles(const std::vector<std::string>& files, const Streams& streams,
                                         Reporter& reporter) {
  std::vector<HoleTypeInput> types;
  for (const std::string& file : files) {
    const auto read = [&](std::istream& in, const std::string& shownAs, Progress&) {
      std::vector<HoleTypeInput> more = ReadHoleTypes(in, shownAs, reporter);
      std::move(more.begin(), more.end(), std::back_inserter(types));
      return more.size();
    };
    VisitInput({file, Say("no hole type was read from this file", "没有从此文件读到任何孔类型")}, streams,
               reporter, read);
  }
  return types;
}

void VisitHoleFiles(const std::vector<std::string>& files, const Streams& streams, Reporter& reporter,
                    const std::function<void(const HoleInput& hole)>& visit) {
  for (const std::string& file : files) {
    const auto read = [&](std::istream& in, const std::string& shownAs, Progress& progress) {
      const auto holes = ReadHoles(in, shownAs, reporter);
      std::size_t count = 0;
      for (; const std::optional<HoleInput> hole = holes->Next(); ++count) {
        progress.Step();
        visit(*hole);
      }
      return count;
    };
    VisitInput({file, Say("no hole was read from this file", "没有从此文件读到任何孔")}, streams, reporter,
               read);
  }
}

}  // namespace plateconfig
