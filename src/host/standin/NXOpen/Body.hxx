#pragma once

#include <NXOpen/Face.hxx>
#include <memory>
#include <vector>

namespace NXOpen {

/// A solid body that owns its faces. Tests derive from it to stand for a host that fails.
class Body {
 public:
  /// A body with one face per colour.
  explicit Body(const std::vector<int>& faceColors) {
    for (const int color : faceColors) faces_.push_back(std::make_unique<Face>(color));
  }
  virtual ~Body() = default;

  /// The faces; they live as long as the body.
  virtual std::vector<Face*> GetFaces() {
    std::vector<Face*> faces;
    for (const auto& face : faces_) faces.push_back(face.get());
    return faces;
  }

 private:
  std::vector<std::unique_ptr<Face>> faces_;
};

}  // namespace NXOpen
