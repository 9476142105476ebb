#include "check/named_files.h"

#include <filesystem>
#include <unordered_set>

#include "level/pieces.h"
#include "platform/paths.h"
#include "play/car.h"

namespace check {
namespace {

/// Collects the entries of a file's texture table that pieces wear.
class TableReader {
 public:
  TableReader(const std::vector<std::string>& names, std::vector<WornTexture>& worn)
      : names_(names), worn_(worn), seen_(names.size()) {}

  template <typename Record, typename BoxOf>
  void Read(const std::vector<Record>& records, ObjectType kind, BoxOf boxOf) {
    for (size_t i = 0; i < records.size(); ++i) {
      const auto& box = boxOf(records[i]);
      for (const int16_t texture : box.Textures) {
        const auto entry = static_cast<size_t>(texture);
        if (seen_.at(entry)) continue;
        seen_[entry] = true;
        worn_.push_back(
            {names_[entry], {kind, static_cast<int32_t>(i)}, {box.Xpos, box.Ypos, box.Zpos}});
      }
    }
  }

 private:
  const std::vector<std::string>& names_;
  std::vector<WornTexture>& worn_;
  std::vector<bool> seen_;
};

template <typename Kind>
void AddPictures(Kind kind, std::unordered_set<const FacePicture*>& seen,
                 std::vector<WornTexture>& worn) {
  if constexpr (requires { Kind::Piece::kFaces; }) {
    const auto pieces = kind.Pieces();
    for (size_t i = 0; i < pieces.size(); ++i) {
      for (size_t face = 0; face < Kind::Piece::kFaces; ++face) {
        const FacePicturePtr& picture = pieces[i].Picture(face);
        if (!seen.insert(picture.get()).second) continue;
        worn.push_back(
            {NameOf(picture), {kind.type, static_cast<int32_t>(i)}, pieces[i].Drawn().corner});
      }
    }
  }
}

bool IsFile(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

/// As the editor looks for it.
bool BackdropIsThere(const std::string& name) {
  const std::string& folder = Document.BackgroundDir;
  return IsFile(folder + name) || (name.starts_with("_bk") && IsFile(folder + name.substr(1)));
}

}  // namespace

NamedFiles FilesOf(const LevelFile& level) {
  NamedFiles files;
  files.backdrop = level.BackgroundName.Trimmed();
  const auto itself = [](const auto& record) -> const auto& { return record; };
  TableReader reader(level.TextureNames, files.textures);
  reader.Read(level.Blocks, TypeBlock, itself);
  reader.Read(
      level.Platforms, TypePlatform,
      [](const PlatformRecord& record) -> const auto& { return record.Box; });
  reader.Read(level.Ramps, TypeRamp, itself);
  return files;
}

NamedFiles FilesOfDocument() {
  NamedFiles files;
  files.backdrop = Document.BackgroundName.Trimmed();
  std::unordered_set<const FacePicture*> seen;
  VisitKinds([&](auto kind) { AddPictures(kind, seen, files.textures); });
  return files;
}

void CheckFiles(const NamedFiles& files, Findings& findings) {
  const auto names = paths::EntryNames(Document.TextureDir, true);
  const std::unordered_set<std::string> existing(names.begin(), names.end());
  for (const WornTexture& worn : files.textures) {
    if (existing.contains(worn.name)) continue;
    findings.Add(Fault::MissingTexture, worn.piece, worn.place,
                 "wears the picture \"" + worn.name + "\", which is not there");
  }
  if (BackdropIsThere(files.backdrop)) return;
  findings.Add(Fault::MissingBackdrop, Car::kStart,
               "The backdrop \"" + files.backdrop + "\" is not there");
}

}  // namespace check
