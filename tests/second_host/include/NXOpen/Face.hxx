#pragma once

#include <NXOpen/DisplayableObject.hxx>

namespace NXOpen {

class SECOND_HOST_API Face : public DisplayableObject {
 public:
  explicit Face(int color);
};

}  // namespace NXOpen
