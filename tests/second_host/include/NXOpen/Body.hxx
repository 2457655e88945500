#pragma once

#include <NXOpen/Face.hxx>
#include <vector>

namespace NXOpen {

/// Unlike the stand-in's, a body that does not own its faces.
class SECOND_HOST_API Body {
 public:
  explicit Body(std::vector<Face*> faces);
  std::vector<Face*> GetFaces();

 private:
  std::vector<Face*> faces_;
};

}  // namespace NXOpen
