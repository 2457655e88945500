#pragma once

#include <string>
#include <vector>

#include "second_host_export.h"

/// The calls that the host has received since the last time, in order.
SECOND_HOST_API std::vector<std::string> TakeRecordedCalls();
