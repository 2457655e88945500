#include "settings/default_manager.h"

#include <algorithm>

#include "settings/default_manager_keys.h"
#include "settings/note_style.h"

void DefaultManager::InitilDefaultValues(const std::string& path) {
  configPath = path;
  ReadConfigFile table;
  if (!table.OpenConfigFile(path)) return;
  plateconfig::WalkLayoutDefaults(*this, plateconfig::Loader(table));
}

std::vector<int> DefaultManager::GetAllLayers() const {
  // Kept: the drawing takes the layers by their place in this list, so order and duplicates stay, and the
  // header notes come three times.
  return {noteLayer,           headerNoteLayer,       frameLayer,
          explodedCircleLayer, materialCircleLayer,   standardCircleLayer,
          materialTopBoxLayer, materialFrontBoxLayer, materialLeftBoxLayer,
          standardTopBoxLayer, standardFrontBoxLayer, standardLeftBoxLayer,
          wireHoleLayer,       headerNoteLayer,       headerNoteLayer};
}

int DefaultManager::GetMaxRow() const {
  // Kept: the layers without sub-sheets are not counted.
  const std::size_t most = std::max({twoViewLayers.size(), noBallMarkLayers.size(), standardPartLayers.size(),
                                     bomAttrInfos.size(), std::size_t{1}});
  return static_cast<int>(most);
}

DefaultManager::NoteStyle DefaultManager::StringToNoteStyle(const std::string& text) {
  return plateconfig::ParseNoteStyle(text);
}

std::string DefaultManager::NoteStyleToString(const NoteStyle& style) {
  return plateconfig::WriteNoteStyle(style);
}

std::string DefaultManager::FontStyleToString(const NoteStyle& style) {
  return plateconfig::WriteWholeNoteStyle(style);
}
