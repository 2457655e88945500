#include "slips/text_slips.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

namespace plateconfig::slips {
namespace {

using Characters = std::vector<std::string>;

bool BeginsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

Characters Split(const std::string& text) {
  Characters characters;
  for (const char c : text) {
    if (BeginsCharacter(c)) characters.emplace_back();
    characters.back() += c;
  }
  return characters;
}

std::string Join(const Characters& characters) {
  std::string text;
  for (const std::string& character : characters) text += character;
  return text;
}

std::size_t Pick(std::size_t count, std::uint64_t seed) {
  return static_cast<std::size_t>(seed % count);
}

/// Of the characters for which `partner` has another one, replaces one or all.
template <typename Partner>
std::string WithPartners(const std::string& text, std::uint64_t seed, bool isAll, const Partner& partner) {
  Characters characters = Split(text);
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    if (partner(characters[i]) != characters[i]) places.push_back(i);
  }
  if (places.empty()) return text;
  if (!isAll) places = {places[Pick(places.size(), seed)]};
  for (const std::size_t place : places) characters[place] = partner(characters[place]);
  return Join(characters);
}

// Of half width: '!' to '~'; of full width the same order, from U+FF01.
constexpr unsigned kFirstHalf = 0x21;
constexpr unsigned kLastHalf = 0x7E;
constexpr unsigned kHalfToFull = 0xFF01 - kFirstHalf;

std::string Utf8OfThree(unsigned value) {
  return {static_cast<char>(0xE0 | (value >> 12)), static_cast<char>(0x80 | ((value >> 6) & 0x3F)),
          static_cast<char>(0x80 | (value & 0x3F))};
}

std::string ToFullWidth(const std::string& character) {
  const auto value = static_cast<unsigned char>(character.front());
  const bool hasPartner = character.size() == 1 && value >= kFirstHalf && value <= kLastHalf;
  return hasPartner ? Utf8OfThree(value + kHalfToFull) : character;
}

std::string ToHalfWidth(const std::string& character) {
  for (unsigned value = kFirstHalf; value <= kLastHalf; ++value) {
    if (Utf8OfThree(value + kHalfToFull) == character) return std::string(1, static_cast<char>(value));
  }
  return character;
}

/// Pairs of characters side by side: "长長宽寬".
std::string PartnerIn(const Characters& pairs, const std::string& character) {
  for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
    if (pairs[i] == character) return pairs[i + 1];
  }
  return character;
}

TextSlip FromPairs(const std::string& pairs) {
  return [all = Split(pairs)](const std::string& text, std::uint64_t seed) {
    return WithPartners(text, seed, false, [&](const std::string& each) { return PartnerIn(all, each); });
  };
}

std::vector<std::size_t> PlacesOf(const std::string& part, const std::string& text) {
  std::vector<std::size_t> places;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    places.push_back(at);
  return places;
}

}  // namespace

TextSlip DroppedCharacter() {
  return [](const std::string& text, std::uint64_t seed) {
    Characters characters = Split(text);
    if (characters.size() < 2) return text;
    characters.erase(characters.begin() + static_cast<std::ptrdiff_t>(Pick(characters.size(), seed)));
    return Join(characters);
  };
}

TextSlip DoubledCharacter() {
  return [](const std::string& text, std::uint64_t seed) {
    Characters characters = Split(text);
    const std::size_t at = Pick(characters.size(), seed);
    characters[at] += characters[at];
    return Join(characters);
  };
}

TextSlip SwappedCharacters() {
  return [](const std::string& text, std::uint64_t seed) {
    Characters characters = Split(text);
    if (characters.size() < 2) return text;
    const std::size_t at = Pick(characters.size() - 1, seed);
    std::swap(characters[at], characters[at + 1]);
    return Join(characters);
  };
}

TextSlip FirstCharacters(std::size_t count) {
  return [count](const std::string& text, std::uint64_t) {
    Characters characters = Split(text);
    characters.resize(std::min(count, characters.size()));
    return Join(characters);
  };
}

TextSlip WithoutFirst() {
  return [](const std::string& text, std::uint64_t) {
    const Characters characters = Split(text);
    return characters.size() < 2 ? text : text.substr(characters.front().size());
  };
}

TextSlip WithoutLast() {
  return [](const std::string& text, std::uint64_t) {
    const Characters characters = Split(text);
    return characters.size() < 2 ? text : text.substr(0, text.size() - characters.back().size());
  };
}

