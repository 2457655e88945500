// Any bytes as a file of combined holes, and as a file of hole types: what the command promises, and the
// answers of a naive classifier.
#include "fuzz/targets.h"

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz/companion_run.h"
#include "holes/naive_classifier.h"
#include "plateconfig/holes/hole_reader.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "support/diagnostics_off.h"

namespace plateconfig::fuzz {
namespace {

constexpr std::size_t kMostHoles = 40;

std::vector<HoleInput> HolesOf(const std::string& file, const std::string& bytes) {
  test::Messages messages;
  std::istringstream in(bytes);
  const auto reader = ReadHoles(in, file, messages.reporter);
  std::vector<HoleInput> holes;
  while (holes.size() < kMostHoles) {
    auto hole = reader->Next();
    if (!hole) break;
    holes.push_back(std::move(*hole));
  }
  return holes;
}

std::vector<HoleTypeInput> TypesOf(const std::string& file, const std::string& bytes) {
  test::Messages messages;
  std::istringstream in(bytes);
  return ReadHoleTypes(in, file, messages.reporter);
}

void RequireTheNaiveAnswer(const CombHole& hole, const HoleTypeInfo& type) {
  const test::NaiveAnswer expected = test::NaiveClassifier().Classify(hole, type);
  double accuracy = -1;
  Require(type.IsCombHoleBelongCurrency(hole) == expected.structure, "both see the same structure");
  Require(type.IsCombHoleBelongNormal(hole, accuracy) == expected.belongs, "both accept the same holes");
  Require(accuracy == (expected.structure ? expected.accuracy : -1), "both give the same score");
}

void ClassifyTwice(const std::vector<HoleInput>& holes, const std::vector<HoleTypeInput>& types) {
  const test::DiagnosticsOff off;
  for (const HoleInput& hole : holes) {
    for (const HoleTypeInput& type : types) RequireTheNaiveAnswer(hole.hole, type.type);
  }
}

}  // namespace

void FuzzHoles(std::string_view input) {
  static const std::string samples = PLATECONFIG_SAMPLES_DIR;
  static const auto sampleHoles = HolesOf("holes.csv", test::ReadBytes(samples + "/holes.csv"));
  static const auto sampleTypes = TypesOf("types.csv", test::ReadBytes(samples + "/hole-types.csv"));
  const std::string bytes(input);
  RunInEachForm({"holes", "--explain", "--types", samples + "/hole-types.csv", "-"}, bytes);
  RunInEachForm({"holes", "--types", "-", samples + "/holes.csv"}, bytes);
  ClassifyTwice(HolesOf("-", bytes), sampleTypes);
  ClassifyTwice(sampleHoles, TypesOf("-", bytes));
}

}  // namespace plateconfig::fuzz
