#include "files/level_document.h"

#include <unordered_map>
#include <unordered_set>

#include "platform/numbers.h"
#include "platform/paths.h"

namespace {

/// The table's names as they can be loaded.
std::vector<std::string> ResolveTextures(const std::vector<std::string>& names) {
  const auto files = paths::FileNames(Document.TextureDir);
  const std::unordered_set<std::string> existing(files.begin(), files.end());
  std::vector<std::string> resolved;
  resolved.reserve(names.size());
  for (const std::string& name : names) {
    resolved.push_back(existing.contains(name) ? name : kDefaultTexture);
  }
  return resolved;
}

/// Makes pieces of records. Each picture and the stars' model are asked of their files once.
class Builder {
 public:
  explicit Builder(const std::vector<std::string>& names)
      : names_(ResolveTextures(names)), pictures_(names_.size()) {}

  void Fill(clsblock& block, const BlockRecord& record) {
    block.create(0, 0, 0, 1, 1, 1);
    block.Xpos(record.Xpos);
    block.Ypos(record.Ypos);
    block.Zpos(ToLong(record.Zpos));
    block.ScaleTextureSide(record.ScaleTextureSide);
    block.ScaleTextureTop(record.ScaleTextureTop);
    block.scaleX(record.scaleX);
    block.scaleY(record.scaleY);
    block.scaleZ(record.scaleZ);
    LoadTextures(block, record.Textures);
    block.changeactioncode(record.changeactioncode);
  }

  void Fill(clsRamp& ramp, const RampRecord& record) {
    ramp.create(0, 0, 0);
    ramp.Xpos(ToLong(record.Xpos));
    ramp.Ypos(ToLong(record.Ypos));
    ramp.Zpos(ToLong(record.Zpos));
    // Four quarter turns are none.
    for (int turn = 0; turn < record.Rotation % 4; ++turn) ramp.rotate();
    ramp.scaleX(ToInteger(record.scaleX));
    ramp.scaleY(ToInteger(record.scaleY));
    ramp.scaleZ(ToInteger(record.scaleZ));
    LoadTextures(ramp, record.Textures);
  }

  void Fill(clsMovingPlatform& platform, const PlatformRecord& record) {
    platform.create(0, 0, 0);
    platform.Xpos(record.Box.Xpos);
    platform.Ypos(record.Box.Ypos);
    platform.Zpos(record.Box.Zpos);
    platform.scaleX(record.Box.scaleX);
    platform.scaleY(record.Box.scaleY);
    platform.scaleZ(record.Box.scaleZ);
    platform.changeactioncode(record.Box.changeactioncode);
    platform.Mdir(record.StartingDir);
    platform.Mspeed(record.Mspeed);
    platform.Mdist(record.Mdist);
    platform.MloopBack(record.MloopBack != 0);
    // The sizes were set before; the picture follows only this way.
    platform.AlignTexureCoords(1, record.Box.ScaleTextureSide);
    platform.AlignTexureCoords(0, record.Box.ScaleTextureTop);
    LoadTextures(platform, record.Box.Textures);
  }

  void Fill(clsStar& star, const StarRecord& record) {
    if (!star_.visible()) star_.load(paths::InInstallFolder("\\models\\orb.x"));
    star = star_;
    star.Xpos(ToLong(record.Xpos));
    star.Ypos(ToLong(record.Ypos));
    star.Zpos(ToLong(record.Zpos));
  }

  template <typename Record, typename Object>
  void Build(const std::vector<Record>& records, std::vector<Object>& objects, int32_t& count) {
    objects.resize(records.size());
    for (size_t i = 0; i < records.size(); ++i) Fill(objects[i], records[i]);
    count = static_cast<int32_t>(records.size()) - 1;
  }

 private:
  template <typename Object, size_t N>
  void LoadTextures(Object& object, const std::array<int16_t, N>& indices) {
    for (size_t face = 0; face < N; ++face) {
      const auto index = static_cast<size_t>(indices[face]);
      FacePicturePtr& picture = pictures_.at(index);
      if (!picture) picture = LoadFacePicture(names_[index], Document.TextureDir);
      object.Picture(face, picture);
    }
  }

  std::vector<std::string> names_;
  std::vector<FacePicturePtr> pictures_;  ///< of these names; null until one is needed
  clsStar star_;                          ///< what all are copies of, once it is loaded
};

/// Where the document's table has each picture's name.
class TableIndex {
 public:
  /// Of the table as it stands.
  TableIndex() {
    for (int32_t i = 0; i <= Document.TextureCount; ++i) {
      byName_.emplace(Document.TextureNames[static_cast<size_t>(i)], static_cast<int16_t>(i));
    }
  }

  /// Throws std::out_of_range for a name that is not in the table.
  int16_t Of(const FacePicturePtr& picture) {
    const auto [known, isNew] = byPicture_.try_emplace(picture.get());
    if (isNew) known->second = byName_.at(NameOf(picture));
    return known->second;
  }
  /// Appends what is not in the table yet.
  void Add(const FacePicturePtr& picture) {
    if (byPicture_.contains(picture.get())) return;
    if (!byName_.contains(NameOf(picture))) Append(NameOf(picture));
    Of(picture);
  }

