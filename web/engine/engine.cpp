// The companion for the page. JavaScript puts files into the module's own file system, gives the arguments
// one by one, runs them, and gets what is printed in pieces. One instance of the module runs one command
// line.

#include <emscripten/em_js.h>
#include <emscripten/emscripten.h>
#include <spawn.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "plateconfig/companion.h"

// JavaScript's side: which stream (1 or 2, as everywhere), and the bytes.
EM_JS(void, TakeOutput, (int stream, const char* bytes, int size),
      { Module.takeOutput(stream, HEAPU8.slice(bytes, bytes + size)); });

namespace {

/// Hands on what is written in large pieces, so that nothing of the output stays in the module's memory.
class OutputPieces : public std::streambuf {
 public:
  explicit OutputPieces(int stream) : stream_(stream) { Begin(); }

 protected:
  int_type overflow(int_type byte) override {
    HandOn();
    if (!traits_type::eq_int_type(byte, traits_type::eof())) sputc(traits_type::to_char_type(byte));
    return traits_type::not_eof(byte);
  }
  int sync() override {
    HandOn();
    return 0;
  }

 private:
  void Begin() { setp(piece_.data(), piece_.data() + piece_.size()); }
  void HandOn() {
    if (pptr() > pbase()) TakeOutput(stream_, pbase(), static_cast<int>(pptr() - pbase()));
    Begin();
  }

  int stream_;
  std::array<char, std::size_t{64} << 10> piece_;
};

std::vector<std::string>& Arguments() {
  static std::vector<std::string> arguments;
  return arguments;
}

}  // namespace

extern "C" {

/// There is no other program that could be started; emscripten lacks this one word for that.
int posix_spawnp(pid_t*, const char*, const posix_spawn_file_actions_t*, const posix_spawnattr_t*,
                 char* const[], char* const[]) {
  return ENOSYS;
}

/// What the system around JavaScript sets, and what emscripten makes up (a HOME, a LANG), are not the page's.
EMSCRIPTEN_KEEPALIVE void ClearVariables() {
  static char* none[] = {nullptr};
  environ = none;
}

EMSCRIPTEN_KEEPALIVE void SetVariable(const char* name, const char* value) {
  setenv(name, value, 1);
}

EMSCRIPTEN_KEEPALIVE void AddArgument(const char* argument) {
  Arguments().emplace_back(argument);
}

/// Runs the arguments; the exit code.
EMSCRIPTEN_KEEPALIVE int Run() {
  std::istringstream in;
  OutputPieces outPieces(1);
  OutputPieces errPieces(2);
  std::ostream out(&outPieces);
  std::ostream err(&errPieces);
  const int code = plateconfig::RunCompanion(Arguments(), {in, out, err});
  out.flush();
  err.flush();
  return code;
}
}
