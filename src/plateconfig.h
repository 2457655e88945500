#pragma once

// Everything that the library offers.

#include "config/column_width_manager.h"
#include "config/common_config.h"
#include "config/read_config_file.h"
#include "config/text_helpers.h"
#include "holes/comb_hole.h"
#include "holes/hole_info.h"
#include "holes/hole_type_info.h"
#include "host/body_info.h"
#include "plateconfig_export.h"
#include "rules/process_rule.h"
#include "rules/process_rule_library.h"
#include "settings/custom_default.h"
#include "settings/default_manager.h"
#include "settings/system_default.h"
