#pragma once

#include <chrono>
#include <cstddef>
#include <istream>
#include <ostream>

namespace plateconfig {

/// A progress bar on the error stream, for long inputs and people who watch. It appears once a few hundred
/// things are done and more are coming, is redrawn a few times a second, and disappears at the end.
class Progress {
 public:
  /// `total` is the size of `in` in bytes, 0 when it is unknown. Nothing is drawn unless `isShown`.
  Progress(std::ostream& err, bool isShown, std::istream& in, std::size_t total)
      : err_(err), isShown_(isShown), in_(in), total_(total) {}
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// One more thing is done.
  void Step();

  /// Takes the bar off the screen, so that something else can be written there; a later step draws it again.
  void Clear();

 private:
  void Draw();

  std::ostream& err_;
  bool isShown_;
  std::istream& in_;
  std::size_t total_;
  std::size_t count_ = 0;
  std::size_t drawnWidth_ = 0;
  std::chrono::steady_clock::time_point lastDrawn_;
};

}  // namespace plateconfig
