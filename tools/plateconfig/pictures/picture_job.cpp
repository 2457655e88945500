#include "plateconfig/pictures/picture_job.h"

#include "analysis/checks/rule_values.h"
#include "analysis/text/strict_values.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

std::nullopt_t Refused(const std::string& text, Reporter& reporter) {
  reporter.Error({"plateconfig"}, text);
  return std::nullopt;
}

}  // namespace

std::optional<Interval> RangeOf(std::string_view text) {
  const auto bounds = StrictNumbers(text);
  if (!bounds || bounds->size() != 2 || bounds->front() < 0 || bounds->front() >= bounds->back())
    return std::nullopt;
  return Interval{bounds->front(), bounds->back()};
}

std::optional<FixedSize> FixedSizeOf(std::string_view text) {
  const std::size_t equals = text.find('=');
  const auto size = SizeNamed(text.substr(0, equals));
  if (!size || equals == std::string_view::npos) return std::nullopt;
  const auto value = StrictNumber(text.substr(equals + 1));
  const bool mayBeZero = kSizeConditions[*size].condition == Condition::kWeight;
  if (!value || *value < 0 || (*value == 0 && !mayBeZero)) return std::nullopt;
  return FixedSize{*size, *value};
}

std::optional<PaperSize> PaperSizeOf(std::string_view text) {
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return std::nullopt;
  const auto width = StrictNumber(text.substr(0, cross));
  const auto height = StrictNumber(text.substr(cross + 1));
  if (!width || !height || !(*width > 0) || !(*height > 0)) return std::nullopt;
  return PaperSize{*width, *height};
}

std::optional<MapQuestion> QuestionOf(const PictureJob& job, Reporter& reporter) {
  const auto x = SizeNamed(job.x);
  const auto y = SizeNamed(job.y);
  if (!x || !y)
    return Refused(Say("a map spans two sizes: give --x SIZE and --y SIZE",
                       "规则图由两个尺寸展开：请给出 --x 尺寸 和 --y 尺寸"),
                   reporter);
  if (*x == *y)
    return Refused(Say("--x and --y are both {}; a map spans two sizes",
                       "--x 和 --y 都是 {}；规则图由两个不同的尺寸展开", job.x),
                   reporter);
  MapQuestion question{*x, *y, RangeOf(job.xRange), RangeOf(job.yRange), {}, job.bodyColor, job.answers};
  for (const std::string& text : job.fixed) {
    const FixedSize fixed = *FixedSizeOf(text);
    if (fixed.size == *x || fixed.size == *y || question.fixed[fixed.size])
      return Refused(Say("--fixed {}: this size is an axis of the map, or given twice",
                         "--fixed {}：此尺寸是规则图的坐标轴，或重复给出", text),
                     reporter);
    question.fixed[fixed.size] = fixed.value;
  }
  return question;
}

}  // namespace plateconfig
