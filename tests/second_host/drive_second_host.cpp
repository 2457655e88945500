// Drives the library and looks at what reached the host.
#include <plateconfig.h>

#include <NXOpen/Body.hxx>
#include <cstdio>
#include <string>
#include <vector>

#include "recorded_calls.h"

namespace {

int failures = 0;

void ExpectCalls(const char* situation, const std::vector<std::string>& expected) {
  const std::vector<std::string> calls = TakeRecordedCalls();
  if (calls == expected) return;
  ++failures;
  std::printf("%s called:\n", situation);
  for (const std::string& call : calls) std::printf("  %s\n", call.c_str());
}

void ExpectFolder(const std::string& folder) {
  if (folder == "X:\\second host\\config") return;
  ++failures;
  std::printf("the folder is %s\n", folder.c_str());
}

}  // namespace

int main() {
  ExpectFolder(CommonConfig().GetConfigFolderPath());
  ExpectCalls("the first look-up", {"UF_is_initialized", "UF_initialize", "UF_translate_variable TQConfig"});
  ExpectFolder(CommonConfig().GetConfigFolderPath());
  ExpectCalls("the second look-up", {"UF_is_initialized", "UF_translate_variable TQConfig"});

  NXOpen::Face top(186);
  NXOpen::Face side(36);
  NXOpen::Body solid({&top, &side});
  BodyInfo plate(&solid, 20);
  const ProcessRuleLibrary library("no rules.csv", "no settings.csv");
  std::vector<ProcessRule> rules;
  library.GetProcessInfo(&plate, 1, rules);
  ExpectCalls("a plate", {"GetBodyLength", "GetBodyWide", "GetBodyHeight", "GetBodyLayer", "GetBodyColor",
                          "GetBody", "GetFaces", "Color 186", "Color 36"});

  if (failures == 0) std::printf("every call reached the second host\n");
  return failures;
}
