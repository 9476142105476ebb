#include "files/FileIO.h"

#include <sys/stat.h>

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <utility>

#include "files/file_calls.h"
#include "files/level_bytes.h"
#include "tests/files/failing_allocation.h"
#include "tests/files/level_files.h"
#include "tests/support/null_editor.h"

namespace {

using namespace level_files;

class FileIOTest : public DeviceTest {
 protected:
  FileIO::Result Read(const std::string& bytes) { return FileIO::ReadLevelBytes(bytes, "t.lvl"); }
  /// What a save writes after reading these bytes; fails the test when they cannot be read.
  std::string Converted(const std::string& bytes) {
    const FileIO::Result result = Read(bytes);
    EXPECT_TRUE(result.Ok()) << result.message;
    return Saved();
  }
  static std::string Saved() {
    std::string bytes;
    EXPECT_TRUE(FileIO::LevelBytes(bytes).Ok());
    return bytes;
  }
};

TEST_F(FileIOTest, FilesOfTheirOwnMakingRoundTrip) {
  EXPECT_EQ(File().Bytes().size(), 213U);
  EXPECT_EQ(Converted(File().Bytes()), File().Bytes());
  EXPECT_EQ(Converted(AllKinds().Bytes()), AllKinds().Bytes());
  EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(FileIOTest, OldAndNewVersionsReadToTheSameDocument) {
  for (const int version : {2, 3, 5, 255}) {
    File file = AllKinds();
    file.version = version;
    EXPECT_EQ(Converted(file.Bytes()), AllKinds().Bytes()) << version;
  }
  EXPECT_EQ(boxes.messages,
            (std::vector<std::string>{FileIO::kOldVersionText, FileIO::kOldVersionText}));
}

TEST_F(FileIOTest, VersionsWithoutRecordsKeepThoseInMemory) {
  File file = AllKinds();
  file.records = Records("Somebody", 77);
  ASSERT_TRUE(Read(file.Bytes()).Ok());
  EXPECT_EQ(Document.TrackRecords.RecordNames[2].Trimmed(), "Somebody");
  File expected = AllKinds();
  expected.records = Records("No Record", 77);
  for (const int version : {0, 1}) {
    file.version = version;
    EXPECT_EQ(Converted(file.Bytes()), expected.Bytes()) << version;
  }
}

TEST_F(FileIOTest, EveryNumberTypeTagsTheTextureCount) {
  for (const std::string& tagged :
       {Integer(2) + Integer(1), Integer(3) + Long(1), Integer(4) + Single(1.4F),
        Integer(5) + Raw(0.5001), Integer(6) + Raw<int64_t>(14999), Integer(17) + Byte(1)}) {
    File file = AllKinds();
    file.textureCount = tagged;
    EXPECT_EQ(Converted(file.Bytes()), AllKinds().Bytes());
  }
  File file;
  file.textureCount = Integer(11) + Integer(0);
  EXPECT_EQ(Converted(file.Bytes()), File().Bytes());
  for (const std::string& refused :
       {Integer(11) + Integer(-1), Integer(5) + Raw(std::nan("")), Integer(3) + Long(40000),
        Integer(8) + Integer(0), Integer(4) + Single(INFINITY), Integer(2) + Integer(-2)}) {
    file.textureCount = refused;
    const FileIO::Result result = Read(file.Bytes());
    EXPECT_EQ(result.field, "TextureCount");
    EXPECT_EQ(result.offset, 72U);
  }
}

TEST_F(FileIOTest, SettersRefuseAndRoundAsObjectsDo) {
  File file;
  file.blocks = Long(0) + Singles({1.5F, -1, 2.5F, -1, 0, 0}) + std::string(11, '\0');
  file.platforms = Long(0) + Singles({1, -1, -1, 0, -2, 3}) + std::string(11, '\0') + Byte(0) +
                   Byte(9) + Byte(0) + Byte(1);
  file.ramps =
      Long(0) + Singles({-3.5F, -0.5F, -2, 0, -4, 2.5F}) + Integer(0) + Integer(0) + Byte(7);
  file.stars = Long(0) + Singles({-2.5F, -7, 3.5F});
  File expected = file;
  expected.blocks = Long(0) + Singles({1.5F, 0, 2, 1, 1, 0.9F}) + std::string(11, '\0');
  expected.platforms = Long(0) + Singles({1, 0, 0, 0, 0, 3}) + std::string(11, '\0') + Byte(0) +
                       Byte(9) + Byte(0) + Byte(255);
  expected.ramps = Long(0) + Singles({-4, 0, 0, 0, -4, 2}) + Integer(0) + Integer(0) + Byte(3);
  expected.stars = Long(0) + Singles({-2, 0, 4});
  EXPECT_EQ(Converted(file.Bytes()), expected.Bytes());
}

TEST_F(FileIOTest, TexturesNeedExactlyTheirName) {
  File file = AllKinds();
  // Another case, no file, a folder's way out, the empty name; then 8-bit text that has a file.
  for (const std::string& name : {std::string("A.BMP"), std::string("x.bmp"),
                                  std::string("../textures/a.bmp"), std::string()}) {
    file.names = Counted("_default.bmp") + Counted(name);
    ASSERT_TRUE(Read(file.Bytes()).Ok());
    EXPECT_EQ(Document.Blocks[0].GetTextureD(), "_default.bmp") << name;
    Saved();
    EXPECT_EQ(Document.TextureCount, 0);
  }
  file.names = Counted("_default.bmp") + Counted("\xFC.bmp");
  EXPECT_EQ(Converted(file.Bytes()), file.Bytes());
  EXPECT_EQ(Document.Blocks[0].GetTextureD(), "\xC3\xBC.bmp");
}

TEST_F(FileIOTest, TextureTableListsFirstUses) {
  ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
  Document.Blocks[1].Texture("B.bmp", "D", Document.TextureDir);
  Document.Platforms[0].Texture("AnimationTest_0.bmp", "A", Document.TextureDir);
  Document.Ramps[0].Texture("B.bmp", "B", Document.TextureDir);
  BuildTextureTable();
  EXPECT_EQ(Document.TextureNames,
            (std::vector<std::string>{"_default.bmp", "a.bmp", "B.bmp", "AnimationTest_0.bmp"}));
}

TEST_F(FileIOTest, MovedPlatformIsSavedWhereItStarted) {
  ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
  for (int step = 0; step < 200; ++step) Document.Platforms[0].move();
  EXPECT_NE(Document.Platforms[0].Xpos(), -2.0F);
  EXPECT_EQ(Saved(), AllKinds().Bytes());
}

TEST_F(FileIOTest, EveryTextByteSurvives) {
  File file;
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  file.settings = Single(10) + Counted(all) + std::string(16, '\0');
  file.background = all.substr(120, 50);
  EXPECT_EQ(Converted(file.Bytes()), file.Bytes());
}

TEST_F(FileIOTest, GravityUnitsAreFourHundredths) {
  File file;
  ASSERT_TRUE(Read(file.Bytes()).Ok());
  EXPECT_EQ(Document.Gravity, 0.025F);
  file.settings = Single(5) + Counted("") + std::string(16, '\0');
  ASSERT_TRUE(Read(file.Bytes()).Ok());
  EXPECT_EQ(Document.Gravity, 0.0125F);
}

TEST_F(FileIOTest, ReadReplacesTrackAndSelection) {
  Document.SelectedType = TypeStar;
  Document.SelectedIndex = 5;
  Document.SelectedPlane = 4;
  Document.PlatformsPaused = true;
  Document.ObjectSelected = true;
  Document.CurrentFileName = "kept";
  int announced = 0;
  FileIO::TrackReplaced = [&] { ++announced; };
  ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
  FileIO::TrackReplaced = nullptr;
  EXPECT_EQ(announced, 1);
  EXPECT_EQ(Document.BlockCount, 1);
  EXPECT_EQ(Document.StarCount, 1);
  EXPECT_TRUE(Document.TrackLoaded);
  EXPECT_FALSE(Document.PlatformsPaused);
  EXPECT_TRUE(Document.ObjectSelected);
  EXPECT_EQ(Document.SelectedType, TypeBlock);
  EXPECT_EQ(Document.SelectedIndex, 0);
  EXPECT_EQ(Document.SelectedPlane, 1);
  EXPECT_EQ(Document.CurrentFileName, "kept");
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg") << "without the low line";
  EXPECT_EQ(Document.Blocks[0].GeometryVertices()[18].colour, 0xFFFFFFU) << "nothing is marked";
  ASSERT_TRUE(Read(File().Bytes()).Ok());
  EXPECT_EQ(Document.StarCount, -1);
}

TEST_F(FileIOTest, MissingBackdropKeepsPictureAndName) {
  ASSERT_TRUE(Read(File().Bytes()).Ok());
  File file;
  file.background = Padded("gone.jpg", 50);
  EXPECT_EQ(Converted(file.Bytes()), file.Bytes());
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/_default.jpg");
}

/// Refused reads name the place and change nothing.
class RefusedReadTest : public FileIOTest {
 protected:
  void SetUp() override {
    FileIOTest::SetUp();
    ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
    Document.SelectedIndex = 1;
    before_ = Saved();
  }
  void ExpectUnchanged() {
    EXPECT_EQ(Saved(), before_);
    EXPECT_EQ(Document.SelectedIndex, 1);
  }
  void ExpectRefused(const File& file, const std::string& field) {
    const FileIO::Result result = Read(file.Bytes());
    EXPECT_EQ(result.field, field) << result.message;
    ExpectUnchanged();
  }
  std::string before_;
};

TEST_F(RefusedReadTest, CountsIndicesAndNumbers) {
  const auto block = [](const std::vector<float>& measures, int texture) {
    return Long(0) + Singles(measures) + Integer(texture) + std::string(9, '\0');
  };
  const std::vector<std::tuple<std::string File::*, std::string, std::string>> cases = {
      {&File::blocks, Long(-1), "BlockCount"},
      {&File::blocks, Long(32768) + std::string(32769 * 35, '\0'), "BlockCount"},
      {&File::stars, Long(-2), "StarCount"},
      {&File::stars, Long(0x7FFFFFFF), "StarCount"},
      {&File::blocks, block({0, 0, 0, 2, 1, 2}, 1), "Texture"},
      {&File::blocks, block({0, NAN, 0, 2, 1, 2}, 0), "Ypos"},
      {&File::ramps, block({0, 0, 0, 40000, 1, 1}, 0), "scaleX"},
      {&File::settings, Single(INFINITY) + Counted("") + std::string(16, '\0'), "Gravity"}};
  for (const auto& [part, bytes, field] : cases) {
    File file;
    file.*part = bytes;
    ExpectRefused(file, field);
  }
}

// What is read can be computed with: the rest has a field and an offset.
TEST_F(RefusedReadTest, MeasuresBeyondALong) {
  const std::vector<std::string> fields = {"Xpos",   "Ypos",   "Zpos",   "scaleX",
                                           "scaleY", "scaleZ", "Gravity"};
  const float most = 2147483520;
  for (size_t i = 0; i < fields.size(); ++i) {
    for (const float value : {2147483648.0F, -FLT_MAX, FLT_MAX, most, -most}) {
      std::vector<float> measures(7, most);
      measures[6] = 4e8F;
      measures[i] = i < 6 ? value : value / most * 4e8F;
      for (auto part : {&File::blocks, &File::platforms}) {
        File file = AllKinds();
        const size_t start = file.Bytes().find(file.*part) + 4;
        file.settings.replace(0, 4, Single(measures[6]));
        (file.*part).replace(4, 24, Singles(measures).substr(0, 24));
        const FileIO::Result result = Read(file.Bytes());
        EXPECT_EQ(result.field, std::abs(value) == most ? "" : fields[i]) << value;
        EXPECT_TRUE(result.Ok() || i == 6 || result.offset == start + 4 * i);
        if (!result.Ok()) continue;
        const std::string saved = Saved();
        EXPECT_EQ(Converted(saved), saved);
        for (int step = 0; step < 9; ++step) Document.Platforms[0].move();
      }
    }
  }
}

TEST_F(RefusedReadTest, NoMemoryAtAnyMoment) {
  File file = AllKinds();
  file.names = Counted("_default.bmp") + Counted("Blue With Yellow Dot.bmp");
  const std::string longer = file.Bytes(), fresh = File().Bytes(), name = "t.lvl";
  const std::string target = folder / "levels/t.lvl";
  WriteBytes(target, longer);
  ASSERT_TRUE(Read(fresh).Ok());
  bool allServed = false;
  for (int allocation = 0; !allServed; ++allocation) {
    servedAllocations = allocation;
    const FileIO::Result read = FileIO::ReadLevelBytes(longer, name);
    allServed = std::exchange(servedAllocations, -1) >= 0;
    EXPECT_TRUE(read.Ok() || read.message == "t.lvl: Cannot allocate memory") << read.message;
    EXPECT_EQ(Saved(), read.Ok() ? longer : fresh);
    ASSERT_TRUE(Read(fresh).Ok());
    servedAllocations = allocation;
    const FileIO::Result written = FileIO::WriteLevel(target);
    allServed = std::exchange(servedAllocations, -1) >= 0 && allServed;
    EXPECT_EQ(ReadBytes(target), written.Ok() ? fresh + longer.substr(fresh.size()) : longer);
    const std::filesystem::directory_iterator files(folder / "levels");
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "nothing left over";
    WriteBytes(target, longer);
  }
}

TEST_F(RefusedReadTest, DamagedTextureIsNamedAndMissingFilesToo) {
  WriteBytes(folder / "textures/B.bmp", "broken");
  File file = AllKinds();
  file.names = Counted("_default.bmp") + Counted("B.bmp");
  const FileIO::Result result = Read(file.Bytes());
  EXPECT_NE(result.message.find("B.bmp"), std::string::npos) << result.message;
  ExpectUnchanged();
  EXPECT_NE(FileIO::ReadLevel(folder / "none.lvl").message.find("none.lvl"), std::string::npos);
  EXPECT_FALSE(FileIO::ReadLevel(folder / "levels").Ok());
  EXPECT_FALSE(FileIO::ReadLevel("/dev/zero").Ok());
  ExpectUnchanged();
}

TEST_F(RefusedReadTest, EveryPrefix) {
  for (const File& file : {File(), AllKinds()}) {
    const std::string bytes = file.Bytes();
    for (size_t length = 0; length < bytes.size(); ++length) {
      ASSERT_FALSE(Read(bytes.substr(0, length)).Ok()) << length;
    }
  }
  ExpectUnchanged();
}

TEST_F(RefusedReadTest, EveryChangedByteReadsOrChangesNothing) {
  for (const File& file : {File(), AllKinds()}) {
    const std::string good = file.Bytes();
    for (size_t at = 0; at < good.size(); ++at) {
      for (const int value : {0, 1, 2, 0x7F, 0x80, 0xFE, 0xFF, good[at] ^ 1, good[at] ^ 0x10}) {
        std::string bytes = good;
        bytes[at] = static_cast<char>(value);
        if (Read(bytes).Ok()) {
          ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
          Document.SelectedIndex = 1;
        } else if (value == 0xFF) {
          ASSERT_EQ(Saved(), before_) << at;
        }
      }
    }
  }
}

class SaveTest : public FileIOTest {
 protected:
  void SetUp() override {
    FileIOTest::SetUp();
    ASSERT_TRUE(Read(File().Bytes()).Ok());
  }
  std::string target = folder / "levels/t.lvl";
};

TEST_F(SaveTest, ShorterTrackLeavesTheTail) {
  const std::string longer = AllKinds().Bytes();
  WriteBytes(target, longer);
  ASSERT_TRUE(FileIO::WriteLevel(target).Ok());
  EXPECT_EQ(ReadBytes(target), File().Bytes() + longer.substr(213));
  ASSERT_TRUE(FileIO::ReadLevel(target).Ok());
  EXPECT_EQ(Saved(), File().Bytes());
}

TEST_F(SaveTest, AFolderThatCannotBeSyncedIsToldOnce) {
  struct : FileCalls {
    int Sync(int file) override {
      struct stat status {};
      fstat(file, &status);
      errno = EIO;
      return S_ISDIR(status.st_mode) ? -1 : 0;
    }
  } calls;
  UseFileCalls(&calls);
  std::filesystem::remove_all(folder / "levels");
  boxes.answers = {folder / "t.lvl"};
  for (int save = 0; save < 2; ++save) EXPECT_EQ(FileIO::SaveTrack(), FileIO::Outcome::Done);
  UseFileCalls(nullptr);
  EXPECT_EQ(Document.CurrentFileName, folder / "t.lvl");
  EXPECT_EQ(boxes.messages, std::vector<std::string>{Document.CurrentFileName +
                                                     ": saved, but a power cut might still undo it:"
                                                     " Input/output error"});
  EXPECT_EQ(boxes.shown[0].folder, folder / "") << "there is no folder of levels";
}

TEST_F(SaveTest, TrackWithoutBlocksIsRefused) {
  WriteBytes(target, "old");
  Document.BlockCount = -1;
  EXPECT_EQ(FileIO::WriteLevel(target).message, FileIO::kNoBlocksText);
  EXPECT_EQ(ReadBytes(target), "old");
}

TEST_F(SaveTest, DialogsKeepTheCurrentFile) {
  using FileIO::Outcome;
  boxes.answers = {std::nullopt, target};
  EXPECT_EQ(FileIO::SaveTrack(), Outcome::Cancelled);
  EXPECT_EQ(Document.CurrentFileName, "");
  EXPECT_EQ(FileIO::SaveTrack(), Outcome::Done);
  EXPECT_EQ(Document.CurrentFileName, target);
  ASSERT_EQ(boxes.shown.size(), 2U);
  EXPECT_EQ(boxes.shown[1].title, "Save File");
  EXPECT_EQ(boxes.shown[1].defaultExtension, "bin");
  EXPECT_EQ(boxes.shown[1].folder, folder / "levels/");
  std::filesystem::remove(target);
  EXPECT_EQ(FileIO::SaveTrack(), Outcome::Done) << "the second save asks nothing";
  EXPECT_EQ(ReadBytes(target), File().Bytes());

  boxes.answers = {folder / "no/such/folder.lvl", folder / "none.lvl"};
  EXPECT_EQ(FileIO::SaveTrackDialog(), Outcome::Failed);
  EXPECT_EQ(FileIO::OpenTrackDialog(), Outcome::Failed);
  EXPECT_EQ(boxes.messages.size(), 2U);
  EXPECT_EQ(Document.CurrentFileName, target);
  EXPECT_EQ(boxes.shown.back().title, "Open");
  EXPECT_EQ(boxes.shown.back().filterText, "Vorbilax Levels *.lvl");
  EXPECT_EQ(boxes.shown.back().defaultExtension, "");
}

}  // namespace
