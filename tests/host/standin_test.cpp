#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <uf.h>

#include <NXOpen/Body.hxx>
#include <NXOpen/ugmath.hxx>

#include "host/body_info.h"
#include "support/environment.h"

namespace plateconfig::test {
namespace {

constexpr const char* kVariable = "PLATECONFIG_TEST_VARIABLE";

TEST(StandIn, KnowsWhetherItWasInitialised) {
  UF_terminate();
  EXPECT_EQ(UF_is_initialized(), 0);
  EXPECT_EQ(UF_initialize(), 0);
  EXPECT_EQ(UF_is_initialized(), 1);
  EXPECT_EQ(UF_terminate(), 0);
  EXPECT_EQ(UF_is_initialized(), 0);
}

TEST(StandIn, TranslatesAVariableToThatOfTheEnvironment) {
  const ScopedVariable variable(kVariable, "D:\\root");
  char* value = nullptr;
  EXPECT_EQ(UF_translate_variable(kVariable, &value), 0);
  EXPECT_STREQ(value, "D:\\root");
}

TEST(StandIn, TranslatesAnUnsetVariableToNull) {
  const ScopedVariable variable(kVariable, std::nullopt);
  char text[] = "before";
  char* value = text;
  EXPECT_EQ(UF_translate_variable(kVariable, &value), 0);
  EXPECT_EQ(value, nullptr);
}

std::vector<int> ColorsOf(NXOpen::Body& body) {
  std::vector<int> colors;
  for (NXOpen::Face* face : body.GetFaces()) colors.push_back(face->Color());
  return colors;
}

TEST(StandInBody, HasOneFaceForEachColor) {
  NXOpen::Body body({36, 186, 36});
  EXPECT_THAT(ColorsOf(body), testing::ElementsAre(36, 186, 36));
  NXOpen::Body bare({});
  EXPECT_THAT(bare.GetFaces(), testing::IsEmpty());
}

TEST(StandInBody, OwnsItsFaces) {
  NXOpen::Body body({1, 2});
  EXPECT_EQ(body.GetFaces(), body.GetFaces());
}

TEST(StandInPoint, IsTheOriginUnlessToldOtherwise) {
  const NXOpen::Point3d origin;
  EXPECT_EQ(origin.X, 0.0);
  EXPECT_EQ(origin.Y, 0.0);
  EXPECT_EQ(origin.Z, 0.0);
  const NXOpen::Point3d point(1, 2.5, -3);
  EXPECT_EQ(point.X, 1.0);
  EXPECT_EQ(point.Y, 2.5);
  EXPECT_EQ(point.Z, -3.0);
}

TEST(BodyInformation, IsGivenBackAsItWasTaken) {
  NXOpen::Body body({36});
  const BodyInfo info(&body, 450, 400.5, 90, 3, 12);
  EXPECT_EQ(info.GetBody(), &body);
  EXPECT_EQ(info.GetBodyLength(), 450.0);
  EXPECT_EQ(info.GetBodyWide(), 400.5);
  EXPECT_EQ(info.GetBodyHeight(), 90.0);
  EXPECT_EQ(info.GetBodyLayer(), 3);
  EXPECT_EQ(info.GetBodyColor(), 12);
}

TEST(BodyInformation, NeedsNoBody) {
  EXPECT_EQ(BodyInfo(nullptr, 1, 2, 3, 4, 5).GetBody(), nullptr);
}

}  // namespace
}  // namespace plateconfig::test
