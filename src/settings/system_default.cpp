#include "settings/system_default.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "config/text_helpers.h"
#include "platform/desktop_folder.h"
#include "platform/file.h"
#include "settings/system_default_keys.h"

using plateconfig::Loader;
using namespace plateconfig::literals;

SystemDefault::SystemDefault(const std::string& systemTablePath, const std::string& layerTablePath)
    : configFilePath(systemTablePath) {
  ReadConfigFile layers;
  layers.OpenConfigFile(layerTablePath);
  plateconfig::WalkLayerLists(*this, Loader(layers));

  ReadConfigFile table;
  table.OpenConfigFile(configFilePath);
  plateconfig::WalkSystemSettings(*this, Loader(table));
}

void SystemDefault::InitialText(const std::string& path) {
  ReadConfigFile table;
  table.OpenConfigFile(path);
  plateconfig::WalkTexts(*this, Loader(table));
  // Kept: of all lists of texts only this one loses its empty cells.
  outlineNotes = TrimEmpty(outlineNotes);
}

void SystemDefault::InitialConnectString(const std::string& path) {
  ReadConfigFile table;
  if (!table.OpenConfigFile(path) && !plateconfig::FileExists(path)) {
    throw std::runtime_error(std::string("配置文件："_gbk).append(path).append(" 不存在！"_gbk));
  }
  plateconfig::WalkConnectString(*this, Loader(table));
}

void SystemDefault::InitialTriangleSymbol(const std::string& path) {
  ReadConfigFile table;
  table.OpenConfigFile(path);
  plateconfig::WalkTriangleSymbol(*this, Loader(table));
}

void SystemDefault::InitialBomConfigFile(const std::string& path) {
  ReadConfigFile table;
  // Kept: the only loader here that a table without access leaves alone.
  if (!table.OpenConfigFile(path)) return;
  plateconfig::WalkBom(*this, Loader(table));
}

void SystemDefault::InitialDwgFolder(const std::string& path) {
  ReadConfigFile table;
  table.OpenConfigFile(path);
  plateconfig::WalkDwgFolder(*this, Loader(table));
  if (dwgOutputFolder.empty()) dwgOutputFolder = plateconfig::DesktopFolder();
}

void SystemDefault::InitialReplaceContent(const std::string& path) {
  decimalRules.clear();
  replaceRules.clear();
  ReadConfigFile table;
  table.OpenConfigFile(path);
  plateconfig::WalkReplaceContent(*this, Loader(table));
}

std::vector<int> SystemDefault::GetAllLayers() const {
  // Kept: in this order and with duplicates; the layers of borders and triangle symbols are not among them.
  std::vector<int> layers;
  for (const auto* list :
       {&twoViewLayers, &noBallMarkLayers, &standardPartLayers, &noSubSheetLayers, &templateLayers}) {
    layers.insert(layers.end(), list->begin(), list->end());
  }
  layers.insert(layers.end(),
                {frameLayer, explodedDatumCircleLayer, materialDatumCircleLayer, standardPartDatumCircleLayer,
                 materialTopFrameLayer, materialFrontFrameLayer, materialLeftFrameLayer,
                 standardPartTopFrameLayer, standardPartFrontFrameLayer, standardPartLeftFrameLayer});
  return layers;
}

std::vector<int> SystemDefault::VectorToInt(const std::vector<std::string>& cells) const {
  return ::VectorToInt(cells);
}

std::vector<std::string> SystemDefault::TrimEmpty(const std::vector<std::string>& cells) {
  std::vector<std::string> filled;
  std::copy_if(cells.begin(), cells.end(), std::back_inserter(filled),
               [](const std::string& cell) { return !cell.empty(); });
  return filled;
}
