#pragma once

namespace NXOpen {

class Point3d {
 public:
  Point3d() = default;
  Point3d(double x, double y, double z) : X(x), Y(y), Z(z) {}

  double X = 0;
  double Y = 0;
  double Z = 0;
};

}  // namespace NXOpen
