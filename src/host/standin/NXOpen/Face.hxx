#pragma once

#include <NXOpen/DisplayableObject.hxx>

namespace NXOpen {

/// One face of a body.
class Face : public DisplayableObject {
 public:
  using DisplayableObject::DisplayableObject;
};

}  // namespace NXOpen
