#pragma once

// The kind of cells that hold a text style, for either class that has a record of styles.

#include <string>

#include "keys/key_table.h"
#include "settings/note_style.h"

namespace plateconfig {

/// A text style; without six fields the default style.
template <typename Record, typename NoteStyle>
struct Style : KindOf<CellType::kText> {
  constexpr explicit Style(NoteStyle Record::*of) : field(of) {}

  NoteStyle Record::*field;

  static CellForm Form() { return CellForm::kStyle; }
  void Read(Record& record, CellsView cells) const {
    record.*field = CopyStyle<NoteStyle>(ParseNoteStyle(cells.empty() ? std::string_view() : cells.front()));
  }
  Cells Print(const Record& record) const {
    return {ShortNoteStyle(CopyStyle<NoteStyleFields>(record.*field))};
  }
  Cells WhenAbsent() const { return {ShortNoteStyle(NoteStyleFields())}; }
};

/// A key of a table that has styles.
template <typename Record, typename NoteStyle>
using StyledKey = Key<Record, Style<Record, NoteStyle>>;

}  // namespace plateconfig
