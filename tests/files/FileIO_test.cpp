#include "files/FileIO.h"

#include <sys/stat.h>

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <utility>

#include "files/file_calls.h"
#include "files/level_bytes.h"
#include "tests/files/level_files.h"
#include "tests/support/null_editor.h"

namespace {

using namespace level_files;

class FileIOTest : public DeviceTest {
 protected:
  FileIO::Result Read(const std::string& bytes) { return FileIO::ReadLevelBytes(bytes, "t.lvl"); }
  /// What a save writes after reading these bytes; fails the test when they cannot be read.
  std::string Converted(const std::string& bytes) {
    EXPECT_EQ(Read(bytes).message, "");
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
  // Fifty records of a kind have more bytes than all that comes after them.
  for (const auto& [part, size] : {std::pair{&File::blocks, 35U},
                                   {&File::platforms, 39U},
                                   {&File::ramps, 29U},
                                   {&File::stars, 12U}}) {
    File many = AllKinds();
    const std::string record = (many.*part).substr(4, size);
    many.platforms = many.ramps = many.stars = Long(-1);
    many.*part = Long(49);
    for (int i = 0; i < 50; ++i) many.*part += record;
    EXPECT_EQ(Converted(many.Bytes()).size(), many.Bytes().size());
  }
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  File text;
  text.settings = Single(10) + Counted(all) + std::string(16, '\0');
  text.background = all.substr(120, 50);
  text.platforms = AllKinds().platforms;
  text.platforms.back() = '\0';  // without loop
  for (const File& file : {File(), AllKinds(), text}) {
    EXPECT_EQ(Converted(file.Bytes()), file.Bytes());
  }
  EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(FileIOTest, EveryVersionReadsToTheSameButForMissingRecords) {
  File file = AllKinds();
  file.records = Records("Somebody", 77);
  ASSERT_TRUE(Read(file.Bytes()).Ok());
  EXPECT_EQ(Document.TrackRecords.RecordNames[2].Trimmed(), "Somebody");
  for (const int version : {0, 1, 2, 3, 5, 255}) {
    if (version == 2) file = AllKinds();
    file.version = version;
    File expected = AllKinds();
    if (version < 2) expected.records = Records("No Record", 77);  // those in memory
    EXPECT_EQ(Converted(file.Bytes()), expected.Bytes()) << version;
  }
  EXPECT_EQ(boxes.messages, std::vector<std::string>(4, FileIO::kOldVersionText));
}

TEST_F(FileIOTest, EveryNumberTypeTagsTheTextureCount) {
  File file = AllKinds();
  for (const std::string& tagged :
       {Integer(2) + Integer(1), Integer(3) + Long(1), Integer(4) + Single(1.4F),
        Integer(5) + Raw(0.5001), Integer(6) + Raw<int64_t>(14999), Integer(17) + Byte(1),
        Integer(11) + Integer(1)}) {
    file.textureCount = tagged;
    EXPECT_EQ(Converted(file.Bytes()), AllKinds().Bytes());
  }
  for (const std::string& refused :
       {Integer(11) + Integer(-1), Integer(5) + Raw(std::nan("")), Integer(3) + Long(40000),
        Integer(8) + Integer(0), Integer(4) + Single(INFINITY), Integer(2) + Integer(-2)}) {
    file.textureCount = refused;
    const FileIO::Result result = Read(file.Bytes());
    EXPECT_EQ(std::pair(result.field, result.offset), std::pair(std::string("TextureCount"), 72UL));
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
  for (const std::string name : {"A.BMP", "x.bmp", "../textures/a.bmp", ""}) {
    file.names = Counted("_default.bmp") + Counted(name);
    ASSERT_TRUE(Read(file.Bytes()).Ok());
    EXPECT_EQ(Document.Blocks[0].GetTextureD(), "_default.bmp") << name;
    Saved();
    EXPECT_EQ(Document.TextureCount, 0);
  }
  file.names = Counted("_default.bmp") + Counted("\xFC.bmp");
  EXPECT_EQ(Converted(file.Bytes()), file.Bytes());
  EXPECT_EQ(Document.Blocks[0].GetTextureD(), "\xC3\xBC.bmp");
  WriteBytes(folder / "textures/\xC3\xBC.bmp", "broken");
  const std::string message = Read(file.Bytes()).message;
  EXPECT_NE(message.find("\xC3\xBC.bmp: damaged"), std::string::npos) << message;
}

TEST_F(FileIOTest, MovedPlatformIsSavedWhereItStartedAndTexturesByFirstUse) {
  ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
  for (int step = 0; step < 200; ++step) Document.Platforms[0].move();
  EXPECT_NE(Document.Platforms[0].Xpos(), -2.0F);
  EXPECT_EQ(Saved(), AllKinds().Bytes());
  Document.Blocks[1].Texture("B.bmp", "D", Document.TextureDir);
  Document.Platforms[0].Texture("AnimationTest_0.bmp", "A", Document.TextureDir);
  Document.Ramps[0].Texture("B.bmp", "B", Document.TextureDir);
  BuildTextureTable();
  EXPECT_EQ(Document.TextureNames,
            (std::vector<std::string>{"_default.bmp", "a.bmp", "B.bmp", "AnimationTest_0.bmp"}));
}

TEST_F(FileIOTest, ReadReplacesTrackAndSelection) {
  Document.SelectedType = TypeStar;
  Document.SelectedIndex = 5;
  Document.SelectedPlane = 4;
  Document.PlatformsPaused = Document.ObjectSelected = true;
  Document.CurrentFileName = "kept";
  int announced = 0;
  FileIO::TrackReplaced = [&] { ++announced; };
  ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
  FileIO::TrackReplaced = nullptr;
  EXPECT_EQ(announced, 1);
  const auto counts = [] {
    return std::array{Document.BlockCount, Document.RampCount, Document.PlatformCount,
                      Document.StarCount, int32_t{Document.TextureCount}};
  };
  EXPECT_EQ(counts(), (std::array{1, 0, 0, 1, 1}));
  EXPECT_TRUE(Document.TrackLoaded && !Document.PlatformsPaused && Document.ObjectSelected);
  EXPECT_EQ(std::tuple(Document.SelectedType, Document.SelectedIndex, Document.SelectedPlane),
            std::tuple(TypeBlock, 0, 1));
  EXPECT_EQ(Document.Gravity, 0.0125F) << "5 units of a four hundredth";
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg") << "without the low line";
  EXPECT_EQ(Document.Blocks[0].GeometryVertices()[18].colour, 0xFFFFFFU) << "nothing is marked";
  File file;
  file.background = Padded("gone.jpg", 50);
  EXPECT_EQ(Converted(file.Bytes()), file.Bytes());
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg") << "its file is missing";
  EXPECT_EQ(counts(), (std::array{0, -1, -1, -1, 0}));
  EXPECT_EQ(Document.CurrentFileName, "kept");
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
    EXPECT_EQ(std::pair(Saved(), Document.SelectedIndex), std::pair(before_, 1));
  }
  std::string before_;
};

TEST_F(RefusedReadTest, CountsIndicesAndNumbers) {
  const auto block = [](const std::vector<float>& measures, int texture) {
    return Long(0) + Singles(measures) + Integer(texture) + std::string(9, '\0');
  };
  const std::vector<std::tuple<std::string File::*, std::string, std::string>> cases = {
      {&File::blocks, Long(-1), "BlockCount"},
      {&File::blocks, Long(32768) + std::string(32769UL * 35, '\0'), "BlockCount"},
      {&File::platforms, Long(-2), "PlatformCount"},
      {&File::ramps, Long(-2), "RampCount"},
      {&File::stars, Long(-2), "StarCount"},
      {&File::stars, Long(0x7FFFFFFF), "StarCount"},
      {&File::blocks, block({0, 0, 0, 2, 1, 2}, 1), "Texture"},
      {&File::blocks, block({0, NAN, 0, 2, 1, 2}, 0), "Ypos"},
      {&File::ramps, block({0, 0, 0, 40000, 1, 1}, 0), "scaleX"},
      {&File::settings, Single(INFINITY) + Counted("") + std::string(16, '\0'), "Gravity"}};
  for (const auto& [part, bytes, field] : cases) {
    File file;
    file.*part = bytes;
    EXPECT_EQ(Read(file.Bytes()).field, field);
    ExpectUnchanged();
  }
}

// What is read can be computed with: the rest has a field and an offset.
TEST_F(RefusedReadTest, MeasuresBeyondALong) {
  const char* const fields[] = {"Xpos", "Ypos", "Zpos", "scaleX", "scaleY", "scaleZ", "Gravity"};
  const float most = 2147483520, mostGravity = 4e8F;
  for (size_t i = 0; i < 7; ++i) {
    for (const float part : {2147483648.0F / most, -FLT_MAX / most, FLT_MAX / most, 1.0F, -1.0F}) {
      std::vector<float> measures(6, most);
      if (i < 6) measures[i] *= part;
      for (auto kind : {&File::blocks, &File::platforms}) {
        File file = AllKinds();
        const size_t start = file.Bytes().find(file.*kind) + 4;
        file.settings.replace(0, 4, Single(mostGravity * (i == 6 ? part : 1)));
        (file.*kind).replace(4, 24, Singles(measures));
        const FileIO::Result result = Read(file.Bytes());
        EXPECT_EQ(result.field, std::abs(part) == 1 ? "" : fields[i]) << part;
        EXPECT_TRUE(result.Ok() || i == 6 || result.offset == start + 4 * i);
        if (!result.Ok()) continue;
        const std::string saved = Saved();
        EXPECT_EQ(Converted(saved), saved);
        for (int step = 0; step < 9; ++step) Document.Platforms[0].move();
      }
    }
  }
}

TEST_F(RefusedReadTest, EveryPrefixAndEveryChangedByteReadsOrChangesNothing) {
  for (const std::string& path :
       {folder / "none.lvl", folder / "levels", std::string("/dev/zero")}) {
    EXPECT_TRUE(FileIO::ReadLevel(path).message.starts_with(path + ": "));
  }
  for (const File& file : {File(), AllKinds()}) {
    const std::string good = file.Bytes();
    for (size_t at = 0; at < good.size(); ++at) {
      ASSERT_FALSE(Read(good.substr(0, at)).Ok()) << at;
      for (const int value : {0, 1, 2, 0x7F, 0x80, 0xFE, 0xFF, good[at] ^ 1, good[at] ^ 0x10}) {
        std::string bytes = good;
        bytes[at] = static_cast<char>(value);
        if (Read(bytes).Ok()) {
          ASSERT_TRUE(Read(AllKinds().Bytes()).Ok());
          Document.SelectedIndex = 1;
        } else if (value == 0xFF) {
          ExpectUnchanged();
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
  Document.BlockCount = -1;
  EXPECT_EQ(FileIO::WriteLevel(target).message, FileIO::kNoBlocksText);
  EXPECT_EQ(ReadBytes(target), File().Bytes() + longer.substr(213));
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

TEST_F(SaveTest, DialogsKeepTheCurrentFile) {
  using FileIO::Outcome;
  boxes.answers = {std::nullopt, target};
  EXPECT_EQ(FileIO::SaveTrack(), Outcome::Cancelled);
  EXPECT_EQ(Document.CurrentFileName, "");
  EXPECT_EQ(FileIO::SaveTrack(), Outcome::Done);
  EXPECT_EQ(Document.CurrentFileName, target);
  const auto shown = [this] {
    const dialogs::FileDialog& last = boxes.shown.back();
    return std::vector{last.title, last.folder, last.filterText, last.defaultExtension};
  };
  const std::string levels = folder / "levels/", filter = "Vorbilax Levels *.lvl";
  EXPECT_EQ(shown(), (std::vector<std::string>{"Save File", levels, filter, "bin"}));
  std::filesystem::remove(target);
  EXPECT_EQ(FileIO::SaveTrack(), Outcome::Done) << "the second save asks nothing";
  EXPECT_EQ(ReadBytes(target), File().Bytes());

  boxes.answers = {folder / "no/such/folder.lvl", folder / "none.lvl"};
  EXPECT_EQ(FileIO::SaveTrackDialog(), Outcome::Failed);
  EXPECT_EQ(FileIO::OpenTrackDialog(), Outcome::Failed);
  EXPECT_EQ(boxes.messages.size(), 2U);
  EXPECT_EQ(Document.CurrentFileName, target);
  EXPECT_EQ(shown(), (std::vector<std::string>{"Open", levels, filter, ""}));
}

}  // namespace
