#pragma once

// What the host tool knows of one plate body: the solid, its outer sizes in millimetres, its NX layer number
// and its NX colour index.
//
//   NXOpen::Body solid({36, 186});
//   BodyInfo plate(&solid, 450, 400, 90, 3, 12);

namespace NXOpen {
class Body;
}

class BodyInfo {
 public:
  /// The body is not owned and may be null, which counts as a body without faces.
  BodyInfo(NXOpen::Body* body, double length, double wide, double height, int layer, int color)
      : body_(body), length_(length), wide_(wide), height_(height), layer_(layer), color_(color) {}

  NXOpen::Body* GetBody() const { return body_; }
  double GetBodyLength() const { return length_; }
  double GetBodyWide() const { return wide_; }
  double GetBodyHeight() const { return height_; }
  int GetBodyLayer() const { return layer_; }
  int GetBodyColor() const { return color_; }

 private:
  NXOpen::Body* body_;
  double length_;
  double wide_;
  double height_;
  int layer_;
  int color_;
};
