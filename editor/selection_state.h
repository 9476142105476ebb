// What the operations on the selection share: reaching a piece that was selected, adding one.
#pragma once

#include <utility>

#include "editor/history/history.h"
#include "editor/selection.h"
#include "editor/selection_mark.h"

namespace selection {

/// The piece of this class at SelectedIndex, whether it is selected or only was; null when the type
/// is another or the piece is gone.
template <typename Piece>
Piece* AtIndex() {
  constexpr PieceKind<Piece> kind;
  const int32_t index = Document.SelectedIndex;
  const bool exists = Document.SelectedType == kind.type && index >= 0 && index <= kind.Count();
  return exists ? &kind.All()[static_cast<size_t>(index)] : nullptr;
}

/// Calls change(piece) with the selected piece, as a step with this name.
template <typename Change>
void ChangeSelected(const char* name, Change change) {
  const history::Command command(name);
  VisitSelected([&]<typename Piece>(Piece& piece) {
    history::steps.Touch<Piece>(Document.SelectedIndex);
    change(piece);
  });
}

/// Calls change(piece) with AtIndex's piece, as a step with this name; nothing when there is none.
template <typename Piece, typename Change>
void ChangeAtIndex(const char* name, Change change) {
  const history::Command command(name);
  Piece* piece = AtIndex<Piece>();
  if (piece == nullptr) return;
  history::steps.Touch<Piece>(Document.SelectedIndex);
  change(*piece);
}

/// Puts a finished piece at the end of its collection and selects it, marked, in place of the old.
template <typename Piece>
void AppendAndSelect(Piece piece) {
  constexpr PieceKind<Piece> kind;
  kind.All().resize(static_cast<size_t>(kind.Count()) + 1);  // an index of -1 is no element
  kind.All().push_back(std::move(piece));
  ++kind.Count();
  history::steps.Inserted<Piece>(kind.Count());
  DeselectCurrent();
  Document.SelectedType = kind.type;
  Document.SelectedIndex = kind.Count();
  Document.ObjectSelected = true;
  Mark(kind.All().back());
}

}  // namespace selection
