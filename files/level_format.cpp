#include "files/level_format.h"

#include <cmath>

#include "files/level_bytes.h"
#include "platform/numbers.h"

namespace {

constexpr size_t kBlockBytes = 35;
constexpr size_t kPlatformBytes = 39;
constexpr size_t kRampBytes = 29;
constexpr size_t kStarBytes = 12;

TrackRecordsRecord ReadTrackRecords(LevelBytesReader& in) {
  TrackRecordsRecord records;
  for (auto& name : records.RecordNames) {
    name = FixedText<15>::FromBytes(in.FixedText("RecordName", 15));
  }
  for (uint32_t& value : records.RecordValues) value = in.Bits32("RecordValue");
  return records;
}

int16_t ReadTextureIndex(LevelBytesReader& in, const char* field, size_t tableSize) {
  const size_t offset = in.Offset();
  const int16_t index = in.Integer(field);
  if (index < 0 || static_cast<size_t>(index) >= tableSize) {
    in.Refuse(field, "the texture index " + std::to_string(index) + " is outside the table",
              offset);
  }
  return index;
}

/// A position or a size. Objects hold some of them as Longs, a copy takes its sizes as
/// Longs; within that range nothing that drawing, picking and play compute leaves a Single: a plane
/// is made of products of two lengths, a fall of sums.
float ReadMeasure(LevelBytesReader& in, const char* field) { return in.SingleFor<int32_t>(field); }

template <typename Record>
void ReadPosition(LevelBytesReader& in, Record& record) {
  record.Xpos = ReadMeasure(in, "Xpos");
  record.Ypos = ReadMeasure(in, "Ypos");
  record.Zpos = ReadMeasure(in, "Zpos");
}

BlockRecord ReadBlock(LevelBytesReader& in, size_t tableSize) {
  BlockRecord block;
  ReadPosition(in, block);
  block.scaleX = ReadMeasure(in, "scaleX");
  block.scaleY = ReadMeasure(in, "scaleY");
  block.scaleZ = ReadMeasure(in, "scaleZ");
  for (int16_t& texture : block.Textures) texture = ReadTextureIndex(in, "Texture", tableSize);
  block.ScaleTextureTop = in.Byte("ScaleTextureTop");
  block.ScaleTextureSide = in.Byte("ScaleTextureSide");
  block.changeactioncode = in.Byte("changeactioncode");
  return block;
}

PlatformRecord ReadPlatform(LevelBytesReader& in, size_t tableSize) {
  PlatformRecord platform;
  platform.Box = ReadBlock(in, tableSize);
  platform.Mspeed = in.Byte("Mspeed");
  platform.StartingDir = in.Byte("Mdir");
  platform.Mdist = in.Byte("Mdist");
  platform.MloopBack = in.Byte("MloopBack");
  return platform;
}

RampRecord ReadRamp(LevelBytesReader& in, size_t tableSize) {
  RampRecord ramp;
  ReadPosition(in, ramp);
  ramp.scaleX = in.SingleFor<int16_t>("scaleX");
  ramp.scaleY = in.SingleFor<int16_t>("scaleY");
  ramp.scaleZ = in.SingleFor<int16_t>("scaleZ");
  for (int16_t& texture : ramp.Textures) texture = ReadTextureIndex(in, "Texture", tableSize);
  ramp.Rotation = in.Byte("Rotation");
  return ramp;
}

StarRecord ReadStar(LevelBytesReader& in, size_t) {
  StarRecord star;
  ReadPosition(in, star);
  return star;
}

template <typename Record>
std::vector<Record> ReadRecords(LevelBytesReader& in, const char* countField, size_t recordSize,
                                int32_t leastCount, size_t tableSize,
                                Record (*read)(LevelBytesReader&, size_t)) {
  const int32_t count = in.Count(countField, recordSize, leastCount);
  std::vector<Record> records;
  records.reserve(static_cast<size_t>(count) + 1);
  for (int32_t i = 0; i <= count; ++i) records.push_back(read(in, tableSize));
  return records;
}

std::vector<std::string> ReadTextureNames(LevelBytesReader& in) {
  const size_t offset = in.Offset();
  const int16_t count = in.TaggedInteger("TextureCount");
  if (count < 0) {
    in.Refuse("TextureCount", "the count " + std::to_string(count) + " is out of range", offset);
  }
  std::vector<std::string> names;
  for (int32_t i = 0; i <= count; ++i) {
    names.push_back(text::FromAnsi(in.CountedText("TextureName")));
  }
  return names;
}

void ReadTrackSettings(LevelBytesReader& in, LevelFile& level) {
  const size_t offset = in.Offset();
  level.StoredGravity = in.Single("Gravity");
  if (!(std::abs(GravityOf(level.StoredGravity)) <= kGreatestGravity)) {
    in.Refuse("Gravity", "the number is out of range", offset);
  }
  level.TrackSettings.SettingsText = text::FromAnsi(in.CountedText("SettingsText"));
  for (uint32_t& value : level.TrackSettings.SettingsValues) value = in.Bits32("SettingsValue");
}

template <typename Record>
void WritePlace(LevelBytesWriter& out, const Record& record) {
  for (const float value :
       {record.Xpos, record.Ypos, record.Zpos, record.scaleX, record.scaleY, record.scaleZ}) {
    out.Single(value);
  }
  for (const int16_t texture : record.Textures) out.Integer(texture);
}

void Write(LevelBytesWriter& out, const BlockRecord& block) {
  WritePlace(out, block);
  out.Byte(block.ScaleTextureTop);
  out.Byte(block.ScaleTextureSide);
  out.Byte(block.changeactioncode);
}

void Write(LevelBytesWriter& out, const PlatformRecord& platform) {
  Write(out, platform.Box);
  out.Byte(platform.Mspeed);
  out.Byte(platform.StartingDir);
  out.Byte(platform.Mdist);
  out.Byte(platform.MloopBack);
}

void Write(LevelBytesWriter& out, const RampRecord& ramp) {
  WritePlace(out, ramp);
  out.Byte(ramp.Rotation);
}

void Write(LevelBytesWriter& out, const StarRecord& star) {
  out.Single(star.Xpos);
  out.Single(star.Ypos);
  out.Single(star.Zpos);
}

template <typename Record>
void WriteRecords(LevelBytesWriter& out, const std::vector<Record>& records) {
  out.Long(static_cast<int32_t>(records.size()) - 1);
  for (const Record& record : records) Write(out, record);
}

void WriteTrackRecords(LevelBytesWriter& out, const TrackRecordsRecord& records) {
  for (const auto& name : records.RecordNames) out.Text(name.Bytes());
  for (const uint32_t value : records.RecordValues) out.Bits32(value);
}

}  // namespace