 private:
  void Append(const std::string& name) {
    Document.TextureCount = ToInteger(Document.TextureCount + 1.0);
    byName_.emplace(name, Document.TextureCount);
    Document.TextureNames.resize(static_cast<size_t>(Document.TextureCount) + 1);
    Document.TextureNames.back() = name;
  }

  std::unordered_map<std::string, int16_t> byName_;
  std::unordered_map<const FacePicture*, int16_t> byPicture_;  ///< found by name before
};

template <typename Object>
void AddNames(TableIndex& index, std::span<Object> objects) {
  for (const Object& object : objects) {
    for (size_t face = 0; face < Object::kFaces; ++face) index.Add(object.Picture(face));
  }
}

template <typename Object, size_t N>
void Describe(const Object& object, TableIndex& index, std::array<int16_t, N>& textures) {
  static_assert(N == Object::kFaces);
  for (size_t face = 0; face < N; ++face) textures[face] = index.Of(object.Picture(face));
}

template <typename Object>
BlockRecord DescribeBox(const Object& box, TableIndex& index) {
  BlockRecord record;
  record.scaleX = box.scaleX();
  record.scaleY = box.scaleY();
  record.scaleZ = box.scaleZ();
  Describe(box, index, record.Textures);
  record.ScaleTextureTop = box.ScaleTextureTop();
  record.ScaleTextureSide = box.ScaleTextureSide();
  record.changeactioncode = box.changeactioncode();
  return record;
}

BlockRecord DescribeBlock(const clsblock& block, TableIndex& index) {
  BlockRecord record = DescribeBox(block, index);
  record.Xpos = block.Xpos();
  record.Ypos = block.Ypos();
  record.Zpos = ToSingle(block.Zpos());
  return record;
}

/// Where and how the platform starts, wherever it is now.
PlatformRecord DescribePlatform(const clsMovingPlatform& platform, TableIndex& index) {
  PlatformRecord record;
  record.Box = DescribeBox(platform, index);
  record.Box.Xpos = platform.GetInitalXpos();
  record.Box.Ypos = platform.GetInitalYpos();
  record.Box.Zpos = platform.GetInitalZpos();
  record.Mspeed = platform.Mspeed();
  record.StartingDir = platform.GetinitalMDir();
  record.Mdist = platform.Mdist();
  record.MloopBack = platform.MloopBack() ? 255 : 0;
  return record;
}

RampRecord DescribeRamp(const clsRamp& ramp, TableIndex& index) {
  RampRecord record{ToSingle(ramp.Xpos()),
                    ToSingle(ramp.Ypos()),
                    ToSingle(ramp.Zpos()),
                    static_cast<float>(ramp.scaleX()),
                    static_cast<float>(ramp.scaleY()),
                    static_cast<float>(ramp.scaleZ()),
                    {},
                    ramp.GetRotation()};
  Describe(ramp, index, record.Textures);
  return record;
}

StarRecord DescribeStar(const clsStar& star) {
  return {ToSingle(star.Xpos()), ToSingle(star.Ypos()), ToSingle(star.Zpos())};
}

template <typename Object, typename Record, typename Describe>
void DescribeAll(std::span<Object> objects, std::vector<Record>& records, Describe describe) {
  records.reserve(objects.size());
  for (const Object& object : objects) records.push_back(describe(object));
}

}  // namespace

BuiltTrack BuildTrack(const LevelFile& level) {
  Builder builder(level.TextureNames);
  BuiltTrack track;
  PieceCollections& pieces = track.pieces;
  builder.Build(level.Blocks, pieces.Blocks, pieces.BlockCount);
  builder.Build(level.Ramps, pieces.Ramps, pieces.RampCount);
  builder.Build(level.Platforms, pieces.Platforms, pieces.PlatformCount);
  builder.Build(level.Stars, pieces.Stars, pieces.StarCount);
  track.Gravity = GravityOf(level.StoredGravity);
  return track;
}

void BuildTextureTable() {
  Document.TextureCount = -1;
  Document.TextureNames.assign(1, {});
  TableIndex index;
  AddNames(index, Live(Document.Blocks, Document.BlockCount));
  AddNames(index, Live(Document.Platforms, Document.PlatformCount));
  AddNames(index, Live(Document.Ramps, Document.RampCount));
}

LevelFile DescribeDocument() {
  TableIndex index;
  LevelFile level;
  level.TrackRecords = Document.TrackRecords;
  level.TextureNames = Document.TextureNames;
  level.BackgroundName = Document.BackgroundName;
  DescribeAll(Live(Document.Blocks, Document.BlockCount), level.Blocks,
              [&](const clsblock& block) { return DescribeBlock(block, index); });
  DescribeAll(Live(Document.Platforms, Document.PlatformCount), level.Platforms,
              [&](const clsMovingPlatform& p) { return DescribePlatform(p, index); });
  DescribeAll(Live(Document.Ramps, Document.RampCount), level.Ramps,
              [&](const clsRamp& ramp) { return DescribeRamp(ramp, index); });
  DescribeAll(Live(Document.Stars, Document.StarCount), level.Stars, DescribeStar);
  level.StoredGravity = StoredGravityOf(Document.Gravity);
  level.TrackSettings = Document.TrackSettings;
  return level;
}
