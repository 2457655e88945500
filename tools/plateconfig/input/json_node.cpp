#include "plateconfig/input/json_node.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>

#include "analysis/text/position_counter.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// The text without a character that the parser has cut.
std::string WholeCharacters(std::string text) {
  while (!IsValidUtf8(text)) text.pop_back();
  return text;
}

/// Follows the characters that the parser takes and remembers where the latest value or name began. The
/// parser may be one character ahead of what it reports, which never begins a value: it is the separator
/// behind a number.
class TokenTracker {
 public:
  explicit TokenTracker(Position start) : counter_(start), token_(start) {}

  Position Token() const { return token_; }
  Position At() const { return counter_.At(); }

  void Take(char c) {
    if (inString_) {
      TakeInString(c);
    } else {
      TakeOutside(c);
    }
    counter_.Take(c);
  }

 private:
  void TakeInString(char c) {
    if (!escaped_ && c == '"') inString_ = false;
    escaped_ = !escaped_ && c == '\\';
  }

  void TakeOutside(char c) {
    const bool begins = c == '"' || c == '[' || c == '{';
    const bool separates = std::string_view(" \t\r\n,:]}").find(c) != std::string_view::npos;
    if (begins || (!separates && !inWord_)) token_ = counter_.At();
    inWord_ = !begins && !separates;
    inString_ = c == '"';
  }

  PositionCounter counter_;
  Position token_;
  bool inString_ = false;
  bool escaped_ = false;
  bool inWord_ = false;
};

/// Hands the text to the parser and tells the tracker of each character.
class TrackedIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  TrackedIterator(const char* at, TokenTracker* tracker) : at_(at), tracker_(tracker) {}
  reference operator*() const { return *at_; }
  TrackedIterator& operator++() {
    tracker_->Take(*at_++);
    return *this;
  }
  bool operator==(const TrackedIterator& other) const { return at_ == other.at_; }
  bool operator!=(const TrackedIterator& other) const { return at_ != other.at_; }

 private:
  const char* at_;
  TokenTracker* tracker_;
};

/// Builds the nodes. `open_` holds the arrays and objects that are not closed yet, the innermost last; they
/// are moved into their parents as they close.
class NodeBuilder : public nlohmann::json_sax<nlohmann::json> {
 public:
  NodeBuilder(const TokenTracker& tracker, const std::string& file, Reporter& reporter)
      : tracker_(tracker), file_(file), reporter_(reporter) {}

  JsonNode TakeRoot() { return std::move(root_); }

  bool null() override { return Add(Node(JsonNode::Kind::kNull)); }
  bool boolean(bool value) override {
    JsonNode node = Node(JsonNode::Kind::kBool);
    node.flag = value;
    return Add(std::move(node));
  }
  bool number_integer(number_integer_t value) override { return AddNumber(static_cast<double>(value)); }
  bool number_unsigned(number_unsigned_t value) override { return AddNumber(static_cast<double>(value)); }
  bool number_float(number_float_t value, const string_t&) override { return AddNumber(value); }
  bool string(string_t& value) override {
    JsonNode node = Node(JsonNode::Kind::kString);
    node.text = std::move(value);
    return Add(std::move(node));
  }
  bool binary(binary_t&) override { return false; }
  bool start_object(std::size_t) override { return Open(JsonNode::Kind::kObject); }
  bool start_array(std::size_t) override { return Open(JsonNode::Kind::kArray); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool key(string_t& name) override {
    open_.back().members.emplace_back(std::move(name), JsonNode());
    return true;
  }
  bool parse_error(std::size_t, const std::string& near, const nlohmann::detail::exception& error) override {
    constexpr int kNumberOverflow = 406;
    if (near.empty()) return Refuse("input-json-end", tracker_.At());
    const bool isNumber = error.id == kNumberOverflow;
    return Refuse(isNumber ? Code("input-json-number") : Code("input-json-syntax"), tracker_.Token(),
                  WholeCharacters(near));
  }

 private:
  /// False, as the parser wants it of a mistake.
  bool Refuse(Code code, Position position, const std::string& text = {}) {
    reporter_.Report({.code = code, .place = PlaceIn(file_, position), .text = text});
    return false;
  }

  JsonNode Node(JsonNode::Kind kind) const {
    JsonNode node;
    node.kind = kind;
    node.position = tracker_.Token();
    return node;
  }

  bool AddNumber(double value) {
    JsonNode node = Node(JsonNode::Kind::kNumber);
    node.number = value;
    return Add(std::move(node));
  }

  bool Open(JsonNode::Kind kind) {
    constexpr std::size_t kDeepest = 100;  // Nothing that is read here nests deeper than three.
    if (open_.size() == kDeepest) return Refuse("input-json-depth", tracker_.Token());
    open_.push_back(Node(kind));
    return true;
  }

  bool Close() {
    JsonNode node = std::move(open_.back());
    open_.pop_back();
    return Add(std::move(node));
  }

  bool Add(JsonNode node) {
    if (open_.empty()) {
      root_ = std::move(node);
    } else if (open_.back().kind == JsonNode::Kind::kArray) {
      open_.back().items.push_back(std::move(node));
    } else {
      open_.back().members.back().second = std::move(node);
    }
    return true;
  }

  const TokenTracker& tracker_;
  const std::string& file_;
  Reporter& reporter_;
  JsonNode root_;
  std::vector<JsonNode> open_;
};

}  // namespace

JsonNode::JsonNode() = default;
JsonNode::JsonNode(const JsonNode&) = default;
JsonNode::JsonNode(JsonNode&&) noexcept = default;
JsonNode& JsonNode::operator=(const JsonNode&) = default;
JsonNode& JsonNode::operator=(JsonNode&&) noexcept = default;
JsonNode::~JsonNode() = default;

const JsonNode* JsonNode::Find(std::string_view name) const {
  const auto found =
      std::find_if(members.begin(), members.end(), [&](const auto& member) { return member.first == name; });
  return found == members.end() ? nullptr : &found->second;
}

bool ParseJson(std::string_view text, const Place& start, Reporter& reporter, JsonNode& node) {
  TokenTracker tracker({start.line, start.column});
  NodeBuilder builder(tracker, start.file, reporter);
  const bool isParsed = nlohmann::json::sax_parse(
      TrackedIterator(text.data(), &tracker), TrackedIterator(text.data() + text.size(), &tracker), &builder);
  if (isParsed) node = builder.TakeRoot();
  return isParsed;
}

}  // namespace plateconfig
