#pragma once

// The files in which slips are made: the tables of both sample configurations with their manifests, the index
// and the hole types; and what each of their cells is.

#include <cstddef>
#include <string>
#include <vector>

#include "slips/grid.h"

namespace plateconfig::slips {

/// Where a slip can be made: a kind of cell, or a kind of file.
enum class What {
  kRuleHeader,
  kProcessHeader,  ///< The column of a process.
  kSettingHeader,
  kWidthHeader,  ///< A name that the keeper has chosen.
  kRuleLayer,
  kRange,
  kWish,      ///< That a row wants a profile or wire cutting.
  kMaterial,  ///< That a row is for soft material.
  kOpposite,  ///< Of these two. Any other text says the same, so that no slip in the text does harm.
  kProcessText,
  kParameterName,
  kParameterValue,
  kProcessName,
  kCondition,
  kConditionParameter,
  kNumber,
  kColor,
  kColorList,
  kLayer,
  kColumnWidth,
  kStyle,
  kFlag,
  kDiameterRange,
  kText,
  kHoleHeader,
  kHoleStructure,
  kHoleColors,
  kHoleDiameters,
  kHoleName,
  kIndexHeader,
  kIndexFolder,
  kIndexFlag,
  kRulesFile,
  kTableFile,  ///< Every other table of a configuration.
  kManifestFile,
  kManifestLine,  ///< A line that names a role; its row counts from 0.
  kIndexFile,
  kHoleTypesFile,
  kNothing,  ///< A cell that nobody reads, or an empty one.
};

bool IsHeader(What what);

struct SampleFile {
  std::string path;           ///< Below the root, UTF-8.
  std::string configuration;  ///< Empty for the index and the hole types.
  std::string role;           ///< Empty for what plays none.
  What what;                  ///< A kind of file.
  std::string bytes;

  bool IsTable() const { return what != What::kManifestFile; }
};

std::vector<SampleFile> LoadSamples();

/// What the cell holds; an empty cell is `kNothing`.
What WhatIs(const SampleFile& file, const Grid& grid, std::size_t row, std::size_t column);

/// What the column's first cell that is not empty holds.
What WhatIsIn(const SampleFile& file, const Grid& grid, std::size_t column);

/// True when a cell of this kind may well hold the text: nothing about it could make anyone ask.
bool IsFaultless(What what, const std::string& text);

}  // namespace plateconfig::slips
