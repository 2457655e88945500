// However long the input is, only one plate of it is held: by the time the command asks for more input, it
// has written what it said of the plates so far. The input is made while it is read and the output is only
// counted.

#include <gtest/gtest.h>

#include <functional>
#include <streambuf>
#include <utility>

#include "support/companion.h"

namespace plateconfig {
namespace {

/// Counts the plates in the output by a text that each of them has a known number of times.
class CountingOutput : public std::streambuf {
 public:
  CountingOutput(char mark, int timesInAPlate) : mark_(mark), timesInAPlate_(timesInAPlate) {}
  int Count() const { return count_ / timesInAPlate_; }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::to_char_type(c) == mark_) ++count_;
    return traits_type::not_eof(c);
  }

 private:
  char mark_;
  int timesInAPlate_;
  int count_ = 0;
};

/// Gives one piece of input at a time, and notes how far the output is behind the plates handed out so far.
class GeneratedInput : public std::streambuf {
 public:
  /// `piece(n)` is the text of plate n, and of the beginning for 0; `end` stands behind the last plate.
  GeneratedInput(int plates, std::function<std::string(int)> piece, std::string end,
                 const CountingOutput& output)
      : plates_(plates), piece_(std::move(piece)), end_(std::move(end)), output_(output) {}

  int LargestLead() const { return largestLead_; }

 protected:
  int_type underflow() override {
    largestLead_ = std::max(largestLead_, given_ - output_.Count());
    if (given_ == plates_) {
      current_ = std::exchange(end_, "");
    } else {
      current_ = piece_(isBegun_ ? ++given_ : 0);
      isBegun_ = true;
    }
    if (current_.empty()) return traits_type::eof();
    setg(current_.data(), current_.data(), current_.data() + current_.size());
    return traits_type::to_int_type(current_.front());
  }

 private:
  int plates_;
  std::function<std::string(int)> piece_;
  std::string end_;
  const CountingOutput& output_;
  std::string current_;
  bool isBegun_ = false;
  int given_ = 0;
  int largestLead_ = 0;
};

std::string CsvPiece(int plate) {
  if (plate == 0) return "名称,长度,宽度,厚度,重量,体颜色,圆孔颜色\n";
  return "P" + std::to_string(plate) + ",450,400,90,127.2,12,36\n";
}

std::string JsonPiece(int plate) {
  if (plate == 0) return "[\n";
  return std::string(plate == 1 ? "" : ",\n") + "{\"name\": \"P" + std::to_string(plate) +
         "\", \"length\": 450, \"width\": 400, \"thickness\": 90, \"weight\": 127.2, \"color\": 12}";
}

struct Outcome {
  int exitCode;
  int printed;
  int largestLead;
};

Outcome RunOn(int plates, const std::string& verb, const std::string& format,
              const std::function<std::string(int)>& piece, const std::string& end) {
  const test::SmallConfiguration configuration;
  // The P of a plate's name stands nowhere else in either output; an explanation as JSON tells the plate as
  // well.
  const bool tellsThePlate = verb == "explain" && format == "json";
  CountingOutput output('P', tellsThePlate ? 2 : 1);
  GeneratedInput input(plates, piece, end, output);
  std::istream in(&input);
  std::ostream out(&output);
  std::ostringstream err;
  const int exitCode = RunCompanion(
      {"--lang", "en", verb, "--config", configuration.Path(), "--format", format, "-"}, {in, out, err});
  EnableDiagnosticFiles(true);
  EXPECT_EQ(err.str(), "");
  return {exitCode, output.Count(), input.LargestLead()};
}

TEST(StreamLength, NoMoreThanOnePlateIsAheadOfTheOutputHoweverManyThereAre) {
  for (const char* verb : {"process", "explain"}) {
    for (const char* format : {"text", "json"}) {
      for (const int plates : {1000, 10000}) {
        const Outcome csv = RunOn(plates, verb, format, CsvPiece, "");
        EXPECT_EQ(csv.exitCode, 0);
        EXPECT_EQ(csv.printed, plates);
        EXPECT_LE(csv.largestLead, 1) << verb << " " << format << " csv";
        const Outcome json = RunOn(plates, verb, format, JsonPiece, "\n]\n");
        EXPECT_EQ(json.exitCode, 1);  // No process of these plates is written.
        EXPECT_EQ(json.printed, plates);
        EXPECT_LE(json.largestLead, 1) << verb << " " << format << " json";
      }
    }
  }
}

}  // namespace
}  // namespace plateconfig
