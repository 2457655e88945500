#include "platform/file_faults.h"

#include <atomic>

namespace plateconfig {
namespace {

std::atomic<FileFaults*> current = nullptr;

}  // namespace

void SetFileFaults(FileFaults* faults) {
  current = faults;
}

bool IsRefused(FileOperation operation) {
  FileFaults* const faults = current.load(std::memory_order_acquire);
  return faults != nullptr && faults->Refuses(operation);
}

}  // namespace plateconfig
