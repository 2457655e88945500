#pragma once

#include <string>

namespace plateconfig::test {

/// Follows a page of the documentation in a folder of its own: writes its blocks of files, ```csv file=NAME,
/// in GBK with encoding=gbk, and runs its blocks of commands, ```console. Expects that each command, the
/// first line of its block, prints what the block shows behind it: both streams as a terminal shows them, and
/// the exit code unless it is 0. Gives how many commands there were.
int RunPage(const std::string& path, const std::string& language);

}  // namespace plateconfig::test
