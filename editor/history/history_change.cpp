#include "editor/history/history_change.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "level/backdrop.h"

namespace history {
namespace {

/// What a piece owns besides itself; pictures and geometry are shared.
constexpr size_t kBesidePiece = 300;

auto BoxContent(const BoxObject& b) {
  return std::tuple(b.scaleX(), b.scaleY(), b.scaleZ(), b.GetTextureA(), b.GetTextureB(),
                    b.GetTextureC(), b.GetTextureD(), b.ScaleTextureSide(), b.ScaleTextureTop(),
                    b.changeactioncode());
}

// What a level file holds of each kind.
auto Content(const clsblock& b) { return std::tuple(BoxContent(b), b.Xpos(), b.Ypos(), b.Zpos()); }
auto Content(const clsMovingPlatform& p) {
  return std::tuple(BoxContent(p), p.GetInitalXpos(), p.GetInitalYpos(), p.GetInitalZpos(),
                    p.Mspeed(), p.GetinitalMDir(), p.Mdist(), p.MloopBack());
}
auto Content(const clsRamp& r) {
  return std::tuple(r.Xpos(), r.Ypos(), r.Zpos(), r.scaleX(), r.scaleY(), r.scaleZ(),
                    r.GetTextureA(), r.GetTextureB(), r.GetRotation());
}
auto Content(const clsStar& s) { return std::tuple(s.Xpos(), s.Ypos(), s.Zpos()); }

template <typename Piece>
Piece& At(int32_t index) {
  return PieceKind<Piece>::All().at(static_cast<size_t>(index));
}

template <typename Piece>
void Swap(ChangedPiece<Piece>& change) {
  std::swap(At<Piece>(change.index), change.other);
}

template <typename Piece>
void Swap(AddedPiece<Piece>& change) {
  auto& all = PieceKind<Piece>::All();
  int32_t& count = PieceKind<Piece>::Count();
  all.resize(static_cast<size_t>(count) + 1);
  const auto place = all.begin() + change.index;
  if (change.present) {
    change.piece = std::move(*place);
    all.erase(place);
    --count;
  } else {
    all.insert(place, std::exchange(change.piece, {}));
    ++count;
  }
  change.present = !change.present;
}

void Swap(ChangedValues& change) {
  std::swap(Document.Gravity, change.gravity);
  if (Document.BackgroundName == change.backgroundName) return;
  std::swap(Document.BackgroundName, change.backgroundName);
  ShowBackdrop(Document.BackgroundName.Trimmed());
}

void Swap(ReplacedTrack& change) {
  KeptTrack present = TakeTrack();
  PutTrack(std::move(change.other));
  change.other = std::move(present);
}

template <typename Piece>
bool IsInPlace(const ChangedPiece<Piece>&) {
  return true;
}
bool IsInPlace(const ChangedValues&) { return true; }
template <typename Other>
bool IsInPlace(const Other&) {
  return false;
}

template <typename Piece>
bool IsOther(const ChangedPiece<Piece>& change) {
  return Content(At<Piece>(change.index)) != Content(change.other);
}
bool IsOther(const ChangedValues& change) {
  return change.gravity != Document.Gravity || change.backgroundName != Document.BackgroundName;
}
template <typename Other>
bool IsOther(const Other&) {
  return true;
}

template <typename Piece>
size_t Bytes(const ChangedPiece<Piece>&) {
  return sizeof(Change) + kBesidePiece;
}
template <typename Piece>
size_t Bytes(const AddedPiece<Piece>& change) {
  return sizeof(Change) + (change.present ? 0 : kBesidePiece);
}
size_t Bytes(const ChangedValues&) { return sizeof(Change); }
size_t Bytes(const ReplacedTrack& change) {
  const auto of = [](const auto& pieces) {
    return pieces.size() * (sizeof(pieces[0]) + kBesidePiece);
  };
  const PieceCollections& p = change.other.pieces;
  return sizeof(Change) + of(p.Blocks) + of(p.Platforms) + of(p.Ramps) + of(p.Stars);
}

template <typename Piece>
float Depth(const ChangedPiece<Piece>& change) {
  return static_cast<float>(At<Piece>(change.index).Zpos());
}
template <typename Piece>
float Depth(const AddedPiece<Piece>& change) {
  return static_cast<float>(change.present ? At<Piece>(change.index).Zpos() : change.piece.Zpos());
}
float Depth(const ChangedValues&) { return -1; }
float Depth(const ReplacedTrack&) { return -1; }

}  // namespace

void Exchange(Change& change) {
  std::visit([](auto& one) { Swap(one); }, change);
}
bool Differ(const std::vector<Change>& changes) {
  // Where pieces came or went, the indices of the others may be those of before.
  const auto inPlace = [](const Change& change) {
    return std::visit([](const auto& one) { return IsInPlace(one); }, change);
  };
  return !std::ranges::all_of(changes, inPlace) ||
         std::ranges::any_of(changes, [](const Change& change) {
           return std::visit([](const auto& one) { return IsOther(one); }, change);
         });
}
size_t BytesOf(const Change& change) {
  return std::visit([](const auto& one) { return Bytes(one); }, change);
}
float DepthOf(const Change& change) {
  return std::visit([](const auto& one) { return Depth(one); }, change);
}

}  // namespace history
