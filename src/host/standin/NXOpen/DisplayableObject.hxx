#pragma once

namespace NXOpen {

/// Something with a colour.
class DisplayableObject {
 public:
  explicit DisplayableObject(int color) : color_(color) {}
  virtual ~DisplayableObject() = default;

  /// The colour index.
  virtual int Color() { return color_; }

 private:
  int color_;
};

}  // namespace NXOpen
