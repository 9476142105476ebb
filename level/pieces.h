// The kinds of pieces in one place: each with its collection, its count and its type code. A
// further kind is a line here, its place in AllKinds, and the overloads that the compiler then
// misses.
#pragma once

#include <tuple>

#include "level/globals.h"

template <typename PieceOfKind, auto pieces, auto count, ObjectType code>
struct PieceKindBase {
  using Piece = PieceOfKind;
  static constexpr ObjectType type = code;
  static std::vector<Piece>& All() { return Document.*pieces; }
  static int32_t& Count() { return Document.*count; }
  /// The pieces up to the count, in index order.
  static std::span<Piece> Pieces() { return Live(All(), Count()); }
};

/// What is known of the kind of a class of pieces; a value of it is what overloads are chosen by.
template <typename Piece>
struct PieceKind;

template <>
struct PieceKind<clsblock>
    : PieceKindBase<clsblock, &PieceCollections::Blocks, &PieceCollections::BlockCount, TypeBlock> {
};
template <>
struct PieceKind<clsMovingPlatform>
    : PieceKindBase<clsMovingPlatform, &PieceCollections::Platforms,
                    &PieceCollections::PlatformCount, TypePlatform> {};
template <>
struct PieceKind<clsRamp>
    : PieceKindBase<clsRamp, &PieceCollections::Ramps, &PieceCollections::RampCount, TypeRamp> {};
template <>
struct PieceKind<clsStar>
    : PieceKindBase<clsStar, &PieceCollections::Stars, &PieceCollections::StarCount, TypeStar> {};

/// In the order in which picking tests them and level files hold them.
using AllKinds = std::tuple<PieceKind<clsblock>, PieceKind<clsMovingPlatform>, PieceKind<clsRamp>,
                            PieceKind<clsStar>>;

/// Calls visit(kind) for every kind in order.
template <typename Visit>
void VisitKinds(Visit visit) {
  std::apply([&](auto... kind) { (visit(kind), ...); }, AllKinds());
}

/// Calls visit(kind) for the kind with this type code; a code without a kind visits none.
template <typename Visit>
void VisitKind(int32_t type, Visit visit) {
  VisitKinds([&](auto kind) {
    if (kind.type == type) visit(kind);
  });
}

/// Calls visit(piece) with the selected piece; nothing when nothing is selected. Throws
/// std::out_of_range when the selection names a piece that is not there.
template <typename Visit>
void VisitSelected(Visit visit) {
  if (!Document.ObjectSelected) return;
  VisitKind(Document.SelectedType,
            [&](auto kind) { visit(kind.All().at(static_cast<size_t>(Document.SelectedIndex))); });
}