float StoredGravityOf(float gravity) { return ToSingle(gravity / 2.5 * 1000.0); }
float GravityOf(float stored) { return static_cast<float>(stored / 1000.0 * 2.5); }

LevelFile ParseLevel(std::string_view bytes) {
  LevelBytesReader in(bytes);
  LevelFile level;
  level.Version = in.Byte("LevelFileVersion");
  if (level.Version >= 3) level.TrackRecords = ReadTrackRecords(in);
  if (level.Version >= 4) in.Integer("ReservedWord");
  level.TextureNames = ReadTextureNames(in);
  level.BackgroundName = FixedText<50>::FromBytes(in.FixedText("BackgroundName", 50));
  const size_t table = level.TextureNames.size();
  level.Blocks = ReadRecords(in, "BlockCount", kBlockBytes, 0, table, ReadBlock);
  level.Platforms = ReadRecords(in, "PlatformCount", kPlatformBytes, -1, table, ReadPlatform);
  level.Ramps = ReadRecords(in, "RampCount", kRampBytes, -1, table, ReadRamp);
  level.Stars = ReadRecords(in, "StarCount", kStarBytes, -1, table, ReadStar);
  ReadTrackSettings(in, level);
  if (level.Version == 2) level.TrackRecords = ReadTrackRecords(in);
  return level;
}

std::string SerializeLevel(const LevelFile& level) {
  LevelBytesWriter out;
  out.Byte(kLevelFileVersion);
  WriteTrackRecords(out, level.TrackRecords.value_or(TrackRecordsRecord()));
  out.Integer(0);  // ReservedWord
  constexpr int16_t integerType = 2;
  out.Integer(integerType);
  out.Integer(static_cast<int16_t>(level.TextureNames.size() - 1));
  for (const std::string& name : level.TextureNames) out.CountedText(text::ToAnsi(name));
  out.Text(level.BackgroundName.Bytes());
  WriteRecords(out, level.Blocks);
  WriteRecords(out, level.Platforms);
  WriteRecords(out, level.Ramps);
  WriteRecords(out, level.Stars);
  out.Single(level.StoredGravity);
  out.CountedText(text::ToAnsi(level.TrackSettings.SettingsText));
  for (const uint32_t value : level.TrackSettings.SettingsValues) out.Bits32(value);
  return out.Take();
}
