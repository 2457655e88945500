#pragma once

#include "second_host_export.h"

namespace NXOpen {
class Body;
}

/// The host tool's own class: its getters look things up, so that none of them is const, and nothing else
/// that the library could lean on is public.
class SECOND_HOST_API BodyInfo {
 public:
  BodyInfo(NXOpen::Body* body, double thickness);
  BodyInfo(const BodyInfo&) = delete;
  BodyInfo& operator=(const BodyInfo&) = delete;

  NXOpen::Body* GetBody();
  double GetBodyLength();
  double GetBodyWide();
  double GetBodyHeight();
  int GetBodyLayer();
  int GetBodyColor();

 private:
  NXOpen::Body* body_;
  double thickness_;
};
