#include "settings/custom_default.h"

#include <algorithm>
#include <utility>

#include "settings/custom_default_keys.h"
#include "settings/note_style.h"

CustomDefault::CustomDefault(const std::string& settings, const std::string& frame)
    : settingsPath(settings), frameConfigPath(frame) {
  ReadConfigFile settingsTable;
  settingsTable.OpenConfigFile(settingsPath);
  plateconfig::WalkCustomSettings(*this, plateconfig::Loader(settingsTable));

  ReadConfigFile frameTable;
  frameTable.OpenConfigFile(frameConfigPath);
  plateconfig::WalkFrameInfo(*this, plateconfig::Loader(frameTable));
  frameStyle = frameInfos.empty() ? StringToNoteStyle({}) : frameInfos.front().style;
}

void CustomDefault::InitialThreadHoleAndCharmferConfig(const std::string& path) {
  ReadConfigFile table;
  table.OpenConfigFile(path);
  plateconfig::WalkThreadHoleAndChamfer(*this, plateconfig::Loader(table));
}

CustomDefault::NormalInfo CustomDefault::GetNormalInfo() const {
  return normalInfo;
}
CustomDefault::MainSheetInfo CustomDefault::GetMainSheetInfo() const {
  return mainSheetInfo;
}
CustomDefault::SubSheetInfo CustomDefault::GetSubSheetInfo() const {
  return subSheetInfo;
}
CustomDefault::MachineInfo CustomDefault::GetMachineInfo() const {
  return machineInfo;
}
CustomDefault::MaterialInfo CustomDefault::GetMaterialInfo() const {
  return materialInfo;
}
CustomDefault::FeatureMarkInfo CustomDefault::GetFeatureMarkInfo() const {
  return featureMarkInfo;
}
CustomDefault::SubSheetMarkInfo CustomDefault::GetSubSheetMarkInfo() const {
  return subSheetMarkInfo;
}
CustomDefault::ThreadingHoleInfo CustomDefault::GetThreadingHoleInfo() const {
  return threadingHoleInfo;
}
CustomDefault::CharmferBlendInfo CustomDefault::GetCharmferBlendInfo() const {
  return charmferBlendInfo;
}
CustomDefault::BallMarkInfo CustomDefault::GetBallMarkInfo() const {
  return ballMarkInfo;
}
std::vector<CustomDefault::FrameInfo> CustomDefault::GetFrameInfos() const {
  return frameInfos;
}

std::vector<int> CustomDefault::GetAllLayers() const {
  std::vector<int> layers = {machineInfo.noteLayer, machineInfo.separatorLayer, materialInfo.layer,
                             featureMarkInfo.layer, subSheetMarkInfo.layer,     threadingHoleInfo.layer,
                             ballMarkInfo.layer};
  for (const FrameInfo& frame : frameInfos) layers.push_back(frame.layer);
  // Kept: sorted and without duplicates, unlike the list of the same name in DefaultManager.
  std::sort(layers.begin(), layers.end());
  layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
  return layers;
}

const CustomDefault::ThreadingHoleParam* CustomDefault::FindTheadingParam(double diameter) const {
  const auto& params = threadingHoleInfo.params;
  const auto found = std::find_if(params.begin(), params.end(), [&](const ThreadingHoleParam& param) {
    // Kept: a diameter on a bound belongs to neither side.
    return param.minDiameter < diameter && diameter < param.maxDiameter;
  });
  return found == params.end() ? nullptr : &*found;
}

CustomDefault::ThreadingHoleParam* CustomDefault::FindTheadingParam(double diameter) {
  return const_cast<ThreadingHoleParam*>(std::as_const(*this).FindTheadingParam(diameter));
}

CustomDefault::NoteStyle CustomDefault::StringToNoteStyle(const std::string& text) {
  return plateconfig::CopyStyle<NoteStyle>(plateconfig::ParseNoteStyle(text));
}

std::string CustomDefault::NoteStyleToString(const NoteStyle& style) {
  return plateconfig::WriteNoteStyle(plateconfig::CopyStyle<plateconfig::NoteStyleFields>(style));
}
