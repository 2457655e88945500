#pragma once

// What hands do to a text. Everything is UTF-8, and every slip gives the text back as it was where it can not
// be made.

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>

namespace plateconfig::slips {

/// `seed` decides which character it happens to.
using TextSlip = std::function<std::string(const std::string& text, std::uint64_t seed)>;

TextSlip DroppedCharacter();
TextSlip DoubledCharacter();
TextSlip SwappedCharacters();

/// The first characters of a longer text, or all but the last.
TextSlip FirstCharacters(std::size_t count);
TextSlip WithoutFirst();
TextSlip WithoutLast();

TextSlip Front(const std::string& more);
TextSlip Behind(const std::string& more);
/// Between two characters.
TextSlip Inside(const std::string& more);

/// One occurrence of `from`, or every one.
TextSlip Replaced(const std::string& from, const std::string& to);
TextSlip AllReplaced(const std::string& from, const std::string& to);
TextSlip Become(const std::string& text);

/// The whole text, or one piece of it, that stands in the list becomes its partner.
TextSlip OneOf(std::map<std::string, std::string> partners);
TextSlip PieceOf(std::map<std::string, std::string> partners);

/// Letters, digits and signs of half width in full width: one of them, or all; and the other way round.
TextSlip OneFullWidth();
TextSlip AllFullWidth();
TextSlip AllHalfWidth();
TextSlip LowerCase();

/// Characters that look alike or come from the same keys.
TextSlip Traditional();
TextSlip SimilarCharacter();

/// The two items around the only "_" change places.
TextSlip TurnedRound();

/// The slip in a field of a style, whose fields are separated by "|".
TextSlip InField(std::size_t field, TextSlip slip);

}  // namespace plateconfig::slips
