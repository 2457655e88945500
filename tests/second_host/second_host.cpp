// A host in a library of its own, which remembers how it was called. It knows one variable, and asks no
// environment.
#include <cstring>
#include <utility>

#include <NXOpen/Body.hxx>

#include "host/body_info.h"
#include "recorded_calls.h"
#include "uf.h"

namespace {

bool isInitialized = false;
char rootFolder[] = "X:\\second host";
std::vector<std::string> calls;

void Record(const std::string& call) {
  calls.push_back(call);
}

}  // namespace

std::vector<std::string> TakeRecordedCalls() {
  return std::exchange(calls, {});
}

int UF_is_initialized() {
  Record("UF_is_initialized");
  return isInitialized ? 1 : 0;
}

int UF_initialize() {
  Record("UF_initialize");
  isInitialized = true;
  return 0;
}

int UF_translate_variable(const char* name, char** translation) {
  Record(std::string("UF_translate_variable ") + name);
  *translation = std::strcmp(name, "TQConfig") == 0 ? rootFolder : nullptr;
  return 0;
}

namespace NXOpen {

DisplayableObject::DisplayableObject(int color) : color_(color) {}

int DisplayableObject::Color() {
  Record("Color " + std::to_string(color_));
  return color_;
}

Face::Face(int color) : DisplayableObject(color) {}

Body::Body(std::vector<Face*> faces) : faces_(std::move(faces)) {}

std::vector<Face*> Body::GetFaces() {
  Record("GetFaces");
  return faces_;
}

}  // namespace NXOpen

BodyInfo::BodyInfo(NXOpen::Body* body, double thickness) : body_(body), thickness_(thickness) {}

NXOpen::Body* BodyInfo::GetBody() {
  Record("GetBody");
  return body_;
}

double BodyInfo::GetBodyLength() {
  Record("GetBodyLength");
  return 100;
}

double BodyInfo::GetBodyWide() {
  Record("GetBodyWide");
  return 50;
}

double BodyInfo::GetBodyHeight() {
  Record("GetBodyHeight");
  return thickness_;
}

int BodyInfo::GetBodyLayer() {
  Record("GetBodyLayer");
  return 3;
}

int BodyInfo::GetBodyColor() {
  Record("GetBodyColor");
  return 12;
}
