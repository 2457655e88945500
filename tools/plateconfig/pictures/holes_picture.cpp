// Combined holes in section, one a line.

#include <nlohmann/json.hpp>

#include "analysis/pictures/hole_section.h"
#include "plateconfig/holes/hole_answer.h"
#include "plateconfig/holes/hole_files.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/pictures/pictures.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const SectionPiece& piece) {
  return {{"group", kHoleGroupNames[piece.group].json},
          {"shape", "cylinder"},
          {"diameter", piece.diameter},
          {"from", OrNull(piece.from)},
          {"to", OrNull(piece.to)},
          {"height", OrNull(piece.height)},
          {"rHeight", OrNull(piece.rHeight)},
          {"color", piece.color}};
}

Json TypesToJson(const HoleAnswer& answer) {
  Json types = Json::array();
  for (std::size_t i = 0; i < answer.accepting.size(); ++i) {
    const TypeVerdict& verdict = answer.accepting[i];
    types.push_back({{"name", verdict.type->name},
                     {"score", verdict.result.Accuracy()},
                     {"best", i < answer.BestCount()},
                     {"content", verdict.type->content}});
  }
  return types;
}

Json ToJson(const HoleInput& input, const HoleAnswer& answer) {
  const HoleSection section = SectionOf(input.hole);
  NXOpen::Point3d origin;
  double diameter = 0;
  HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(input.hole, &origin, &diameter);
  Json segments = Json::array();
  for (const SectionPiece& piece : section.pieces) segments.push_back(ToJson(piece));
  return {{"name", input.name},
          {"structure", StructureKey(input.hole)},
          {"through", section.isThrough ? Json(true) : Json(nullptr)},
          {"length", OrNull(section.length)},
          {"maxDiameter", diameter},
          {"origin", {origin.X, origin.Y, origin.Z}},
          {"segments", segments},
          {"tied", answer.IsTied()},
          {"types", TypesToJson(answer)}};
}

}  // namespace

void WriteHoles(const PictureJob& job, const Streams& streams, Reporter& reporter) {
  if (job.files.empty())
    return reporter.Error({"plateconfig"},
                          Say("give a file of combined holes to draw", "请给出要画的组合孔文件"));
  const std::vector<HoleTypeInput> types = ReadTypeFiles(job.typeFiles, streams, reporter);
  streams.out << "{\"holes\":";
  {
    JsonArray holes(streams.out);
    VisitHoleFiles(job.files, streams, reporter, [&](const HoleInput& hole) {
      holes.Add(ToJson(hole, ClassifyAgainst(hole.hole, types)));
    });
  }
  streams.out << "}\n";
}

}  // namespace plateconfig
