#pragma once

#include <cstddef>
#include <functional>

#include "platform/file_faults.h"

namespace plateconfig::test {

/// Refuses the n-th operation (from 1), alone or with all behind it, until the end of the test.
class FailingFiles : public FileFaults {
 public:
  enum class Lasting { kOnce, kForGood };

  FailingFiles(std::size_t number, Lasting lasting) : number_(number), lasting_(lasting) {
    SetFileFaults(this);
  }
  ~FailingFiles() override { SetFileFaults(nullptr); }
  FailingFiles(const FailingFiles&) = delete;
  FailingFiles& operator=(const FailingFiles&) = delete;

  bool Refuses(FileOperation operation) override {
    const bool refuses = ++count_ == number_ || (lasting_ == Lasting::kForGood && count_ > number_);
    if (refuses && !hasRefused_) first_ = operation;
    hasRefused_ = hasRefused_ || refuses;
    return refuses;
  }

  bool HasRefused() const { return hasRefused_; }
  /// What was refused first.
  FileOperation First() const { return first_; }

 private:
  std::size_t number_;
  Lasting lasting_;
  std::size_t count_ = 0;
  bool hasRefused_ = false;
  FileOperation first_ = FileOperation::kOpen;
};

/// Does something at each operation of one kind, which then goes on.
class BeforeEach : public FileFaults {
 public:
  BeforeEach(FileOperation operation, std::function<void()> action)
      : operation_(operation), action_(std::move(action)) {
    SetFileFaults(this);
  }
  ~BeforeEach() override { SetFileFaults(nullptr); }
  BeforeEach(const BeforeEach&) = delete;
  BeforeEach& operator=(const BeforeEach&) = delete;

  bool Refuses(FileOperation operation) override {
    if (operation == operation_) action_();
    return false;
  }

 private:
  FileOperation operation_;
  std::function<void()> action_;
};

}  // namespace plateconfig::test
