// Picture files of every kind are read whole, and refused by name when they were cut.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "platform/d3dx.h"
#include "platform/qt/images.h"

namespace {

class PictureFile : public testing::Test {
 protected:
  ~PictureFile() override { std::filesystem::remove(path_); }
  Image Read(const std::string& bytes) const {
    std::ofstream(path_, std::ios::binary) << bytes;
    return qt::LoadImageFile(path_);
  }
  void ExpectRefused(const std::string& bytes, const std::string& what) const {
    try {
      Read(bytes);
      ADD_FAILURE() << what << " was read";
    } catch (const PlatformError& error) {
      EXPECT_TRUE(std::string(error.what()).starts_with(path_ + ": ")) << error.what();
    }
  }
  std::string Encoded(const Image& image, const std::string& extension) const {
    const std::string path = path_ + extension;
    qt::SaveImageFile(image, path);
    std::ifstream file(path, std::ios::binary);
    std::filesystem::remove(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string path_ = testing::TempDir() + "picture_test_" + std::to_string(getpid());
};

std::string Little(uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i));
  return text;
}

struct Bmp {
  uint32_t header, bits, compression;
  int height = 3;  // negative: top row first
  std::string runs = {};

  /// Three rows of five pixels, all of the second colour or of all bits; runs as they are given.
  std::string Bytes() const {
    const bool core = header == 12;
    std::string info = Little(header, 4);
    const auto side = [&](int value) { return Little(static_cast<uint32_t>(value), core ? 2 : 4); };
    info += side(5) + side(height) + Little(1, 2) + Little(bits, 2);
    const std::string data = Data();
    if (!core) {
      info += Little(compression, 4) + Little(static_cast<uint32_t>(data.size()), 4);
      info.resize(40, '\0');
      const std::string masks = bits == 16
                                    ? Little(0xF800, 4) + Little(0x7E0, 4) + Little(0x1F, 4)
                                    : Little(0xFF0000, 4) + Little(0xFF00, 4) + Little(0xFF, 4);
      if (compression == 3 || header > 40) info += masks;
      info.resize(std::max<size_t>(info.size(), header), '\0');
    }
    if (bits <= 8) {
      std::string colours(core ? 3 : 4, '\0');
      colours += "\xFF\xFF\xFF" + std::string(core ? 0 : 1, '\0');
      colours.resize((core ? 3U : 4U) << bits, '\x40');
      info += colours;
    }
    const auto start = static_cast<uint32_t>(14 + info.size());
    return "BM" + Little(static_cast<uint32_t>(start + data.size()), 4) + Little(0, 4) +
           Little(start, 4) + info + data;
  }

 private:
  std::string Data() const {
    if (!runs.empty()) return runs;
    const char fill = bits == 4 ? '\x11' : bits == 8 ? '\x01' : '\xFF';
    return std::string((5 * bits + 31) / 32 * 4 * 3, fill);
  }
};

TEST_F(PictureFile, EveryKindIsReadWholeAndEveryCutIsRefused) {
  using namespace std::string_literals;
  const std::string runs8 = "\5\1\0\0\5\1\0\0\5\1\0\0\0\1"s,
                    runs4 = "\5\x11\0\0\5\x11\0\0\5\x11\0\0\0\1"s;
  const std::vector<Bmp> kinds = {
      {40, 1, 0},   {40, 4, 0},      {40, 8, 0},     {40, 16, 0},          {40, 24, 0},
      {40, 32, 0},  {40, 24, 0, -3}, {40, 8, 0, -3}, {40, 16, 3},          {40, 32, 3},
      {108, 24, 0}, {124, 32, 3},    {124, 16, 3},   {108, 8, 0},          {12, 1, 0},
      {12, 4, 0},   {12, 8, 0},      {12, 24, 0},    {40, 8, 1, 3, runs8}, {40, 4, 2, 3, runs4}};
  const Image white(5, 3, 0xFFFFFFFF);
  Image noise(64, 64);  // its JPEG is longer than one read of the decoder
  for (size_t i = 0; i < noise.pixels.size(); ++i)
    noise.pixels[i] = 0xFF000000 | static_cast<uint32_t>(i * i * 2654435761U);
  const std::string longFile = Encoded(noise, ".jpg");
  ASSERT_GT(longFile.size(), 4096U);
  std::vector<std::pair<std::string, std::string>> files = {{"png", Encoded(white, ".png")},
                                                            {"jpg", Encoded(white, ".jpg")},
                                                            {"bmp", Encoded(white, ".bmp")}};
  for (const Bmp& kind : kinds) {
    files.emplace_back("BMP " + std::to_string(kind.header) + " " + std::to_string(kind.bits) +
                           " " + std::to_string(kind.compression),
                       kind.Bytes());
  }
  for (const auto& [name, bytes] : files) {
    const Image read = Read(bytes + "what follows counts for nothing");
    // Five bits of a channel may end at 0xF8.
    const auto light = [](uint32_t pixel) { return (pixel | 0x070707) == 0xFFFFFFFF; };
    EXPECT_EQ(std::ranges::count_if(read.pixels, light), 15) << name;
  }
  files.emplace_back("long jpg", longFile);
  for (const auto& [name, bytes] : files) {
    EXPECT_GE(Read(bytes).width, 5) << name;
    const auto step = [&](size_t at) { return at > 99 && at + 99 < bytes.size() ? 29U : 1U; };
    for (size_t length = 0; length < bytes.size(); length += step(length)) {
      ExpectRefused(bytes.substr(0, length), name + " cut to " + std::to_string(length));
    }
  }
  // Pixels that the runs leave out.
  const Image empty = Read(Bmp{40, 8, 1, 3, "\0\1"s}.Bytes());
  EXPECT_EQ(std::ranges::count(empty.pixels, 0xFF000000), 15);
}

TEST_F(PictureFile, WhatIsTooLongOrNoFileIsRefused) {
  EXPECT_EQ(Read(Encoded(Image(qt::kGreatestSide, 1), ".png")).width, qt::kGreatestSide);
  ExpectRefused(Encoded(Image(qt::kGreatestSide + 1, 1), ".png"), "a wide picture");
  ExpectRefused(Encoded(Image(1, qt::kGreatestSide + 1), ".png"), "a high picture");
  std::filesystem::remove(path_);
  std::filesystem::create_symlink("/dev/full", path_ + ".png");
  EXPECT_THROW(qt::SaveImageFile(Image(1, 1), path_ + ".png"), PlatformError);
  std::filesystem::remove(path_ + ".png");
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  EXPECT_THROW(qt::LoadImageFile(path_), PlatformError);
  bool opened = false;
  d3dx::Library library(qt::LoadImageFile, [&opened](const std::string&) {
    opened = true;
    return std::vector<d3dx::MeshObject::Subset>();
  });
  EXPECT_THROW(library.LoadMeshFromX(path_), PlatformError);
  EXPECT_FALSE(opened) << "it would wait for a writer";
}

}  // namespace