TextSlip Front(const std::string& more) {
  return [more](const std::string& text, std::uint64_t) { return more + text; };
}

TextSlip Behind(const std::string& more) {
  return [more](const std::string& text, std::uint64_t) { return text + more; };
}

TextSlip Inside(const std::string& more) {
  return [more](const std::string& text, std::uint64_t seed) {
    Characters characters = Split(text);
    if (characters.size() < 2) return text;
    characters[Pick(characters.size() - 1, seed)] += more;
    return Join(characters);
  };
}

TextSlip Replaced(const std::string& from, const std::string& to) {
  return [from, to](const std::string& text, std::uint64_t seed) {
    const auto places = PlacesOf(from, text);
    if (places.empty()) return text;
    return std::string(text).replace(places[Pick(places.size(), seed)], from.size(), to);
  };
}

TextSlip AllReplaced(const std::string& from, const std::string& to) {
  return [from, to](const std::string& text, std::uint64_t) {
    std::string changed = text;
    for (std::size_t at = changed.find(from); at != std::string::npos;
         at = changed.find(from, at + to.size()))
      changed.replace(at, from.size(), to);
    return changed;
  };
}

TextSlip Become(const std::string& become) {
  return [become](const std::string&, std::uint64_t) { return become; };
}

TextSlip OneOf(std::map<std::string, std::string> partners) {
  return [partners = std::move(partners)](const std::string& text, std::uint64_t) {
    const auto partner = partners.find(text);
    return partner == partners.end() ? text : partner->second;
  };
}

TextSlip PieceOf(std::map<std::string, std::string> partners) {
  return [partners = std::move(partners)](const std::string& text, std::uint64_t) {
    for (const auto& [piece, partner] : partners) {
      if (const std::size_t at = text.find(piece); at != std::string::npos)
        return std::string(text).replace(at, piece.size(), partner);
    }
    return text;
  };
}

TextSlip OneFullWidth() {
  return [](const std::string& text, std::uint64_t seed) {
    return WithPartners(text, seed, false, ToFullWidth);
  };
}

TextSlip AllFullWidth() {
  return
      [](const std::string& text, std::uint64_t seed) { return WithPartners(text, seed, true, ToFullWidth); };
}

TextSlip AllHalfWidth() {
  return
      [](const std::string& text, std::uint64_t seed) { return WithPartners(text, seed, true, ToHalfWidth); };
}

TextSlip LowerCase() {
  return [](const std::string& text, std::uint64_t) {
    std::string lower = text;
    for (char& c : lower) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
  };
}

TextSlip Traditional() {
  return FromPairs(
      "长長宽寬围圍软軟体體颜顏线線图圖层層钻鑽铣銑间間样樣标標径徑号號顺順艺藝类類参參数數无無质質连連输輸边"
      "邊"
      "顶頂设設转轉异異圆圓规規则則范範离離点點爆爆炸炸释釋视視属屬纸紙测測检檢丝絲电電氮氮调調处處导導与與"
      "单單总總备備说說显顯实實这這后後内內换換发發库庫状狀态態应應过過进進关關开開");
}

TextSlip SimilarCharacter() {
  return FromPairs(
      "型形线限围图求球料科孔扎度渡顺须工土图园层屋铣洗钻占丝司粗租精清调周淬碎磨摩检捡测侧倒到角脚划画深探"
      "扩括铰绞镗膛攻功框柜清青面而颜彦色巴径经值直距拒比此例列左在右石边力上土标示注住样洋式试代伐号亏文交字"
      "子"
      "件仵宽览长厂厚后范犯重垂量里要耍有友无元割害体休软欠硬便材村质盾模膜板版所在通同参惨数教名各称秤");
}

TextSlip TurnedRound() {
  return [](const std::string& text, std::uint64_t) {
    const std::size_t bar = text.find('_');
    if (bar == std::string::npos || text.find('_', bar + 1) != std::string::npos) return text;
    return text.substr(bar + 1) + "_" + text.substr(0, bar);
  };
}

TextSlip InField(std::size_t field, TextSlip slip) {
  return [field, slip = std::move(slip)](const std::string& text, std::uint64_t seed) {
    std::size_t begin = 0;
    for (std::size_t i = 0; i < field; ++i) begin = text.find('|', begin) + 1;
    const std::size_t end = std::min(text.find('|', begin), text.size());
    return text.substr(0, begin) + slip(text.substr(begin, end - begin), seed) + text.substr(end);
  };
}

}  // namespace plateconfig::slips
