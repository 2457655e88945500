#pragma once

#include "second_host_export.h"

namespace NXOpen {

class SECOND_HOST_API DisplayableObject {
 public:
  explicit DisplayableObject(int color);
  int Color();

 private:
  int color_;
};

}  // namespace NXOpen
