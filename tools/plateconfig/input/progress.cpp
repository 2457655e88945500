#include "plateconfig/input/progress.h"

#include <algorithm>
#include <string>

#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

constexpr std::size_t kQuietPlates = 300;
constexpr std::chrono::milliseconds kInterval(100);
constexpr std::size_t kBarWidth = 40;

std::string Bar(std::size_t done, std::size_t total) {
  const std::size_t filled = std::min(done, total) * kBarWidth / total;
  return "[" + std::string(filled, '#') + std::string(kBarWidth - filled, ' ') + "] ";
}

}  // namespace

void Progress::Step() {
  ++count_;
  if (!isShown_ || count_ <= kQuietPlates) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - lastDrawn_ < kInterval) return;
  lastDrawn_ = now;
  Draw();
}

void Progress::Draw() {
  const auto position = in_.tellg();
  const bool knowsPlace = total_ > 0 && position >= 0;
  const std::string bar = knowsPlace ? Bar(static_cast<std::size_t>(position), total_) : "";
  const std::string text = bar + Say("{} read", "已读 {} 个", count_);
  Clear();
  err_ << "\r" << text << std::flush;
  // A Chinese character is two columns wide and three bytes long, so the bytes are enough to cover it.
  drawnWidth_ = text.size();
}

void Progress::Clear() {
  // Blanks rather than a control sequence: every console knows them.
  if (drawnWidth_ > 0) err_ << "\r" << std::string(drawnWidth_, ' ') << "\r" << std::flush;
  drawnWidth_ = 0;
}

}  // namespace plateconfig
