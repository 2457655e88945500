#pragma once

// The parts that tables play in a configuration.

#include <array>
#include <optional>
#include <string_view>

namespace plateconfig {

enum class Role {
  kColumnWidths,
  kProcessSettings,
  kProcessRules,
  kLayoutDefaults,
  kCustomSettings,
  kFrameInfo,
  kThreadHoleChamfer,
  kSystemSettings,
  kLayers,
  kTexts,
  kConnectString,
  kTriangleSymbol,
  kBom,
  kDwgFolder,
  kReplaceContent,
};

/// What the manifest and the options call each role, in the order of `Role`.
inline constexpr auto kRoleNames = std::to_array<std::string_view>({
    "column-widths",
    "process-settings",
    "process-rules",
    "layout-defaults",
    "custom-settings",
    "frame-info",
    "thread-hole-chamfer",
    "system-settings",
    "layers",
    "texts",
    "connect-string",
    "triangle-symbol",
    "bom",
    "dwg-folder",
    "replace-content",
});

constexpr std::string_view NameOf(Role role) {
  return kRoleNames[static_cast<std::size_t>(role)];
}

constexpr std::optional<Role> FindRole(std::string_view name) {
  for (std::size_t index = 0; index < kRoleNames.size(); ++index) {
    if (kRoleNames[index] == name) return static_cast<Role>(index);
  }
  return std::nullopt;
}

}  // namespace plateconfig
